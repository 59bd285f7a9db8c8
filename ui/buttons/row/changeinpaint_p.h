#pragma once
// SPDX-License-Identifier: MIT

#include "ui/foundation/shownpart_p.h"
#include "ui/foundation/withoutrepaint_p.h"

#include <QRegion>

namespace vexo::hox::qt::ui {

/// Runs \a change of \a part, a child of a row that is just painting \a painted of itself. A child
/// of which no more is shown is painted right afterwards anyway, and asks for no paint then.
template <typename Change>
void changeInPaint(QWidget *part, const QRegion &painted, Change change)
{
    const QRect shown = part->geometry() & shownPart(*part->parentWidget());
    const bool is_painted = painted.rectCount() == 1 && painted.boundingRect().contains(shown);
    if (shown.isEmpty() || is_painted)
        withoutRepaint(part, change);
    else
        change();
}

} // namespace vexo::hox::qt::ui
