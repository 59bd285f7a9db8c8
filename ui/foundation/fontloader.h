#pragma once
// SPDX-License-Identifier: MIT

#include "ui/hoxqui_export.h"

#include <QString>

namespace vexo::hox::qt::ui {

/// Brings the panel's fonts into an application: constructing one registers the fallback font and
/// the four text weights and makes the light weight, 7 pt high, the application's font. Construct
/// one after the application object and before the first widget. The object itself holds nothing;
/// the fonts stay registered after it.
class HOXQUI_EXPORT FontLoader
{
public:
    /// Throws what ScalingInfo::inst() throws; the fonts are registered then, the application's
    /// font is unchanged.
    FontLoader();

    /// Registers the font file at \a path (resource or file system) and returns the first family
    /// in it; an empty string when nothing could be registered, such as a pipe or more than 32 MB.
    static QString loadFont(const char *path);
};

} // namespace vexo::hox::qt::ui
