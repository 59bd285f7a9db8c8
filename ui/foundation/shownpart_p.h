#pragma once
// SPDX-License-Identifier: MIT

#include <QRect>
#include <QWidget>

namespace vexo::hox::qt::ui {

/// What the widgets around \a widget leave of it: a list shows its first and last row in part.
inline QRect shownPart(const QWidget &widget)
{
    QRect shown = widget.rect();
    QPoint position;
    for (const QWidget *part = &widget; !part->isWindow(); part = part->parentWidget()) {
        position += part->pos();
        shown &= part->parentWidget()->rect().translated(-position);
    }
    return shown;
}

} // namespace vexo::hox::qt::ui
