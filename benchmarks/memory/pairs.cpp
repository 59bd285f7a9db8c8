// SPDX-License-Identifier: MIT
#include "benchmarks/memory/pairs.h"

#include <ActiveButton>
#include <ActiveVectorButton>
#include <MeasuredPushButton>
#include <ScaleDisplayWidget>
#include <UpdateMainWindow>
#include <UpdatePage>
#include <VexoCenteredVectorButton>
#include <VexoCheckBox>
#include <VexoDesignVectorButton>
#include <VexoFunctionButton>
#include <VexoHorizontalLabelWidget>
#include <VexoHorizontalTextIconButton>
#include <VexoIconButton>
#include <VexoImageHeadline>
#include <VexoKeyboardButton>
#include <VexoLabel>
#include <VexoLabeledContainer>
#include <VexoLineEdit>
#include <VexoLineSpacer>
#include <VexoLogoLabel>
#include <VexoNumericButton>
#include <VexoPushButton>
#include <VexoRadioButton>
#include <VexoRuler>
#include <VexoSlider>
#include <VexoSliderDecoration>
#include <VexoTextEnumeration>
#include <VexoVerticalButtonScrollArea>
#include <VexoVerticalScrollArea>
#include <VexoVerticalScrollContent>
#include <VideoArea>
#include <VideoCapturePanning>

#include <QCheckBox>
#include <QCoreApplication>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPixmapCache>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QSlider>
#include <QSpinBox>
#include <QToolButton>
#include <QVBoxLayout>

#include <malloc.h>

using namespace vexo::hox::qt::ui;

namespace bench {

namespace {

const QString text = QStringLiteral("Language");

template <typename Widget>
QWidget *make(QWidget *parent)
{
    return new Widget(parent);
}

template <typename Widget>
QWidget *makeWithText(QWidget *parent)
{
    auto *widget = new Widget(parent);
    widget->setText(text);
    return widget;
}

template <typename... Child>
QWidget *makeBeside(QWidget *parent)
{
    auto *whole = new QWidget(parent);
    auto *layout = new QHBoxLayout(whole);
    (layout->addWidget(new Child), ...);
    return whole;
}

template <typename... Child>
QWidget *makeBelow(QWidget *parent)
{
    auto *whole = new QWidget(parent);
    auto *layout = new QVBoxLayout(whole);
    (layout->addWidget(new Child), ...);
    return whole;
}

QWidget *makeScale(QWidget *parent)
{
    return new ScaleDisplayWidget(Qt::Horizontal, 56, parent);
}

QWidget *makeLine(QWidget *parent)
{
    auto *line = new QFrame(parent);
    line->setFrameShape(QFrame::HLine);
    return line;
}

QWidget *makeUpdateWindow(QWidget *parent)
{
    auto *window = new QMainWindow(parent);
    window->setCentralWidget(makeBelow<QLabel, QLabel, QLabel>(window));
    return window;
}

QWidget *makeColored(QWidget *parent)
{
    QWidget *labels = makeBeside<QLabel, QLabel>(parent);
    for (QLabel *label : labels->findChildren<QLabel *>())
        label->setStyleSheet(QStringLiteral("QLabel { color: #3c3c3c; background: #ebebeb; }"));
    return labels;
}

QWidget *makePicture(QWidget *parent)
{
    auto *label = new QLabel(parent);
    QPixmap picture(150, 40);
    picture.fill(Qt::transparent);
    label->setPixmap(picture);
    return label;
}

QWidget *makeJumpBar(QWidget *parent)
{
    auto *area = new QScrollArea(parent);
    auto *bar = new QVBoxLayout(area);
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        auto *button = new QToolButton;
        button->setText(QChar::fromLatin1(letter));
        bar->addWidget(button);
    }
    return area;
}

QWidget *makeTick(QWidget *parent)
{
    auto *button = new QPushButton(text, parent);
    button->setIcon(QIcon(QStringLiteral(":/widgetimages/back.svg")));
    return button;
}

} // namespace

const std::vector<Pair> &pairs()
{
    static const std::vector<Pair> pairs = {
        { "ActiveButton", make<ActiveButton>, make<QToolButton> },
        { "ActiveVectorButton", make<ActiveVectorButton>, make<QToolButton> },
        { "MeasuredPushButton", make<MeasuredPushButton>, make<QToolButton> },
        { "ScaleDisplayWidget", makeScale, make<QLabel> },
        { "UpdateMainWindow", make<UpdateMainWindow>, makeUpdateWindow },
        { "UpdatePage", make<UpdatePage>, makeBelow<QLabel, QLabel, QLabel> },
        { "VexoCenteredVectorButton", make<VexoCenteredVectorButton>, make<QToolButton> },
        { "VexoCheckBox", makeWithText<VexoCheckBox>, makeWithText<QCheckBox> },
        { "VexoDesignVectorButton", make<VexoDesignVectorButton>, make<QToolButton> },
        { "VexoFunctionButton", makeWithText<VexoFunctionButton>, makeWithText<QPushButton> },
        { "VexoHorizontalLabelWidget", make<VexoHorizontalLabelWidget>, makeColored },
        { "VexoHorizontalTextIconButton", make<VexoHorizontalTextIconButton>, makeTick },
        { "VexoIconButton", make<VexoIconButton>, make<QToolButton> },
        { "VexoImageHeadline", makeWithText<VexoImageHeadline>, makeBeside<QLabel, QLabel> },
        { "VexoKeyboardButton", makeWithText<VexoKeyboardButton>, makeWithText<QToolButton> },
        { "VexoLabel", makeWithText<VexoLabel>, makeWithText<QLabel> },
        { "VexoLabeledContainer", make<VexoLabeledContainer>, makeBelow<QLabel> },
        { "VexoLineEdit", makeWithText<VexoLineEdit>, makeWithText<QLineEdit> },
        { "VexoLineSpacer", make<VexoLineSpacer>, makeLine },
        { "VexoLogoLabel", make<VexoLogoLabel>, makePicture },
        { "VexoNumericButton", make<VexoNumericButton>, make<QSpinBox> },
        { "VexoPushButton", makeWithText<VexoPushButton>, makeWithText<QPushButton> },
        { "VexoRadioButton", makeWithText<VexoRadioButton>, makeWithText<QRadioButton> },
        { "VexoRuler", make<VexoRuler>, makeLine },
        { "VexoSlider", make<VexoSlider>, make<QSlider> },
        { "VexoSliderDecoration", make<VexoSliderDecoration>, makeBeside<QLabel, QSlider, QLabel> },
        { "VexoTextEnumeration", make<VexoTextEnumeration>, makeColored },
        { "VexoVerticalButtonScrollArea", make<VexoVerticalButtonScrollArea>, makeJumpBar },
        { "VexoVerticalScrollArea", make<VexoVerticalScrollArea>, make<QScrollArea> },
        { "VexoVerticalScrollContent", make<VexoVerticalScrollContent>, makeBelow<> },
        { "VideoArea", make<VideoArea>, make<QWidget> },
        { "VideoCapturePanning", make<VideoCapturePanning>, make<QScrollArea> },
    };
    return pairs;
}

namespace {

double heap()
{
    QPixmapCache::clear();
    const struct mallinfo2 all = mallinfo2();
    return double(all.uordblks) + double(all.hblkhd);
}

void show(QWidget *window, Make make, int count)
{
    for (int i = 0; i < count; ++i) {
        QWidget *widget = make(window);
        widget->setWindowFlags(Qt::Widget);
        widget->move(7 * i, 3 * i);
        widget->show();
    }
    QCoreApplication::processEvents();
    window->grab();
}

} // namespace

double keptBytes(Make make)
{
    const int count = 50;
    QWidget window;
    window.resize(800, 600);
    window.show();
    show(&window, make, count); // what all of them share
    const double before = heap();
    show(&window, make, count);
    return (heap() - before) / count;
}

} // namespace bench
