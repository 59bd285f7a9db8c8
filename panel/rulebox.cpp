// SPDX-License-Identifier: MIT
#include "panel/rulebox_p.h"

#include <limits>
#include <numeric>

namespace vexo::hox::qt::panel {

void RuleBox::Sides::learn(const QString &property, const QVector<int> &px)
{
    const int sum = std::accumulate(px.begin(), px.end(), 0); // one of a side is a length
    const int begin = property.indexOf(QLatin1Char('-')) + 1;
    const int end = property.indexOf(QLatin1Char('-'), begin);
    const QStringRef name
        = begin > 0 ? property.midRef(begin, end < 0 ? -1 : end - begin) : QStringRef();
    if (name == QLatin1String("top"))
        top = sum;
    else if (name == QLatin1String("right"))
        right = sum;
    else if (name == QLatin1String("bottom"))
        bottom = sum;
    else if (name == QLatin1String("left"))
        left = sum;
    else if (name.isEmpty() || name == QLatin1String("width")) {
        top = px.value(0);
        right = px.value(1, top);
        bottom = px.value(2, top);
        left = px.value(3, right);
    }
}

void RuleBox::learn(const QString &property, const QVector<int> &px)
{
    if (property == QLatin1String("width") || property == QLatin1String("min-width"))
        m_width = qMax(m_width, px.value(0));
    else if (property == QLatin1String("height") || property == QLatin1String("min-height"))
        m_height = qMax(m_height, px.value(0));
    else if (property.startsWith(QLatin1String("padding")))
        m_padding.learn(property, px);
    else if (property.startsWith(QLatin1String("border")))
        m_border.learn(property, px);
}

int RuleBox::mostRadius(Direction direction) const
{
    const bool is_level = direction == Direction::LeftRight;
    const int inside = is_level ? m_width : m_height;
    if (inside == 0)
        return std::numeric_limits<int>::max();
    const int around = is_level ? m_padding.left + m_padding.right + m_border.left + m_border.right
                                : m_padding.top + m_padding.bottom + m_border.top + m_border.bottom;
    return (inside + around) / 2;
}

} // namespace vexo::hox::qt::panel
