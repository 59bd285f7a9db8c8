// SPDX-License-Identifier: MIT
#include "support/iconfiles.h"
#include "support/paintcounter.h"
#include "support/panelscale.h"
#include "support/testcase.h"
#include "support/touch.h"

#include <CachedVectorIcon>
#include <VexoIconButton>
#include <VexoNumericButton>

#include <QMouseEvent>
#include <QTimer>

#include <limits>

using namespace vexo::hox::qt::ui;

namespace {

using Numbers = QVector<int>;

/// A stepper, its parts and what it has told.
struct Stepper
{
    explicit Stepper(const Numbers &minimum_maximum_step_value = { 0, 10, 1, 8 })
    {
        soon.setSingleShot(true);
        widget->setMinimum(minimum_maximum_step_value[0]);
        widget->setMaximum(minimum_maximum_step_value[1]);
        widget->setStepSize(minimum_maximum_step_value[2]);
        QObject::connect(widget, &VexoNumericButton::valueChanged, &window,
            [this](int value) { told += value; });
        widget->setValue(minimum_maximum_step_value[3]);
    }
    /// What two touches of \a button told.
    Numbers twice(QWidget *button)
    {
        touch(button);
        touch(button);
        return told;
    }

    QWidget window;
    QTimer soon; // fires with the next events once it is started
    Numbers told;
    QPointer<VexoNumericButton> widget = new VexoNumericButton(&window);
    QLabel *label = widget->findChild<QLabel *>("numberLabel");
    QAbstractButton *minus = widget->findChild<QAbstractButton *>("decreaseButton");
    QAbstractButton *plus = widget->findChild<QAbstractButton *>("increaseButton");
};

} // namespace

class TestVexoNumericButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void queuedPressesDoNotNest();
    void stepsWithinItsLimits_data();
    void stepsWithinItsLimits();
    void limitsActWithTheNextValue();
    void anythingMayHappenMeanwhile_data();
    void anythingMayHappenMeanwhile();
    void partsArePlacedInMillimetres();
};

void TestVexoNumericButton::stepsWithinItsLimits_data()
{
    const int lowest = std::numeric_limits<int>::min();
    const int highest = std::numeric_limits<int>::max();
    QTest::addColumn<Numbers>("given"); // minimum, maximum, step, value
    QTest::addColumn<int>("shown");
    QTest::addColumn<Numbers>("up"); // told at two presses
    QTest::addColumn<Numbers>("down");
    QTest::newRow("between") << Numbers{ 0, 10, 3, 5 } << 5 << Numbers{ 8, 10 } << Numbers{ 2, 0 };
    QTest::newRow("below") << Numbers{ 0, 1, 1, -5 } << 0 << Numbers{ 1 } << Numbers{};
    QTest::newRow("above") << Numbers{ 0, 10, 3, 11 } << 10 << Numbers{} << Numbers{ 7, 4 };
    QTest::newRow("crossed, high") << Numbers{ 10, 0, 1, 5 } << 0 << Numbers{} << Numbers{};
    QTest::newRow("crossed, low") << Numbers{ 10, 0, 1, -5 } << 10 << Numbers{} << Numbers{};
    QTest::newRow("saturates") << Numbers{ lowest, highest, highest, 5 } << 5 << Numbers{ highest }
                               << Numbers{ 5 - highest, lowest };
}

void TestVexoNumericButton::stepsWithinItsLimits()
{
    QFETCH(Numbers, given);
    QFETCH(Numbers, up);
    QFETCH(Numbers, down);
    Stepper stepper(given);
    QTEST(stepper.widget->value(), "shown");
    QCOMPARE(stepper.label->text(), QString::number(stepper.widget->value()));
    QCOMPARE(stepper.plus->isEnabled(), !up.isEmpty());
    QCOMPARE(stepper.minus->isEnabled(), !down.isEmpty());
    QCOMPARE(stepper.twice(stepper.plus), up);
    Stepper other(given);
    QCOMPARE(other.twice(other.minus), down);
}

void TestVexoNumericButton::limitsActWithTheNextValue()
{
    Stepper stepper;
    PaintCounter paints;
    paints.watch(stepper.widget);
    paints.watch(stepper.label);
    stepper.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&stepper.window));
    paints.take(stepper.label);
    paints.take(stepper.widget);
    stepper.widget->setMaximum(5);
    stepper.widget->setMinimum(2);
    QCOMPARE(paints.take(stepper.widget), 0);
    QVERIFY(stepper.plus->isEnabled());
    int painted = 0; // before anything else happens
    connect(
        stepper.minus, &QAbstractButton::pressed, this,
        [&] { painted = paints.taken(stepper.label); }, Qt::QueuedConnection);
    touch(stepper.minus); // 7 is beyond the new maximum
    QCOMPARE(painted, 1);
    QCOMPARE(stepper.told, Numbers{ 5 });
    QVERIFY(!stepper.plus->isEnabled());
}

void TestVexoNumericButton::anythingMayHappenMeanwhile_data()
{
    QTest::addColumn<Numbers>("told");
    QTest::newRow("deletion") << Numbers{};
    QTest::newRow("second press") << Numbers{ 10, 10 };
    QTest::newRow("other value") << Numbers{ 3 };
    QTest::newRow("deletion in valueChanged") << Numbers{ 9 };
}

void TestVexoNumericButton::anythingMayHappenMeanwhile()
{
    const QByteArray event(QTest::currentDataTag());
    Stepper stepper;
    const auto happen = [&] {
        if (event == "second press")
            touch(stepper.plus);
        else if (event == "other value")
            stepper.widget->setValue(3);
        else
            delete stepper.widget;
    };
    if (event == "deletion in valueChanged")
        connect(stepper.widget, &VexoNumericButton::valueChanged, this, happen);
    else
        connect(&stepper.soon, &QTimer::timeout, this, happen);
    stepper.soon.start();
    touch(stepper.plus);
    QCOMPARE(!stepper.widget, event.startsWith("deletion"));
    QTEST(stepper.told, "told");
}

void TestVexoNumericButton::partsArePlacedInMillimetres()
{
    const PanelScale scale(10, 20);
    const Stepper stepper;
    stepper.widget->resize(900, 300);
    stepper.widget->setTextColor(Qt::red);
    const QRect number = boxOf(stepper.widget->grab().toImage(), Qt::red);
    QVERIFY(qAbs(number.center().x() - 450) < 4);
    QCOMPARE(stepper.minus->geometry().left(), 180);
    QCOMPARE(stepper.minus->width(), 70);
    QCOMPARE(stepper.plus->geometry().right(), 900 - 180 - 1);
    stepper.widget->setEdgeInMm(-1);
    stepper.widget->setEdgeInMm(2.5);
    stepper.widget->setEdgeInMm(qQNaN());
    stepper.widget->grab();
    QCOMPARE(stepper.minus->geometry().left(), 25);
    QCOMPARE(stepper.plus->geometry().right(), 900 - 25 - 1);
    stepper.widget->setEdgeInMm(18);
    stepper.widget->grab();
    QCOMPARE(stepper.label->font().pixelSize(), 91); // 13 pt = 91.7 px
    QCOMPARE(stepper.label->font().weight(), 57);
    for (QAbstractButton *button : { stepper.minus, stepper.plus }) {
        const QString file = ":/widgetimages/Icons_Round_Small/RoundButton_S_%1_%2.svg";
        const QLatin1String sign(button == stepper.plus ? "Plus" : "Minus");
        for (const char *state : { "Active", "Pressed", "Inactive" }) {
            button->setEnabled(*state != 'I');
            button->setDown(*state == 'P');
            button->grab();
            CachedVectorIcon icon(file.arg(sign, QLatin1String(state)), QSizeF(0, 6));
            QCOMPARE(button->icon().pixmap(999).toImage(), icon.toPixmap().toImage());
        }
    }
}

// Each comes while the one before lets events happen.
void TestVexoNumericButton::queuedPressesDoNotNest()
{
    QWidget window;
    VexoNumericButton stepper(&window);
    stepper.setMaximum(1000);
    stepper.resize(500, 100);
    window.resize(500, 100);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    auto *plus = stepper.findChild<QAbstractButton *>("increaseButton");
    const int presses = 100;
    quintptr deepest = std::numeric_limits<quintptr>::max();
    const auto start = reinterpret_cast<quintptr>(__builtin_frame_address(0));
    connect(plus, &QAbstractButton::pressed,
        [&] { deepest = qMin(deepest, reinterpret_cast<quintptr>(__builtin_frame_address(0))); });
    Numbers told;
    connect(&stepper, &VexoNumericButton::valueChanged, [&](int value) { told += value; });
    for (int i = 0; i < presses; ++i) {
        for (const auto type : { QEvent::MouseButtonPress, QEvent::MouseButtonRelease })
            QCoreApplication::postEvent(plus,
                new QMouseEvent(type, plus->rect().center(), Qt::LeftButton,
                    type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                    Qt::NoModifier));
    }
    QTRY_COMPARE(stepper.value(), presses);
    QTRY_COMPARE(told.size(), presses);
    const int most = 100000; // bytes; one press takes some thousands
    QVERIFY2(start - deepest < most, QByteArray::number(qulonglong(start - deepest)));
}

QTEST_MAIN(TestVexoNumericButton)
#include "tst_vexonumericbutton.moc"
