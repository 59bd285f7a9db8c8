#pragma once
// SPDX-License-Identifier: MIT

#include "ui/hoxqui_export.h"

#include <QImage>
#include <QLabel>
#include <QRectF>

namespace vexo::hox::qt::ui {

/// Shows an SVG file, such as the maker's logo. The file is drawn at a width in millimetres into an
/// image of a size in pixels, on white, centred on the size that the file gives itself; the whole
/// image is then shown in the same rectangle of the label. An image of the file's own size and a
/// width that makes just as many pixels show it one to one.
///
/// On a screen with a device pixel ratio the image has that many times as many pixels.
///
/// It sets no size of its own. A file that cannot be read, or changed meanwhile, is noticed at the
/// next paint; without a readable file or an image nothing is drawn. Set an accessible name, the
/// label has no text.
class HOXQUI_EXPORT VexoLogoLabel : public QLabel
{
    Q_OBJECT

    /// Width of the drawing, mm; its height follows from the file's proportions.
    Q_PROPERTY(double m_width_in_mm MEMBER m_width_in_mm WRITE setMmWidth)
    /// Width of the image, px. A change makes a new image; none for a width below 1 or
    /// beyond 8 Mpx.
    Q_PROPERTY(int m_image_width MEMBER m_image_width WRITE setImageWidth)
    /// Height of the image, px. A change makes a new image; none for a height below 1.
    Q_PROPERTY(int m_image_height MEMBER m_image_height WRITE setImageHeight)

public:
    /// \a width_mm in mm, the image's size in px. The defaults show the library's logo.
    explicit VexoLogoLabel(QWidget *parent = nullptr, float width_mm = 18.0F,
        unsigned int image_width = 150, unsigned int image_height = 40,
        QImage::Format format = QImage::Format_ARGB32_Premultiplied,
        const QString &file = QStringLiteral(":/widgetimages/vexo.svg"));

    void setMmWidth(double mm);
    void setImageWidth(int px);
    void setImageHeight(int px);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void forgetImage();
    QRectF renderImage(double ratio);

    QImage m_image;
    const QImage::Format m_format;
    const QString m_file;
    double m_width_in_mm;
    int m_image_width;
    int m_image_height;
    QString m_drawn_key; // of the file in the image; empty: draw anew
    QRectF m_drawn_rect; // in the image, px
    double m_drawn_ratio = 1; // pixels of the screen to one of them
};

} // namespace vexo::hox::qt::ui
