#pragma once
// SPDX-License-Identifier: MIT

#include "ui/hoxqui_export.h"

namespace vexo::hox::qt::ui {

/// Mix-in for buttons that still click when the finger has slid a little off them. The owning
/// button reports each pointer move and asks at the release whether to emit clicked(false) itself,
/// since the toolkit counts only a release inside as a click.
class HOXQUI_EXPORT EasyAccessButton // clazy:exclude=copyable-polymorphic
{
public:
    /// \a margin_px is the tolerance on every side, px. Default: enabled, 20 px.
    virtual void setEasyPress(bool enable, int margin_px);
    /// The tolerance on every side, px; 0 while it is off.
    int easyMargin() const { return m_easy_press ? m_easy_margin : 0; }
    /// Pointer at (\a x, \a y) in the button's own coordinates, button of \a width x \a height; px.
    virtual void mouseWasMoved(int x, int y, int width, int height);
    /// Whether the release counts as a click beside the button. Forgets the moves of this press.
    virtual bool mouseWasReleased();

private:
    bool m_easy_press = true;
    bool m_released_nearby = false; // pointer is off the button, but within the margin
    int m_easy_margin = 20;
};

} // namespace vexo::hox::qt::ui
