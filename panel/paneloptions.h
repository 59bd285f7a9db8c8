#pragma once
// SPDX-License-Identifier: MIT

#include <QSize>
#include <QSizeF>
#include <QStringList>

#include <optional>

namespace vexo::hox::qt::panel {

/// What Panel::setUp() does for an application. As constructed it does everything; each step can be
/// refused.
struct PanelOptions
{
    /// Pixels of the panel. Default: those of the primary screen.
    std::optional<QSize> px;
    /// Millimetres of the panel. Default: those of the primary screen, which many panels tell wrong
    /// or not at all.
    std::optional<QSizeF> mm;
    /// The toolkit's style "fusion", for which the stylesheets are made.
    bool use_style = true;
    /// The one of MmStylesheet::Day, for what has no rule in a stylesheet.
    bool use_palette = true;
    /// The library's fonts, the light one 7 pt high for the application (FontLoader).
    bool use_fonts = true;
    /// Stylesheet files in px, mm and pt, as MmStylesheet reads them; the later one wins where two
    /// say different things. Default: those of the widgets' library, and sliders, check boxes and
    /// radio buttons in mm; MmStylesheet::files() has other stock widgets besides. Empty: none, and
    /// the application's sheet is left alone. A file that cannot be read or has a fault adds
    /// nothing and is named in a warning; the others apply.
    QStringList sheets{ QStringLiteral(":/css/vexo-AAL.qs"), QStringLiteral(":/css/hoxq.qs"),
        QStringLiteral(":/sheets/controls.qs") };
    /// What the libraries themselves show and say in the language of QLocale()
    /// (PanelTranslations).
    bool use_translations = true;
    /// How far a finger may slip on a row, check box or radio button that still clicks, mm; the
    /// distance at which a VexoVerticalScrollArea starts to scroll. 0 or less: 10 px on rows, 8 px
    /// on boxes, whatever that is on the panel. Holds for what is constructed afterwards
    /// (TapDistance).
    double tap_mm = 5;
};

} // namespace vexo::hox::qt::panel
