// SPDX-License-Identifier: MIT
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

using namespace vexo::hox::qt::panel;
using namespace vexo::hox::qt::ui;
using vexo::hox::qt::uitest::Finger;

namespace {

template <typename Button, typename... Arguments>
QAbstractButton *make(Arguments... arguments)
{
    return new Button(nullptr, arguments...);
}

QAbstractButton *button(int kind)
{
    using Row = VexoFunctionButton;
    QAbstractButton *(*const makers[])()
        = { [] { return make<Row>(Row::ActionType); }, [] { return make<Row>(Row::CheckboxType); },
              make<VexoIconButton>, make<VexoPushButton>, make<VexoCheckBox> };
    return makers[kind % 5]();
}

/// A long list of all kinds of buttons, with sliders between them.
struct List
{
    List()
    {
        window.resize(ScalingInfo::inst()->mm2px(QSizeF(60, 45)).toSize());
        area.resize(window.size());
        auto *content = new VexoVerticalScrollContent;
        for (int i = 0; i < 30; ++i) {
            buttons.append(button(i));
            buttons.last()->setMinimumSize(ScalingInfo::inst()->mm2px(QSizeF(9, 9)).toSize());
            content->layout()->addWidget(buttons.last());
            QObject::connect(
                buttons.last(), &QAbstractButton::clicked, &window, [this] { ++clicked; });
            if (i % 5 == 4)
                content->layout()->addWidget(new VexoSlider(Qt::Horizontal));
        }
        area.setWidget(content);
        window.show();
    }

    /// Scrolled into view, when the list stands still.
    QAbstractButton *shown(int index)
    {
        for (int i = 0; i < 100 && area.getScroller()->state() != QScroller::Inactive; ++i)
            virtualclock::pass(50);
        area.ensureWidgetVisible(buttons.at(index), 0, buttons.at(index)->height());
        virtualclock::pass(20);
        return buttons.at(index);
    }

    QWidget window;
    VexoVerticalScrollArea area{ &window };
    QVector<QAbstractButton *> buttons;
    int clicked = 0;
};

} // namespace

class TestNoisyFinger : public VirtualTimeTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void tapsAndSlidesAreWhatTheyAre_data();
    void tapsAndSlidesAreWhatTheyAre();
};

void TestNoisyFinger::tapsAndSlidesAreWhatTheyAre_data()
{
    QTest::addColumn<QSizeF>("px_per_mm");
    QTest::newRow("4 px/mm") << QSizeF(4, 4);
    QTest::newRow("6 x 5 px/mm") << QSizeF(6, 5);
    QTest::newRow("12 px/mm") << QSizeF(12, 12);
}

// As a trembling finger on a panel that bounces: each tap clicks once, no slide clicks.
// HOXQ_NOISY_TOUCHES makes it longer, HOXQ_NOISY_SEED other.
void TestNoisyFinger::tapsAndSlidesAreWhatTheyAre()
{
    QFETCH(QSizeF, px_per_mm);
    const int touches = asked("HOXQ_NOISY_TOUCHES", 150);
    PanelOptions options;
    options.px = QSize(1000, 1000);
    options.mm = QSizeF(1000 / px_per_mm.width(), 1000 / px_per_mm.height());
    Panel::setUp(*qApp, options);
    List list;
    QVERIFY(QTest::qWaitForWindowExposed(&list.window));
    const auto seed = quint32(asked("HOXQ_NOISY_SEED", 0));
    Finger finger(&list.window, seed + 1);
    finger.setJitter(0.5).setBounce(30).setWiggle(1);
    QRandomGenerator random(seed + 2);
    for (int i = 0; i < touches; ++i) {
        const int index = random.bounded(list.buttons.size());
        QAbstractButton *target = list.shown(index);
        const int before = list.clicked;
        const bool is_tap = random.bounded(2) != 0;
        const QPointF ways_mm[] = { { 0, 9 }, { 0, -9 }, { 9, 0 }, { -9, 0 } };
        if (is_tap)
            finger.tap(target);
        else
            finger.slide(
                target, QPointF(6, 4), ways_mm[random.bounded(4)], 60 + random.bounded(400));
        virtualclock::pass(60);
        const QString what = QString("touch %1, a %2 of %3 %4 (%5)")
                                 .arg(i)
                                 .arg(QLatin1String(is_tap ? "tap" : "slide"),
                                     QLatin1String(target->metaObject()->className()))
                                 .arg(index)
                                 .arg(finger.lastProblem());
        QVERIFY2(list.clicked - before == is_tap, qPrintable(what));
        QVERIFY2(!target->isDown(), qPrintable(what));
    }
}

QTEST_MAIN(TestNoisyFinger)
#include "tst_noisyfinger.moc"
