// SPDX-License-Identifier: MIT
#include "panel/mmlength_p.h"

#include <ScalingInfo>

#include <QStringList>

#include <algorithm>

namespace vexo::hox::qt::panel {

namespace {

// What a screen could show is far less; sums of some must not overflow.
const int most_px = 32767;

const QLatin1String sum_head("calc(");

int wholePx(double px)
{
    const int whole = int(qBound(-double(most_px), px, double(most_px)));
    return px > 0 ? qMax(1, whole) : whole;
}

double pxPerMm(const ui::ScalingInfo &scaling, Direction direction)
{
    return double(
        direction == Direction::LeftRight ? scaling.m_px_per_mm_x : scaling.m_px_per_mm_y);
}

bool isDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

// From \a pos on.
int digits(const QString &word, int pos)
{
    const auto begin = word.begin() + pos;
    return int(std::find_if_not(begin, word.end(), isDigit) - begin);
}

int skipSign(const QString &word)
{
    return word.startsWith(QLatin1Char('+')) || word.startsWith(QLatin1Char('-')) ? 1 : 0;
}

bool isPoint(const QString &word, int pos)
{
    return pos < word.size() && word.at(pos) == QLatin1Char('.');
}

bool isNumeric(const QString &word)
{
    const int pos = skipSign(word);
    return digits(word, isPoint(word, pos) ? pos + 1 : pos) > 0;
}

// Length of the number that \a word begins with, 0 if it has too many digits or is none.
int numberLength(const QString &word)
{
    const int most_digits = 9;
    int pos = skipSign(word);
    const int whole = digits(word, pos);
    pos += whole;
    int fraction = 0;
    if (isPoint(word, pos)) {
        fraction = digits(word, pos + 1);
        pos += 1 + fraction;
    }
    const bool is_number = whole + fraction > 0 && qMax(whole, fraction) <= most_digits;
    return is_number && !isPoint(word, pos) ? pos : 0;
}

} // namespace

std::variant<MmLength, QString> MmLength::read(const QString &word)
{
    if (word.startsWith(sum_head, Qt::CaseInsensitive))
        return readSum(word);
    if (!isNumeric(word))
        return word;
    const Term term = readTerm(word);
    if (term.unit == NoLength)
        return word;
    MmLength length;
    length.m_terms += term;
    return length;
}

MmLength::Term MmLength::readTerm(const QString &word)
{
    const int length = numberLength(word);
    if (length == 0)
        throw SheetFault{ QStringLiteral("'%1' is no number").arg(word) };
    return { word.leftRef(length).toDouble(), unitOf(word, length) };
}

MmLength::Unit MmLength::unitOf(const QString &word, int pos)
{
    const struct
    {
        QLatin1String name;
        Unit unit;
    } known[]
        = { { QLatin1String("mm"), Mm }, { QLatin1String("px"), Px }, { QLatin1String("pt"), Pt },
              { QLatin1String(""), NoLength }, { QLatin1String("%"), NoLength },
              { QLatin1String("em"), NoLength }, { QLatin1String("ex"), NoLength } };
    const QStringRef unit = word.midRef(pos);
    for (const auto &one : known) {
        if (unit.compare(one.name, Qt::CaseInsensitive) == 0)
            return one.unit;
    }
    throw SheetFault{ QStringLiteral("unknown unit '%1' in '%2'; there is mm, pt, px, em, ex and %")
                          .arg(unit, word) };
}

MmLength MmLength::readSum(const QString &word)
{
    const SheetFault fault{ QStringLiteral("'%1' is no sum of lengths in mm, pt or px, as "
                                           "calc(6mm - 1px) is")
                                .arg(word) };
    const QStringList parts
        = word.mid(sum_head.size()).chopped(1).simplified().split(QLatin1Char(' '));
    MmLength sum;
    for (int i = 0; i < parts.size(); i += 2) {
        const QString sign = i > 0 ? parts.at(i - 1) : QStringLiteral("+");
        const bool is_sum = sign == QLatin1String("+") || sign == QLatin1String("-");
        if (!is_sum || !isNumeric(parts.at(i)))
            throw fault;
        Term term = readTerm(parts.at(i));
        if (term.unit == NoLength)
            throw fault;
        term.number *= sign == QLatin1String("-") ? -1 : 1;
        sum.m_terms += term;
    }
    if (parts.size() % 2 == 0)
        throw fault;
    return sum;
}

int MmLength::px(const ui::ScalingInfo &scaling, Direction direction) const
{
    const double mm_per_pt = 25.4 / 72;
    int sum = 0;
    for (const Term &term : m_terms) {
        double px = qAbs(term.number);
        if (term.unit == Pt)
            px *= mm_per_pt;
        if (term.unit != Px)
            px *= pxPerMm(scaling, direction);
        sum += term.number < 0 ? -wholePx(px) : wholePx(px);
    }
    return qBound(-most_px, sum, most_px);
}

} // namespace vexo::hox::qt::panel
