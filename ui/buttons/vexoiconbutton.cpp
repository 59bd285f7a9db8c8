#include "ui/buttons/vexoiconbutton.h"

#include <QMouseEvent>
#include <QPainterPath>
#include <QPointer>
#include <QStylePainter>

namespace vexo::hox::qt::ui {

VexoIconButton::VexoIconButton(QWidget *parent)
    : ActiveVectorButton(parent)
{
}

void VexoIconButton::setCanChangeBackgroundColor(bool can_change)
{
    m_can_background_color_change = can_change;
}

void VexoIconButton::initialize(const QString &state)
{
    if (m_is_initialized && currentState() == state)
        return;
    setState(state);
    m_is_initialized = true;
}

void VexoIconButton::mouseReleaseEvent(QMouseEvent *event)
{
    const bool is_click = mouseWasReleased();
    const QPointer<VexoIconButton> self(this);
    ActiveVectorButton::mouseReleaseEvent(event);
    if (!self || !is_click)
        return;
    // The toolkit ignored a release outside, and would go on with a button that a slot deletes.
    event->accept();
    Q_EMIT clicked(false);
}

void VexoIconButton::mouseMoveEvent(QMouseEvent *event)
{
    mouseWasMoved(event->pos().x(), event->pos().y(), width(), height());
    QAbstractButton::mouseMoveEvent(event);
}

void VexoIconButton::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QIcon shown;
    if ((isChecked() || isDown()) && m_can_background_color_change) {
        shown = takePressedLook(&painter);
    } else if (!isEnabled() && hasState(QLatin1String(INACTIVE_STATE_NAME))) {
        shown = getStateIcon(QLatin1String(INACTIVE_STATE_NAME));
        initialize(QLatin1String(INACTIVE_STATE_NAME));
    } else {
        shown = icon();
        initialize(QLatin1String(DEFAULT_STATE_NAME));
    }
    painter.drawItemPixmap(
        rect(), Qt::AlignCenter, shown.pixmap(pxIconSize(), QIcon::Normal, QIcon::Off));
}

QIcon VexoIconButton::takePressedLook(QPainter *painter)
{
    if (hasState(QLatin1String(CLICKED_STATE_NAME))) {
        QIcon clicked_icon = getStateIcon(QLatin1String(CLICKED_STATE_NAME));
        initialize(QLatin1String(CLICKED_STATE_NAME));
        return clicked_icon;
    }
    QIcon inverse = inverseIcon();
    QPainterPath outline;
    outline.addRect(QRectF(rect()));
    painter->drawPath(outline);
    initialize(currentState().isEmpty() ? QLatin1String(DEFAULT_STATE_NAME) : currentState());
    return inverse;
}

} // namespace vexo::hox::qt::ui
