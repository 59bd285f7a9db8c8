// SPDX-License-Identifier: MIT
#include "ui/foundation/sharpicon_p.h"

#include "ui/files/imagefile_p.h"
#include "ui/foundation/pixels_p.h"

#include <QGuiApplication>

namespace vexo::hox::qt::ui {

namespace {

const Qt::ApplicationAttribute toolkits_own = Qt::AA_UseHighDpiPixmaps;

// Pixel for pixel: with the attribute the toolkit multiplies the size once more.
QPixmap plainPixmap(const QIcon &icon, const QSize &px)
{
    if (!QCoreApplication::testAttribute(toolkits_own))
        return icon.pixmap(px, QIcon::Normal, QIcon::Off);
    QCoreApplication::setAttribute(toolkits_own, false);
    const QPixmap pixmap = icon.pixmap(px, QIcon::Normal, QIcon::Off);
    QCoreApplication::setAttribute(toolkits_own, true);
    return pixmap;
}

int sharpLength(int px, double ratio)
{
    const int whole = truncated(px * ratio + 1e-6); // a ratio such as 1.15 is not exact
    return qRound(whole / ratio) == px ? whole : truncated(px * ratio + 0.5);
}

// What an icon has in fewer pixels than asked for fills the same place; none is enlarged, though.
double shownRatio(const QSize &pixmap, const QSize &px, const QSize &asked, double ratio)
{
    if (pixmap.width() == asked.width() || pixmap.height() == asked.height())
        return ratio;
    const double across = double(pixmap.width()) / px.width();
    const double down = double(pixmap.height()) / px.height();
    return qMax(1.0, qMax(across, down));
}

} // namespace

double sharpestRatio()
{
    return qGuiApp->devicePixelRatio();
}

QSize sharpSize(const QSize &px, double ratio)
{
    return QSize(sharpLength(px.width(), ratio), sharpLength(px.height(), ratio));
}

QPixmap iconPixmap(const QIcon &icon, const QSize &px, double ratio)
{
    if (ratio <= 1 || !ImageFile::isHoldable(px))
        return plainPixmap(icon, px);
    const QSize asked = sharpSize(px, ratio);
    if (!ImageFile::isHoldable(asked))
        return plainPixmap(icon, px);
    QPixmap pixmap = plainPixmap(icon, asked);
    pixmap.setDevicePixelRatio(shownRatio(pixmap.size(), px, asked, ratio));
    return pixmap;
}

} // namespace vexo::hox::qt::ui
