// SPDX-License-Identifier: MIT
#include "support/testcase.h"
#include "support/virtualclock.h"

#include <Finger>
#include <Panel>
#include <ScalingInfo>
#include <VexoCheckBox>
#include <VexoFunctionButton>
#include <VexoIconButton>
#include <VexoPushButton>
#include <VexoSlider>
#include <VexoVerticalScrollArea>
#include <VexoVerticalScrollContent>

#include <QRandomGenerator>
#include <QScrollBar>
#include <QScroller>

using namespace vexo::hox::qt::ui;
using vexo::hox::qt::uitest::Finger;

namespace {

QAbstractButton *button(int kind)
{
    switch (kind) {
    case 0:
        return new VexoFunctionButton(nullptr, VexoFunctionButton::ActionType);
    case 1:
        return new VexoFunctionButton(nullptr, VexoFunctionButton::CheckboxType);
    case 2:
        return new VexoIconButton;
    case 3:
        return new VexoPushButton;
    default:
        return new VexoCheckBox;
    }
}

/// A long list of all kinds of buttons, with sliders between them.
class List
{
public:
    List()
    {
        window.resize(ScalingInfo::inst()->mm2px(QSizeF(60, 45)).toSize());
        area = new VexoVerticalScrollArea(&window);
        area->resize(window.size());
        auto *content = new VexoVerticalScrollContent;
        for (int i = 0; i < 30; ++i) {
            buttons.append(button(i % 5));
            buttons.last()->setMinimumSize(ScalingInfo::inst()->mm2px(QSizeF(9, 9)).toSize());
            content->layout()->addWidget(buttons.last());
            clicks.push_back(
                std::make_unique<QSignalSpy>(buttons.last(), &QAbstractButton::clicked));
            if (i % 5 == 4)
                content->layout()->addWidget(new VexoSlider(Qt::Horizontal));
        }
        area->setWidget(content);
    }

    /// Scrolled into view, when the list stands still.
    QAbstractButton *shown(int index)
    {
        for (int i = 0; i < 100 && QScroller::scroller(area)->state() != QScroller::Inactive; ++i)
            virtualclock::pass(50);
        area->ensureWidgetVisible(buttons.at(index), 0, buttons.at(index)->height());
        virtualclock::pass(20);
        return buttons.at(index);
    }

    int clicked() const
    {
        int sum = 0;
        for (const auto &spy : clicks)
            sum += spy->size();
        return sum;
    }

    QWidget window;
    VexoVerticalScrollArea *area = nullptr;
    QVector<QAbstractButton *> buttons;
    std::vector<std::unique_ptr<QSignalSpy>> clicks;
};

} // namespace

class TestNoisyFinger : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void tapsAndSlidesAreWhatTheyAre_data();
    void tapsAndSlidesAreWhatTheyAre();
};

void TestNoisyFinger::tapsAndSlidesAreWhatTheyAre_data()
{
    QTest::addColumn<double>("px_per_mm_x");
    QTest::addColumn<double>("px_per_mm_y");
    QTest::newRow("4 px/mm") << 4.0 << 4.0;
    QTest::newRow("6 x 5 px/mm") << 6.0 << 5.0;
    QTest::newRow("12 px/mm") << 12.0 << 12.0;
}

// As a trembling finger on a panel that bounces: each tap clicks once, no slide clicks.
// HOXQ_NOISY_TOUCHES makes it longer, HOXQ_NOISY_SEED other.
void TestNoisyFinger::tapsAndSlidesAreWhatTheyAre()
{
    QFETCH(double, px_per_mm_x);
    QFETCH(double, px_per_mm_y);
    const int touches = qMax(150, qEnvironmentVariableIntValue("HOXQ_NOISY_TOUCHES"));
    virtualclock::start();
    PanelOptions options;
    options.px = QSize(1000, 1000);
    options.mm = QSizeF(1000 / px_per_mm_x, 1000 / px_per_mm_y);
    Panel::setUp(*qApp, options);
    List list;
    list.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&list.window));
    const auto seed = quint32(qEnvironmentVariableIntValue("HOXQ_NOISY_SEED"));
    Finger finger(&list.window, seed + 1);
    finger.setJitter(0.5).setBounce(30).setWiggle(1);
    QRandomGenerator random(seed + 2);
    for (int i = 0; i < touches; ++i) {
        const int index = random.bounded(list.buttons.size());
        QAbstractButton *target = list.shown(index);
        const int before = list.clicked();
        const bool is_tap = random.bounded(2) != 0;
        const QPointF ways_mm[] = { { 0, 9 }, { 0, -9 }, { 9, 0 }, { -9, 0 } };
        if (is_tap)
            finger.tap(target);
        else
            finger.slide(
                target, QPointF(6, 4), ways_mm[random.bounded(4)], 60 + random.bounded(400));
        virtualclock::pass(60);
        const QString what = QStringLiteral("touch %1, a %2 of %3 %4 (%5)")
                                 .arg(i)
                                 .arg(QLatin1String(is_tap ? "tap" : "slide"),
                                     QLatin1String(target->metaObject()->className()))
                                 .arg(index)
                                 .arg(finger.lastProblem());
        QVERIFY2(list.clicked() - before == is_tap, qPrintable(what));
        QVERIFY2(!target->isDown(), qPrintable(what));
    }
}

QTEST_MAIN(TestNoisyFinger)
#include "tst_noisyfinger.moc"
