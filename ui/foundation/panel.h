#pragma once
// SPDX-License-Identifier: MIT

#include "ui/foundation/paneloptions.h"
#include "ui/hoxqui_export.h"

class QApplication;
class QPalette;
class QString;

namespace vexo::hox::qt::ui {

/// The one call that an application of a panel begins with.
class HOXQUI_EXPORT Panel
{
public:
    Panel() = delete;

    /// Gives \a application the scale, the style, the palette, the fonts and the stylesheets of the
    /// panel, in this order, as far as \a options ask for them. Call it after the application
    /// object is made and before the first widget is. On a screen with a device pixel ratio it also
    /// sets Qt::AA_UseHighDpiPixmaps, so that the toolkit's own buttons show sharp icons.
    ///
    /// Throws std::range_error "Display size not defined!", and has changed nothing, when a size in
    /// \a options is not above 0, or when one that is not given is not known to the screen either.
    /// A scale taken from the screen that no panel has (below 2 or above 25 px/mm, or pixels that
    /// are off square by more than 5 %) is used all the same and named in a warning.
    static void setUp(QApplication &application, const PanelOptions &options = PanelOptions());

    /// Dark text on white, grey when disabled.
    static QPalette palette();

    /// What the panel's stylesheets draw in pixels, in millimetres of the scale as it is now: a
    /// stylesheet for sliders, check boxes and radio buttons, and a ground for a frame or stack
    /// that is a window, which ":/css/vexo-AAL.qs" makes transparent. For the application or for
    /// any widget. Throws what ScalingInfo::inst() throws.
    static QString mmSheet();
};

} // namespace vexo::hox::qt::ui
