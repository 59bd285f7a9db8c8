#pragma once
// SPDX-License-Identifier: MIT

#include <QWidget>

namespace vexo::hox::qt::ui {

/// Runs \a change without the repaint of the whole \a widget that it asks for. The caller sees to
/// it that what has changed is painted.
template <typename Change>
void withoutRepaint(QWidget *widget, Change change)
{
    // setUpdatesEnabled(true) would repaint all of it, and its children.
    const bool is_disabled = widget->testAttribute(Qt::WA_UpdatesDisabled);
    widget->setAttribute(Qt::WA_UpdatesDisabled, true);
    change();
    widget->setAttribute(Qt::WA_UpdatesDisabled, is_disabled);
}

} // namespace vexo::hox::qt::ui
