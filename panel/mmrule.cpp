// SPDX-License-Identifier: MIT
#include "panel/mmrule_p.h"

#include "panel/rulebox_p.h"

#include <QSet>

#include <algorithm>

namespace vexo::hox::qt::panel {

namespace {

/// Which way the lengths of a property go.
enum class Ways {
    LeftRight,
    UpDown,
    Sides, ///< top, right, bottom, left, as far as they are given
    Corner, ///< along the two sides, or one length for both
    Border, ///< one length for all four sides, with a line and a colour
    Other ///< one is a height, two are a width and a height
};

bool isOneOf(const QString &property, std::initializer_list<const char *> names)
{
    for (const char *name : names) {
        if (property == QLatin1String(name))
            return true;
    }
    return false;
}

// Such as the second part of padding-left and border-left-width.
bool hasPart(const QString &property, QLatin1String part)
{
    const int begin = property.indexOf(part);
    const int end = begin + part.size();
    return begin > 0 && (end == property.size() || property.at(end) == QLatin1Char('-'));
}

Ways waysOf(const QString &property)
{
    if (property.endsWith(QLatin1String("radius")))
        return Ways::Corner;
    if (hasPart(property, QLatin1String("-left")) || hasPart(property, QLatin1String("-right"))
        || isOneOf(property,
            { "left", "right", "width", "min-width", "max-width", "spacing", "letter-spacing",
                "word-spacing", "text-indent" }))
        return Ways::LeftRight;
    if (isOneOf(property, { "margin", "padding", "border-width" }))
        return Ways::Sides;
    if (property == QLatin1String("border"))
        return Ways::Border;
    if (property.startsWith(QLatin1String("qproperty-")) || property.contains(QLatin1String("size"))
        || property.contains(QLatin1String("position")))
        return Ways::Other;
    return Ways::UpDown;
}

Direction directionOf(Ways ways, int index, int count)
{
    const bool is_even = index % 2 == 0;
    switch (ways) {
    case Ways::LeftRight:
        return Direction::LeftRight;
    case Ways::Sides:
        return is_even ? Direction::UpDown : Direction::LeftRight;
    case Ways::Corner:
        return is_even ? Direction::LeftRight : Direction::UpDown;
    case Ways::Other:
        return is_even && count > 1 ? Direction::LeftRight : Direction::UpDown;
    default:
        return Direction::UpDown;
    }
}

bool hasLength(const SheetDeclaration &declaration)
{
    return std::any_of(declaration.words.begin(), declaration.words.end(),
        [](const SheetWord &word) { return std::holds_alternative<MmLength>(word); });
}

class RulePrinter
{
public:
    RulePrinter(const ui::ScalingInfo &scaling, QString *text)
        : m_scaling(scaling)
        , m_text(*text)
    {
    }

    // What a radius may be is known behind all others.
    void print(const SheetRule &rule)
    {
        if (rule.selector.isEmpty())
            return;
        m_text += rule.selector;
        m_text += QLatin1String(" {\n");
        for (const bool is_for_radii : { false, true }) {
            for (const SheetDeclaration &declaration : rule.declarations) {
                if (declaration.name.endsWith(QLatin1String("radius")) == is_for_radii)
                    print(declaration);
            }
        }
        m_text += QLatin1String("}\n");
    }

private:
    void print(const SheetDeclaration &declaration)
    {
        m_text += QLatin1String("    ");
        m_text += declaration.property;
        m_text += QLatin1Char(':');
        if (hasLength(declaration))
            printLengths(declaration);
        else
            printWords(declaration);
        m_text += QLatin1String(";\n");
    }

    void printWords(const SheetDeclaration &declaration)
    {
        for (const SheetWord &word : declaration.words) {
            m_text += QLatin1Char(' ');
            m_text += *std::get_if<QString>(&word);
        }
        m_box.learn(declaration.name, QVector<int>(declaration.words.size()));
    }

    void printLengths(const SheetDeclaration &declaration)
    {
        const Ways ways = waysOf(declaration.name);
        auto words = declaration.words;
        if ((ways == Ways::Sides || ways == Ways::Corner) && words.size() == 1)
            words += words.constFirst();
        QVector<int> px;
        px.reserve(words.size());
        for (int i = 0; i < words.size(); ++i) {
            px += pxOf(words.at(i), ways, directionOf(ways, i, words.size()));
            m_text += QLatin1Char(' ');
            if (const QString *plain = std::get_if<QString>(&words.at(i)))
                m_text += *plain;
            else
                printPx(px.constLast());
        }
        m_box.learn(declaration.name, px);
        if (ways == Ways::Border)
            printBorderWidths(words, px);
    }

    int pxOf(const SheetWord &word, Ways ways, Direction direction) const
    {
        const auto *length = std::get_if<MmLength>(&word);
        const int px = length ? length->px(m_scaling, direction) : 0;
        return ways == Ways::Corner ? qMin(px, m_box.mostRadius(direction)) : px;
    }

    // The toolkit knows one width only for the short form, which has been taken as a height.
    void printBorderWidths(const QVector<SheetWord> &words, const QVector<int> &px_up_down)
    {
        QVector<int> px{ 0, 0 };
        for (int i = 0; i < words.size(); ++i) {
            px[0] += px_up_down.at(i);
            px[1] += pxOf(words.at(i), Ways::Border, Direction::LeftRight);
        }
        m_box.learn(QStringLiteral("border-width"), px);
        if (px.at(0) == px.at(1))
            return;
        m_text += QLatin1String(";\n    border-width: ");
        printPx(px.at(0));
        m_text += QLatin1Char(' ');
        printPx(px.at(1));
    }

    void printPx(int px)
    {
        m_text += QString::number(px);
        m_text += QLatin1String("px");
    }

    const ui::ScalingInfo &m_scaling;
    QString &m_text;
    RuleBox m_box;
};

bool isImportant(const SheetDeclaration &declaration)
{
    return std::any_of(
        declaration.words.begin(), declaration.words.end(), [](const SheetWord &word) {
            const QString *plain = std::get_if<QString>(&word);
            return plain && plain->startsWith(QLatin1Char('!'));
        });
}

} // namespace

void printInPixels(const SheetRule &rule, const ui::ScalingInfo &scaling, QString *text)
{
    RulePrinter(scaling, text).print(rule);
}

void dropReplaced(SheetRule *former, const SheetRule &later)
{
    QSet<QString> said;
    for (const SheetDeclaration &declaration : later.declarations)
        said += declaration.property;
    QVector<SheetDeclaration> &left = former->declarations;
    const bool was_empty = left.isEmpty();
    const auto end = std::remove_if(left.begin(), left.end(), [&](const SheetDeclaration &one) {
        return said.contains(one.property) && !isImportant(one);
    });
    left.erase(end, left.end());
    if (left.isEmpty() && !was_empty)
        former->selector.clear();
}

} // namespace vexo::hox::qt::panel
