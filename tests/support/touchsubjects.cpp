// SPDX-License-Identifier: MIT
#include "support/touchsubjects.h"

#include <ActiveButton>
#include <ActiveVectorButton>
#include <MeasuredPushButton>
#include <VexoCenteredVectorButton>
#include <VexoCheckBox>
#include <VexoDesignVectorButton>
#include <VexoFunctionButton>
#include <VexoHorizontalTextIconButton>
#include <VexoIconButton>
#include <VexoKeyboardButton>
#include <VexoLineEdit>
#include <VexoNumericButton>
#include <VexoPushButton>
#include <VexoRadioButton>
#include <VexoSlider>
#include <VexoVerticalButtonScrollArea>
#include <VideoCapturePanning>

#include <QTest>

using namespace vexo::hox::qt::ui;

namespace {

using Row = VexoFunctionButton;

const char *const MEASURED = "pressed; released; clicked; pressedDelayed; keyPressHandling";

template <typename Button>
QWidget *make()
{
    auto *button = new Button;
    button->setFixedSize(160, 50);
    return button;
}

template <typename Button>
QWidget *makePulsing()
{
    QWidget *button = make<Button>();
    auto *ticks = new QAction(button);
    auto *measured = static_cast<MeasuredPushButton *>(button);
    measured->pulse(50, ticks, SLOT(trigger()));
    measured->enablePulse(true);
    return button;
}

template <Row::VexoFunctionButtonType type>
QWidget *makeRow()
{
    auto *row = new Row(nullptr, type);
    row->setFixedSize(160, 50);
    return row;
}

QWidget *makeStepper()
{
    auto *stepper = new VexoNumericButton;
    stepper->setMaximum(1000000);
    stepper->setValue(500000);
    stepper->setFixedSize(240, 50);
    return stepper;
}

QWidget *makeFieldWithButton()
{
    auto *field = static_cast<VexoLineEdit *>(make<VexoLineEdit>());
    field->setMmTrailingIconSize(QSizeF(12, 12));
    field->enableTrailingButtonAction();
    return field;
}

// Its middle, which is touched, is the handle.
QWidget *makeSlider(int value)
{
    auto *slider = new VexoSlider(Qt::Horizontal);
    slider->setMaximum(100);
    slider->setValue(value);
    slider->finishSliderConfiguration();
    slider->setFixedSize(160, 50);
    return slider;
}

QWidget *makeTile()
{
    auto *tile = new VexoCenteredVectorButton;
    tile->getButtonInstance()->setFixedSize(80, 40);
    return tile;
}

QWidget *makeJumpBar()
{
    auto *bar = new VexoVerticalButtonScrollArea;
    bar->setFixedHeight(60 * 3);
    return bar;
}

QWidget *makePanning()
{
    auto *panning = new VideoCapturePanning;
    panning->setFixedSize(160, 50);
    return panning;
}

} // namespace

const std::vector<TouchSubject> &touchSubjects()
{
    static const std::vector<TouchSubject> subjects = {
        { "MeasuredPushButton", makePulsing<MeasuredPushButton>, "", MEASURED, "clicked(bool)" },
        { "ActiveButton", makePulsing<ActiveButton>, "", MEASURED, "clicked(bool)" },
        { "ActiveVectorButton", makePulsing<ActiveVectorButton>, "", MEASURED, "clicked(bool)" },
        { "VexoIconButton", makePulsing<VexoIconButton>, "", MEASURED, "clicked(bool)" },
        { "VexoDesignVectorButton", makePulsing<VexoDesignVectorButton>, "", MEASURED,
            "clicked(bool)" },
        { "VexoKeyboardButton", makePulsing<VexoKeyboardButton>, "", MEASURED, "clicked(bool)" },
        { "VexoPushButton", make<VexoPushButton>, "", "pressed; released; clicked",
            "clicked(bool)" },
        { "VexoHorizontalTextIconButton", make<VexoHorizontalTextIconButton>, "",
            "pressed; released; clicked", "clicked(bool)", "", false, true },
        { "VexoCheckBox", make<VexoCheckBox>, "", "pressed; clicked; toggled", "clicked(bool)" },
        { "VexoRadioButton", make<VexoRadioButton>, "", "pressed; clicked; toggled",
            "clicked(bool)" },
        { "check box row", makeRow<Row::CheckboxType>, "", "pressed; clicked", "clicked(bool)" },
        { "action row", makeRow<Row::ActionType>, "", "pressed; clicked", "clicked(bool)" },
        { "radio button row", makeRow<Row::RadiobuttonType>, "", "pressed; clicked",
            "clicked(bool)" },
        { "chosen row", makeRow<Row::FullsizeRadiobuttonType>, "",
            "pressed; clicked; toggled; stateChanged", "clicked(bool)" },
        { "tick row", makeRow<Row::TickAgreementType>, "vexoFunctionButtonWidgetRight",
            "pressed; released; clicked; toggled; pressedDelayed; keyPressHandling",
            "clicked(bool)" },
        { "VexoNumericButton", makeStepper, "increaseButton",
            "valueChanged; pressed; released; clicked; pressedDelayed; keyPressHandling",
            "valueChanged(int)" },
        { "VexoCenteredVectorButton", makeTile, "iconButton", MEASURED, "clicked(bool)" },
        { "VexoLineEdit", make<VexoLineEdit>, "", "textEditWanted", "textEditWanted(QString)", "",
            true },
        { "its trailing button", makeFieldWithButton, "trailingButton",
            "deleteButtonClick; pressed; released; clicked; pressedDelayed; keyPressHandling",
            "deleteButtonClick()" },
        { "handle of a VexoSlider", [] { return makeSlider(50); }, "",
            "sliderPressed; sliderReleased", "sliderReleased()", "sliderReleased" },
        { "VexoSlider beside its handle", [] { return makeSlider(0); }, "",
            "actionTriggered; forwardPressEvent; forwardReleaseEvent",
            "forwardReleaseEvent(QMouseEvent*)", "", true, true },
        { "letter of a jump bar", makeJumpBar, "letterButton", "pressed; released; clicked",
            "clicked(bool)", "", false, true },
        { "VideoCapturePanning", makePanning, "", "", "tap()", "", false, true },
    };
    return subjects;
}

void addTouchSubjects()
{
    QTest::addColumn<const TouchSubject *>("subject");
    for (const TouchSubject &subject : touchSubjects())
        QTest::addRow("%s", subject.name) << &subject;
}

TouchTarget::TouchTarget(const TouchSubject &of)
    : subject(&of)
    , whole(of.make())
    , touched(*of.part ? whole->findChild<QWidget *>(QLatin1String(of.part)) : whole)
    , ticks(whole->findChild<QAction *>({}, Qt::FindDirectChildrenOnly))
{
}
