// SPDX-License-Identifier: MIT
#include "ui/buttons/activevectorbutton.h"

#include "ui/foundation/cachedvectoricon.h"
#include "ui/foundation/pixels_p.h"

#include <QPointer>

#include <stdexcept>

namespace vexo::hox::qt::ui {

ActiveVectorButton::ActiveVectorButton(QWidget *parent)
    : ActiveButton(parent)
    , m_scaling(ScalingInfo::inst())
{
    setAttribute(Qt::WA_StyledBackground, true);
}

void ActiveVectorButton::setMmIconWidth(double mm)
{
    if (!isMeasure(mm))
        throw std::out_of_range("Negative image width is impossible!");
    if (mm == m_mm_icon_width)
        return;
    m_mm_icon_width = mm;
    m_px_icon_size.setWidth(pxX(*m_scaling, mm));
    const QPointer<ActiveVectorButton> self(this);
    Q_EMIT sizeChanged(m_mm_icon_width, m_mm_icon_height);
    if (self)
        updateSizeCalculations();
}

void ActiveVectorButton::setMmIconHeight(double mm)
{
    if (!isMeasure(mm))
        throw std::out_of_range("Negative image height is impossible!");
    if (mm == m_mm_icon_height)
        return;
    m_mm_icon_height = mm;
    m_px_icon_size.setHeight(pxY(*m_scaling, mm));
    const QPointer<ActiveVectorButton> self(this);
    Q_EMIT sizeChanged(m_mm_icon_width, m_mm_icon_height);
    if (self)
        updateSizeCalculations();
}

void ActiveVectorButton::setMmIconSize(const QSizeF &mm)
{
    if (!isMeasure(mm))
        throw std::out_of_range("Negative image size parameter is impossible!");
    if (mm.width() == m_mm_icon_width && mm.height() == m_mm_icon_height)
        return;
    m_mm_icon_width = mm.width();
    m_mm_icon_height = mm.height();
    m_px_icon_size = pxSize(*m_scaling, mm);
    updateSizeCalculations();
    Q_EMIT sizeChanged(m_mm_icon_width, m_mm_icon_height);
}

void ActiveVectorButton::setPxIconSize(const QSize &px)
{
    if (px == m_px_icon_size || px.width() < 0 || px.height() < 0)
        return;
    m_px_icon_size = px.boundedTo(QSize(MAX_PX, MAX_PX));
    m_mm_icon_width = double(m_scaling->px2mm_X(float(m_px_icon_size.width())));
    m_mm_icon_height = double(m_scaling->px2mm_Y(float(m_px_icon_size.height())));
    const QPointer<ActiveVectorButton> self(this);
    Q_EMIT sizeChanged(m_mm_icon_width, m_mm_icon_height);
    if (self)
        updateSizeCalculations();
}

void ActiveVectorButton::updateSizeCalculations()
{
    if (m_mm_icon_width == 0.0 && m_mm_icon_height == 0.0)
        m_px_icon_size = QSize(0, 0);
    rerenderAll(false);
    if (m_minimum_size != m_px_icon_size) {
        m_minimum_size = m_px_icon_size;
        updateGeometry();
    }
    update();
}

QSize ActiveVectorButton::minimumSizeHint() const
{
    return m_minimum_size;
}

QIcon ActiveVectorButton::compute(const QString &path)
{
    if (m_mm_icon_width == 0.0 && m_mm_icon_height == 0.0)
        return QIcon();
    CachedVectorIcon icon(path, QSizeF(m_mm_icon_width, m_mm_icon_height));
    m_px_icon_size = truncated(QSizeF(icon.pxWidth(), icon.pxHeight()));
    return icon;
}

} // namespace vexo::hox::qt::ui
