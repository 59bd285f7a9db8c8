#pragma once
// SPDX-License-Identifier: MIT

#include "ui/hoxqui_export.h"

#include <QString>

namespace vexo::hox::qt::ui {

/// Brings the panel's fonts into an application: constructing one registers the fallback font and
/// the four text weights and makes the light weight, 7 pt high, the application's font. Construct
/// one after the application object and before the first widget, for each application object anew.
/// The object itself holds nothing; the fonts stay registered after it. They are read where they
/// lie in the library, which therefore stays loaded from then on.
class HOXQUI_EXPORT FontLoader
{
public:
    /// Throws what ScalingInfo::inst() throws; the fonts are registered then, the application's
    /// font is unchanged.
    FontLoader();

    /// Registers the font file at \a path (resource or file system) and returns the first family
    /// in it; an empty string when nothing could be registered, such as a pipe or more than 32 MB.
    /// An uncompressed resource that was compiled into a library or program takes no memory of its
    /// own; that library stays loaded. A file is opened again when its face is first drawn in, and
    /// must neither change nor go while it is used.
    static QString loadFont(const char *path);
};

} // namespace vexo::hox::qt::ui
