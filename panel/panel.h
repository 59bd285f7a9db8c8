#pragma once
// SPDX-License-Identifier: MIT

#include "panel/hoxqpanel_export.h"
#include "panel/paneloptions.h"

class QApplication;

namespace vexo::hox::qt::panel {

/// The one call that an application of a panel begins with.
class HOXQPANEL_EXPORT Panel
{
public:
    Panel() = delete;

    /// Gives \a application the scale, the style, the palette, the fonts, the stylesheets and the
    /// language of the panel, in this order, as far as \a options ask for them, and a BounceFilter.
    /// Call it after the application object is made and before the first widget is. On a screen
    /// with a device pixel ratio it also sets Qt::AA_UseHighDpiPixmaps, so that the toolkit's own
    /// buttons show sharp icons.
    ///
    /// The sheets are read by one MmStylesheet, a child of \a application which lives until another
    /// call names sheets. So lengths in mm follow the ScalingInfo as long as the application shows
    /// them.
    ///
    /// Throws std::range_error "Display size not defined!", and has changed nothing, when a size in
    /// \a options is not above 0, or when one that is not given is not known to the screen either.
    /// A scale taken from the screen that no panel has (below 2 or above 25 px/mm, or pixels that
    /// are off square by more than 5 %) is used all the same and named in a warning, with what
    /// mends it. ScreenDoctor tells more, also of a size that is made up.
    static void setUp(QApplication &application, const PanelOptions &options = PanelOptions());
};

} // namespace vexo::hox::qt::panel
