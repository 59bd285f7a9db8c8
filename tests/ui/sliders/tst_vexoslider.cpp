// SPDX-License-Identifier: MIT
#include "support/testcase.h"
#include "support/touch.h"

#include <VexoSlider>

#include <QAbstractEventDispatcher>
#include <QAccessible>
#include <QStyleOptionSlider>

#include <limits>

using namespace vexo::hox::qt::ui;

namespace {

using Numbers = QVector<int>;
using Types = QVector<QEvent::Type>;

/// Its handle is where a touch() without a way is.
struct Slider : VexoSlider
{
    explicit Slider(const Numbers &minimum_maximum_step_value = { 0, 99, 1, 3 })
        : VexoSlider(Qt::Horizontal)
    {
        setFixedSize(400, 40);
        setMinimum(minimum_maximum_step_value[0]);
        setMaximum(minimum_maximum_step_value[1]);
        setTickInterval(minimum_maximum_step_value[2]);
        setValue(minimum_maximum_step_value[3]);
        finishSliderConfiguration();
        const auto note = [this](QMouseEvent *event) { forwarded += event->type(); };
        connect(this, &VexoSlider::forwardPressEvent, this, note);
        connect(this, &VexoSlider::forwardMoveEvent, this, note);
        connect(this, &VexoSlider::forwardReleaseEvent, this, note);
    }

    Types forwarded;
};

} // namespace

class TestVexoSlider : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void movesInSteps_data();
    void movesInSteps();
    void onlyTheHandleMoves();
    void dragThatIsTakenBackSetsNothing();
    void assistiveTechnologySeesRealValues();
    void mayBeDeletedInADrag();
};

void TestVexoSlider::movesInSteps_data()
{
    const int lowest = std::numeric_limits<int>::min();
    const int highest = std::numeric_limits<int>::max();
    QTest::addColumn<Numbers>("given"); // minimum, maximum, step, value
    QTest::addColumn<Numbers>("raw"); // minimum, maximum, value
    QTest::addColumn<int>("told"); // for one further
    QTest::newRow("steps of 10") << Numbers{ 20, 80, 10, 50 } << Numbers{ 0, 6, 3 } << 60;
    QTest::newRow("last part is lost") << Numbers{ 0, 10, 3, 8 } << Numbers{ 0, 3, 2 } << 9;
    QTest::newRow("step 1") << Numbers{ -5, 5, 1, 2 } << Numbers{ -5, 5, 2 } << 3;
    QTest::newRow("step 0") << Numbers{ 5, 9, 0, 6 } << Numbers{ 5, 9, 6 } << 7;
    QTest::newRow("saturates") << Numbers{ lowest, highest, 2, lowest } << Numbers{ 0, highest, 0 }
                               << lowest + 2;
}

void TestVexoSlider::movesInSteps()
{
    QFETCH(Numbers, given);
    QFETCH(Numbers, raw);
    Slider slider(given);
    QCOMPARE((Numbers{ slider.minimum(), slider.maximum(), slider.value() }), raw);
    int told = 0;
    connect(&slider, &VexoSlider::valueChanged, this, [&](int value) { told = value; });
    slider.setRawValue(raw[2] + 1);
    QTEST(told, "told");
    slider.finishSliderConfiguration(); // back to what was set
    QCOMPARE(slider.value(), raw[2]);
}

void TestVexoSlider::onlyTheHandleMoves()
{
    Slider slider({ 0, 100, 50, 0 });
    const QSignalSpy values(&slider, &VexoSlider::valueChanged);
    finger(&slider, QEvent::MouseButtonPress, QPoint(300, 20));
    // The toolkit would page on until a release that it does not get.
    QVERIFY(QAbstractEventDispatcher::instance()->registeredTimers(&slider).isEmpty());
    finger(&slider, QEvent::MouseMove, QPoint(5, 20)); // over the handle
    finger(&slider, QEvent::MouseMove, QPoint(399, 20));
    finger(&slider, QEvent::MouseButtonRelease, QPoint(399, 20));
    QCOMPARE(slider.forwarded,
        (Types{ QEvent::MouseButtonPress, QEvent::MouseMove, QEvent::MouseMove,
            QEvent::MouseButtonRelease }));
    QCOMPARE(values.size(), 0);
    touch(&slider, { { 5, 20 }, { 399, 20 }, { 399, -90 }, { 210, 20 } });
    QCOMPARE(slider.forwarded.size(), 4);
    QCOMPARE(values, (QList<QVariantList>{ { 100 }, { 50 } }));
}

void TestVexoSlider::dragThatIsTakenBackSetsNothing()
{
    Slider slider({ 0, 100, 1, 0 });
    slider.setTracking(false);
    const QSignalSpy values(&slider, &VexoSlider::valueChanged);
    const QSignalSpy releases(&slider, &QAbstractSlider::sliderReleased);
    touch(&slider, { { 5, 20 }, { 300, 20 } });
    QCOMPARE(values.size(), 1);
    const int set = slider.value();
    finger(&slider, QEvent::MouseButtonPress, QPoint(300, 20));
    finger(&slider, QEvent::MouseMove, QPoint(100, 20));
    QVERIFY(slider.sliderPosition() < set);
    slider.setEnabled(false);
    QCOMPARE(values.size(), 1);
    QCOMPARE(releases.size(), 2); // who saw it grabbed sees it let go
    QCOMPARE(slider.sliderPosition(), set);
    QCOMPARE(slider.value(), set);
}

void TestVexoSlider::assistiveTechnologySeesRealValues()
{
    Slider slider({ 20, 80, 10, 50 });
    slider.setAccessibleName("Volume");
    QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(&slider);
    QCOMPARE(seen->role(), QAccessible::Slider);
    QCOMPARE(seen->text(QAccessible::Name) + seen->text(QAccessible::Value), "Volume50");
    QAccessibleValueInterface *value = seen->valueInterface();
    QCOMPARE((Numbers{ value->minimumValue().toInt(), value->maximumValue().toInt(),
                 value->minimumStepSize().toInt() }),
        (Numbers{ 20, 80, 10 }));
    value->setCurrentValue(70);
    QCOMPARE(slider.value(), 5);
}

void TestVexoSlider::mayBeDeletedInADrag()
{
    QVERIFY(isGoneAfter(&VexoSlider::valueChanged, new Slider, { { 20, 15 }, { 300, 20 } }));
    QVERIFY(isGoneAfter(&VexoSlider::forwardMoveEvent, new Slider, { { 300, 20 }, { 310, 20 } }));
}

QTEST_MAIN(TestVexoSlider)
#include "tst_vexoslider.moc"
