// SPDX-License-Identifier: MIT
#include "benchmarks/operations/panel.h"

#include "benchmarks/operations/operations.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QMouseEvent>
#include <QTimer>

#include <memory>

namespace bench {

Panel::Panel(const char *style_sheet, const Make &make, int widgets, const QSize &px)
    : m_layout(new QGridLayout(&m_window))
    , m_timer(new QTimer(&m_window))
{
    const int columns = 8;
    m_window.setStyleSheet(QLatin1String(style_sheet));
    for (int i = 0; i < widgets; ++i) {
        m_widget = make(&m_window);
        if (px.isValid())
            m_widget->setFixedSize(px);
        m_layout->addWidget(m_widget, i / columns, i % columns);
    }
    m_window.show();
    QCoreApplication::processEvents();
}

void sendMouse(QWidget *widget, QEvent::Type type)
{
    const auto buttons = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
    const QPointF middle = QRectF(widget->rect()).center();
    QMouseEvent event(type, middle, Qt::LeftButton, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
    QCoreApplication::processEvents();
}

void addWidget(const char *name, const char *variant, const char *style_sheet, const Make &make,
    const QSize &px, Touched touched)
{
    const std::string prefix = name;
    const auto panel
        = [=](int widgets) { return std::make_shared<Panel>(style_sheet, make, widgets, px); };
    add(prefix + "-construct", variant, [=](int) {
        return [panel = panel(0), make] {
            const std::unique_ptr<QWidget> widget(make(panel->window()));
            widget->ensurePolished();
        };
    });
    add(prefix + "-repaint", variant,
        [=](int) { return [panel = panel(1)] { panel->widget()->repaint(); }; });
    if (!touched)
        return;
    add(prefix + "-tap", variant, [=](int) {
        return [panel = panel(1), touched] {
            sendMouse(touched(panel->widget()), QEvent::MouseButtonPress);
            sendMouse(touched(panel->widget()), QEvent::MouseButtonRelease);
        };
    });
}

} // namespace bench
