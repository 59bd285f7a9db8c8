// SPDX-License-Identifier: MIT
#include "ui/buttons/pushbutton/shownimage_p.h"

#include "ui/painting/iconpixmap_p.h"

namespace vexo::hox::qt::ui {

void ShownImage::draw(QPainter *painter, const QStyle &style, const QRect &place, const QIcon &icon)
{
    const double ratio = pixelRatio(*painter);
    if (m_icon_key != icon.cacheKey() || m_size != place.size()
        || m_pixmap.devicePixelRatio() != ratio) {
        m_size = place.size();
        m_icon_key = icon.cacheKey();
        m_pixmap = iconPixmap(icon, m_size, ratio);
    }
    if (!m_pixmap.isNull())
        drawIconPixmap(painter, style, place, Qt::AlignCenter, m_pixmap);
}

} // namespace vexo::hox::qt::ui
