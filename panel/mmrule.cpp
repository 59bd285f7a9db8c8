// SPDX-License-Identifier: MIT
#include "panel/mmrule_p.h"

#include "panel/rulebox_p.h"

#include <QRegularExpression>

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

Ways waysOf(const QString &property)
{
    static const QRegularExpression side(QStringLiteral("-(left|right)\\b"));
    if (property.endsWith(QLatin1String("radius")))
        return Ways::Corner;
    if (side.match(property).hasMatch()
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

class RulePrinter
{
public:
    explicit RulePrinter(const ui::ScalingInfo &scaling)
        : m_scaling(scaling)
    {
    }

    // What a radius may be is known behind all others.
    QString text(const SheetRule &rule)
    {
        QString declarations;
        for (const bool is_for_radii : { false, true }) {
            for (const SheetDeclaration &declaration : rule.declarations) {
                const Ways ways = waysOf(declaration.property.toLower());
                if ((ways == Ways::Corner) == is_for_radii)
                    declarations += text(declaration, ways);
            }
        }
        return QStringLiteral("%1 {\n%2}\n").arg(rule.selector, declarations);
    }

private:
    QString text(const SheetDeclaration &declaration, Ways ways)
    {
        auto words = declaration.words;
        if ((ways == Ways::Sides || ways == Ways::Corner) && words.size() == 1)
            words += words.first();
        QVector<int> px;
        QStringList texts;
        for (int i = 0; i < words.size(); ++i) {
            const Direction direction = directionOf(ways, i, words.size());
            px += pxOf(words.at(i), ways, direction);
            const QString *plain = std::get_if<QString>(&words.at(i));
            texts += plain ? *plain : QStringLiteral("%1px").arg(px.last());
        }
        m_box.learn(declaration.property.toLower(), px);
        return line(declaration.property, texts)
            + (ways == Ways::Border ? borderWidths(words, px) : QString());
    }

    int pxOf(const SheetWord &word, Ways ways, Direction direction) const
    {
        const auto *length = std::get_if<MmLength>(&word);
        const int px = length ? length->px(m_scaling, direction) : 0;
        return ways == Ways::Corner ? qMin(px, m_box.mostRadius(direction)) : px;
    }

    // The toolkit knows one width only for the short form, which has been taken as a height.
    QString borderWidths(const QVector<SheetWord> &words, const QVector<int> &px_up_down)
    {
        QVector<int> px{ 0, 0 };
        for (int i = 0; i < words.size(); ++i) {
            px[0] += px_up_down.at(i);
            px[1] += pxOf(words.at(i), Ways::Border, Direction::LeftRight);
        }
        m_box.learn(QStringLiteral("border-width"), px);
        if (px.at(0) == px.at(1))
            return QString();
        return line(QStringLiteral("border-width"),
            { QStringLiteral("%1px").arg(px.at(0)), QStringLiteral("%1px").arg(px.at(1)) });
    }

    static QString line(const QString &property, const QStringList &words)
    {
        return QStringLiteral("    %1: %2;\n").arg(property, words.join(QLatin1Char(' ')));
    }

    const ui::ScalingInfo &m_scaling;
    RuleBox m_box;
};

} // namespace

QString ruleInPixels(const SheetRule &rule, const ui::ScalingInfo &scaling)
{
    return RulePrinter(scaling).text(rule);
}

} // namespace vexo::hox::qt::panel
