#pragma once
// SPDX-License-Identifier: MIT

#include "panel/hoxqpanel_export.h"

#include <QSize>
#include <QSizeF>
#include <QString>
#include <QVector>

class QScreen;

namespace vexo::hox::qt::panel {

/// What a screen tells of itself, or an application of its panel.
struct HOXQPANEL_EXPORT ScreenFacts
{
    QString platform; ///< the toolkit's name for it, such as "eglfs"; decides about the cure
    QSize px; ///< of the panel
    QSizeF mm; ///< of the panel

    /// What \a screen tells on the platform of now; no sizes when it is null.
    static ScreenFacts of(const QScreen *screen);
    /// The scale in use: what ScalingInfo was told, or else what the primary screen tells.
    static ScreenFacts inUse();
    /// "1280 x 800 px on 160 x 100 mm, 8 x 8 px/mm", in the language of PanelTranslations.
    QString text() const;
};

/// Something that looks wrong, and what mends it.
struct HOXQPANEL_EXPORT ScreenFinding
{
    /// What looks wrong.
    enum Fault {
        NoSize, ///< no screen, or one without pixels or millimetres
        InventedSize, ///< 96 or 100 dpi both ways, to the millimetre
        PixelsAsMillimetres, ///< about 1 px/mm
        UnevenPixels, ///< higher or wider than square by more than 5 %
        UnlikelyDensity ///< below 2 or above 25 px/mm
    };

    Fault fault = NoSize; ///< the kind
    QString text; ///< what is wrong, a sentence with figures
    QString cure; ///< the variable, file or call that mends it on this platform
};

/// Says whether a panel's size looks wrong. All measures of all widgets hang on it, and platforms
/// that do not know it make one up. It compares figures only: whether 50 mm are 50 mm tells a ruler
/// on the page "screen" of the gallery. The program hoxqui-panel prints the same, in English; here
/// it is in the language of PanelTranslations.
class HOXQPANEL_EXPORT ScreenDoctor
{
public:
    ScreenDoctor() = delete;

    /// What looks wrong about the scale in use, the worst first; empty for a healthy one. Without a
    /// screen that is one finding, too.
    static QVector<ScreenFinding> findings();
    /// The same about \a facts.
    static QVector<ScreenFinding> findings(const ScreenFacts &facts);
    /// Each finding on a line, below it the cures; in plain words. Empty if there are none.
    static QString report(const QVector<ScreenFinding> &findings);
};

} // namespace vexo::hox::qt::panel
