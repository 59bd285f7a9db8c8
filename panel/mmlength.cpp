// SPDX-License-Identifier: MIT
#include "panel/mmlength_p.h"

#include <ScalingInfo>

#include <QRegularExpression>

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

bool isNumeric(const QString &word)
{
    static const QRegularExpression head(QStringLiteral(R"(\A[+-]?\.?\d)"));
    return head.match(word).hasMatch();
}

} // namespace

std::variant<MmLength, QString> MmLength::read(const QString &word)
{
    if (word.startsWith(sum_head, Qt::CaseInsensitive))
        return readSum(word);
    if (!isNumeric(word))
        return word;
    const Term term = readTerm(word);
    static const QStringList left_alone{ QString(), QStringLiteral("%"), QStringLiteral("em"),
        QStringLiteral("ex") };
    if (left_alone.contains(term.unit))
        return word;
    MmLength length;
    length.m_terms = { term };
    return length;
}

MmLength::Term MmLength::readTerm(const QString &word)
{
    static const QRegularExpression form(
        QStringLiteral(R"(\A([+-]?(?:\d{1,9}(?:\.\d{0,9})?|\.\d{1,9}))([^\d.].*)?\z)"));
    static const QStringList units{ QString(), QStringLiteral("mm"), QStringLiteral("pt"),
        QStringLiteral("px"), QStringLiteral("%"), QStringLiteral("em"), QStringLiteral("ex") };
    const QRegularExpressionMatch match = form.match(word);
    if (!match.hasMatch())
        throw SheetFault{ QStringLiteral("'%1' is no number").arg(word) };
    const QString unit = match.captured(2).toLower();
    if (!units.contains(unit))
        throw SheetFault{ QStringLiteral("unknown unit '%1' in '%2'; there is mm, pt, px, em, ex "
                                         "and %")
                              .arg(match.captured(2), word) };
    return { match.captured(1).toDouble(), unit };
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
        if (term.unit.size() != 2 || term.unit.startsWith(QLatin1Char('e')))
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
        if (term.unit == QLatin1String("pt"))
            px *= mm_per_pt;
        if (term.unit != QLatin1String("px"))
            px *= pxPerMm(scaling, direction);
        sum += term.number < 0 ? -wholePx(px) : wholePx(px);
    }
    return qBound(-most_px, sum, most_px);
}

} // namespace vexo::hox::qt::panel
