#pragma once
// SPDX-License-Identifier: MIT

#include "panel/mmlength_p.h"

#include <QString>
#include <QVector>

namespace vexo::hox::qt::panel {

/// How large a rule makes what it describes at least, px.
class RuleBox
{
public:
    /// Takes note of what \a property says, \a px for each of its words, 0 for one that is no
    /// length.
    void learn(const QString &property, const QVector<int> &px);
    /// Half of the width or height with padding and border; huge where the rule does not tell.
    int mostRadius(Direction direction) const;

private:
    struct Sides
    {
        void learn(const QString &property, const QVector<int> &px);

        int top = 0;
        int right = 0;
        int bottom = 0;
        int left = 0;
    };

    int m_width = 0;
    int m_height = 0;
    Sides m_padding;
    Sides m_border;
};

} // namespace vexo::hox::qt::panel
