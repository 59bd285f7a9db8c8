// SPDX-License-Identifier: MIT
#include "benchmarks/operations/operations.h"

#include <MeasuredPushButton>
#include <QCoreApplication>
#include <QMouseEvent>

#include <memory>

using namespace vexo::hox::qt::ui;

namespace bench {

namespace {

void send(QToolButton *button, QEvent::Type type)
{
    const auto buttons = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
    QMouseEvent event(type, QPointF(5, 5), Qt::LeftButton, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(button, &event);
}

template <typename Button>
void addButton(const char *variant)
{
    add("button-construct", variant, [](int) { return [] { Button button; }; });
    // Hidden: the painting is measured on the screens.
    add("button-tap", variant, [](int) {
        return [button = std::make_shared<Button>()] {
            send(button.get(), QEvent::MouseButtonPress);
            send(button.get(), QEvent::MouseButtonRelease);
        };
    });
}

} // namespace

void addButtons()
{
    addButton<MeasuredPushButton>("library");
    addButton<QToolButton>("stock");
}

} // namespace bench
