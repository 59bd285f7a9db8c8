#pragma once
// SPDX-License-Identifier: MIT

#include "ui/buttons/activebutton.h"

#include <QSizeF>

namespace vexo::hox::qt::ui {

class ScalingInfo;

/// An ActiveButton whose icons are rendered from vector or bitmap files at a size in mm. The size
/// of the last icon made is the size in which icons are drawn, and the minimum size hint once a
/// size was set. With both dimensions above 0 an image of another shape is stretched; a dimension
/// of 0 mm follows from the other one and the aspect ratio of the image; at 0 x 0 mm the button has
/// no icons. It may be deleted in sizeChanged(), too.
class HOXQUI_EXPORT ActiveVectorButton : public ActiveButton
{
    Q_OBJECT

    /// Icon width, mm. Default 10.0. A change renders all icons anew; a negative width or NaN
    /// throws std::out_of_range "Negative image width is impossible!" and changes nothing.
    Q_PROPERTY(double mm_icon_width READ mmIconWidth WRITE setMmIconWidth NOTIFY sizeChanged)
    /// Icon height, mm. Default 10.0. As the width, with "Negative image height is impossible!".
    Q_PROPERTY(double mm_icon_height READ mmIconHeight WRITE setMmIconHeight NOTIFY sizeChanged)

public:
    explicit ActiveVectorButton(QWidget *parent = nullptr);

    double mmIconWidth() const { return m_mm_icon_width; }
    void setMmIconWidth(double mm);
    double mmIconHeight() const { return m_mm_icon_height; }
    void setMmIconHeight(double mm);
    /// Both at once. Throws std::out_of_range "Negative image size parameter is impossible!"
    /// for a negative size or NaN, and changes nothing then.
    void setMmIconSize(const QSizeF &mm);
    /// Size in which icons are drawn, px; 0 x 0 until an icon or a size is set.
    QSize pxIconSize() const { return m_px_icon_size; }
    /// Sets the icon size in px. It is kept in mm, so at odd densities icons can come out one pixel
    /// smaller. A negative size is ignored.
    void setPxIconSize(const QSize &px);

    /// Renders all icons anew at the scale of now and takes their size as minimum size hint.
    void updateSizeCalculations();
    QSize minimumSizeHint() const override;
    QIcon compute(const QString &path) override;

Q_SIGNALS:
    /// The icon size is now \a w x \a h mm.
    void sizeChanged(double w, double h);

private:
    const ScalingInfo *const m_scaling;
    QSize m_px_icon_size = QSize(0, 0);
    QSize m_minimum_size = QSize(0, 0);
    double m_mm_icon_width = 10.0;
    double m_mm_icon_height = 10.0;
};

} // namespace vexo::hox::qt::ui
