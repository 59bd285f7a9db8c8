#pragma once
// SPDX-License-Identifier: MIT

#include "uitest/hoxquitest_export.h"

#include <QImage>
#include <QSize>
#include <QSizeF>
#include <QString>
#include <QVector>

#include <functional>

class QWidget;

namespace vexo::hox::qt::uitest {

/// A panel that a screen is to look right on.
struct HOXQUITEST_EXPORT PanelKind
{
    QString name; ///< written below its picture
    QSize px; ///< of the whole screen
    QSizeF mm; ///< of the whole screen
};

/// How much two pictures may differ and still count as the same.
struct HOXQUITEST_EXPORT PictureTolerance
{
    int step = 8; ///< of red, green or blue, 0 to 255, that nobody sees
    double share = 0.0005; ///< of the pixels that may differ by more
};

/// How two pictures differ.
struct HOXQUITEST_EXPORT PictureDifference
{
    bool is_accepted = false; ///< within the tolerance, and of the same size
    double share = 1; ///< of the pixels that differ by more than the step
    QString text; ///< one sentence, with figures
    QImage picture; ///< was, is and difference side by side; null if nothing differs
};

/// Pictures of one screen on several panels, side by side at the same physical scale: what is too
/// small for a finger or an eye on one of them shows at once.
class HOXQUITEST_EXPORT PanelSheet
{
public:
    /// Makes a screen. It is resized to the panel and deleted when its picture is taken; null
    /// leaves the panel blank.
    using Create = std::function<QWidget *()>;

    /// Five common panels of 4.3 to 12.3 inches, the third of pixels that are not square.
    PanelSheet();
    /// Panels without a size are left out.
    explicit PanelSheet(const QVector<PanelKind> &panels);

    /// In the order of the sheet.
    QVector<PanelKind> panels() const { return m_panels; }

    /// The screen on one panel, in its own pixels. ScalingInfo has the scale of that panel
    /// meanwhile, and afterwards what it had before.
    static QImage pictureOn(const PanelKind &panel, const Create &create);
    /// The screen on all panels, \a px_per_mm px to a mm of each (0.1 to 40), with name and size
    /// below.
    QImage sheet(const Create &create, double px_per_mm = 4) const;

    /// \a is beside the picture in the file \a reference. Without that file, or when the sizes
    /// differ, it is not accepted.
    static PictureDifference compare(
        const QString &reference, const QImage &is, const PictureTolerance &tolerance = {});

private:
    QVector<PanelKind> m_panels;
};

} // namespace vexo::hox::qt::uitest
