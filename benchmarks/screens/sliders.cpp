// SPDX-License-Identifier: MIT
#include "benchmarks/support/screen.h"

#include <QCoreApplication>
#include <QFile>
#include <QGridLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>

#ifdef HOXQ_BENCHMARK_LIBRARY
#include <VexoSlider>
#include <VexoSliderDecoration>
#else
#include <QIcon>
#endif

namespace bench {

namespace {

QString image()
{
    return QStringLiteral(":/widgetimages/Icons_Round_Small/RoundButton_S_Minus_Active.svg");
}

QStringList marks()
{
    return { QStringLiteral("0"), QStringLiteral("50"), QStringLiteral("100") };
}

#ifdef HOXQ_BENCHMARK_LIBRARY

using namespace vexo::hox::qt::ui;

QWidget *makeSlider()
{
    auto *slider = new VexoSlider(Qt::Horizontal);
    slider->setMaximum(100);
    slider->setValue(50);
    auto *decoration
        = new VexoSliderDecoration(nullptr, VexoSliderDecoration::HorizontalWithScale, slider);
    decoration->setScaleText(marks());
    decoration->setMinImage(image(), 0, 3);
    decoration->setMaxImage(image(), 0, 3);
    return decoration;
}

#else

QLayout *makeScale()
{
    auto *row = new QHBoxLayout;
    const QStringList texts = marks();
    for (const QString &text : texts) {
        auto *label = new QLabel(text);
        label->setObjectName(QStringLiteral("mark"));
        label->setAlignment(Qt::AlignCenter);
        row->addWidget(label);
    }
    return row;
}

QWidget *makeSlider()
{
    auto *decoration = new QWidget;
    auto *grid = new QGridLayout(decoration);
    grid->setSpacing(0);
    auto *slider = new QSlider(Qt::Horizontal);
    slider->setMaximum(100);
    slider->setValue(50);
    slider->setFixedSize(560, 65);
    grid->addLayout(makeScale(), 0, 1);
    grid->addWidget(slider, 1, 1);
    for (const int column : { 0, 2 }) {
        auto *icon = new QLabel;
        icon->setPixmap(QIcon(image()).pixmap(30, 30));
        grid->addWidget(icon, 1, column);
    }
    return decoration;
}

#endif

QPoint handleOf(const QSlider *slider)
{
    QStyleOptionSlider option;
    option.initFrom(slider);
    option.orientation = slider->orientation();
    option.minimum = slider->minimum();
    option.maximum = slider->maximum();
    option.sliderPosition = slider->sliderPosition();
    option.sliderValue = slider->value();
    return slider->style()
        ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, slider)
        .center();
}

void send(QSlider *slider, QEvent::Type type, const QPoint &at)
{
    const bool is_release = type == QEvent::MouseButtonRelease;
    const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, button, is_release ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(slider, &event);
    QCoreApplication::processEvents();
}

// Drags the handle of the next slider to and fro, a frame for each move.
Action drag(const QList<QSlider *> &sliders)
{
    return { "drag", [sliders, next = 0]() mutable {
                QSlider *slider = sliders[next++ % sliders.size()];
                const QPoint at = handleOf(slider);
                send(slider, QEvent::MouseButtonPress, at);
                for (const int px : { 20, 40, 60, 40, 20, 0 })
                    send(slider, QEvent::MouseMove, at + QPoint(px, 0));
                send(slider, QEvent::MouseButtonRelease, at);
            } };
}

} // namespace

Screen makeScreen()
{
    const int count = 10;
    const int columns = 2;
    Screen screen;
    screen.window = std::make_unique<QWidget>();
    auto *layout = new QGridLayout(screen.window.get());
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    for (int i = 0; i < count; ++i)
        layout->addWidget(makeSlider(), i / columns, i % columns, Qt::AlignCenter);
    screen.actions
        = { fullRepaint(screen.window.get()), drag(screen.window->findChildren<QSlider *>()) };
    return screen;
}

#ifdef HOXQ_BENCHMARK_STOCK

QString stockStyleSheet()
{
    QFile file(QStringLiteral(":/css/vexo-AAL.qs"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no sheet");
    return QString::fromUtf8(file.readAll()) + QStringLiteral("#mark { color: #a0a0a0; }");
}

#endif

} // namespace bench
