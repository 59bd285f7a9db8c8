// SPDX-License-Identifier: MIT
#include "panel/panelnotice.h"

#include "panel/keyboardroom_p.h"
#include "panel/mm_p.h"
#include "panel/over_p.h"
#include "panel/roles_p.h"
#include "panel/roundground_p.h"

#include <VexoColors>

#include <QAccessible>
#include <QEvent>
#include <QGuiApplication>
#include <QInputMethod>
#include <QMouseEvent>
#include <QVBoxLayout>

namespace vexo::hox::qt::panel {

using ui::VexoColors;

PanelNotice::PanelNotice(Qt::Edge edge, QWidget *screen)
    : QWidget(Over(screen))
    , m_edge(edge)
    , m_ground(new RoundGround(VexoColors::C3, 2, this))
    , m_label(createText(8, QFont::Normal, m_ground))
{
    installRoles();
    hide();
    setTextColor(VexoColors::C0);
    m_label->setAlignment(Qt::AlignCenter);
    auto *inside = new QVBoxLayout(m_ground);
    inside->setContentsMargins(mmMargins(4, 3));
    inside->addWidget(m_label);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_ground);
    if (screen)
        screen->installEventFilter(this);
    connect(QGuiApplication::inputMethod(), &QInputMethod::keyboardRectangleChanged, this,
        &PanelNotice::follow);
}

PanelNotice::~PanelNotice() = default;

void PanelNotice::setMmWidth(double mm)
{
    m_mm_width = mm >= 0 ? mm : 0;
    update();
}

void PanelNotice::setMmMargin(double mm)
{
    m_mm_margin = mm >= 0 ? mm : 0;
    update();
}

QColor PanelNotice::backgroundColor() const
{
    return m_ground->color();
}

void PanelNotice::setBackgroundColor(const QColor &color)
{
    m_ground->setColor(color);
}

void PanelNotice::setTextColor(const QColor &color)
{
    m_text_color = color;
    setInk(m_label, color);
}

QString PanelNotice::text() const
{
    return m_label->text();
}

void PanelNotice::tell(const QString &text)
{
    m_label->setText(text);
    setAccessibleName(text);
    m_timer.stop();
    if (text.isEmpty()) {
        hide();
        return;
    }
    place();
    raise();
    show();
    if (m_ms > 0)
        m_timer.start(m_ms, this);
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

// As narrow as its text lets it.
void PanelNotice::place()
{
    const QWidget *screen = parentWidget();
    if (!screen)
        return;
    const QMargins margins = mmMargins(m_mm_margin, m_mm_margin);
    const QRect room = roomAboveKeyboards(*screen).marginsRemoved(margins);
    const QMargins padding = m_ground->layout()->contentsMargins();
    const int padding_px = padding.left() + padding.right();
    const int text_px = m_label->fontMetrics().horizontalAdvance(text()) + padding_px + 1;
    const int width = qMax(0, qMin(qMin(room.width(), mmX(m_mm_width)), text_px));
    const int height = qMax(0, m_label->heightForWidth(qMax(1, width - padding_px))) + padding.top()
        + padding.bottom();
    const int lowest = room.bottom() + 1 - height;
    const int y = m_edge == Qt::TopEdge ? room.top() : qMax(0, lowest);
    setGeometry(room.left() + (room.width() - width) / 2, y, width, height);
}

void PanelNotice::follow()
{
    if (isVisible())
        place();
}

// A keyboard on the screen came, went or moved.
bool PanelNotice::event(QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest)
        follow();
    return QWidget::event(event);
}

bool PanelNotice::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize && watched == parentWidget())
        follow();
    return false;
}

void PanelNotice::timerEvent(QTimerEvent *)
{
    hide();
}

void PanelNotice::hideEvent(QHideEvent *)
{
    m_timer.stop();
}

void PanelNotice::mousePressEvent(QMouseEvent *event)
{
    event->accept(); // what lies below is not touched
}

void PanelNotice::mouseReleaseEvent(QMouseEvent *event)
{
    if (!rect().contains(event->pos()))
        return;
    hide();
    Q_EMIT tapped();
}

} // namespace vexo::hox::qt::panel
