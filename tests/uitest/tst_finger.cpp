// SPDX-License-Identifier: MIT
#include "support/panelscale.h"
#include "support/testcase.h"

#include <Finger>
#include <MeasuredPushButton>
#include <VexoFunctionButton>
#include <VexoVerticalScrollArea>
#include <VexoVerticalScrollContent>

#include <QDialog>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include <cmath>

using namespace vexo::hox::qt::ui;
using vexo::hox::qt::uitest::Finger;

namespace {

using Touch = std::function<void(Finger &, QWidget *)>;

/// Notes what a finger does to it.
class Pad : public QWidget
{
public:
    using QWidget::QWidget;

    QVector<QPointF> path; // px; reported places, of the last touch
    QByteArray kinds; // p press, d double press, r release
    QVector<ulong> times_ms; // of the kinds

protected:
    bool event(QEvent *event) override
    {
        static const QHash<int, char> letters = { { QEvent::MouseButtonPress, 'p' },
            { QEvent::MouseButtonDblClick, 'd' }, { QEvent::MouseButtonRelease, 'r' } };
        const char letter = letters.value(event->type());
        if (!letter && event->type() != QEvent::MouseMove)
            return QWidget::event(event);
        const auto *mouse = static_cast<QMouseEvent *>(event);
        if (letter == 'p')
            path.clear();
        path.append(mouse->localPos());
        if (letter) {
            kinds.append(letter);
            times_ms.append(mouse->timestamp());
        }
        return true;
    }
};

/// A window of 400 x 300 px with a pad.
struct PadScreen : QWidget
{
    explicit PadScreen(const QRect &place = QRect(0, 0, 400, 300))
    {
        resize(400, 300);
        pad.setGeometry(place);
        show();
        is_exposed = QTest::qWaitForWindowExposed(this);
    }

    Pad pad{ this };
    bool is_exposed = false;
};

} // namespace

Q_DECLARE_METATYPE(Touch)

class TestFinger : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void touchesWhereItIsTold_data();
    void touchesWhereItIsTold();
    void twoTapsAreTwoAndABounceIsADoubleOne();
    void errsAsMuchAsItIsTold();
    void holdsForARealTime();
    void dragsAndFlicksAList();
    void saysWhyATargetIsOutOfReach();
    void survivesItsTargets();
};

void TestFinger::touchesWhereItIsTold_data()
{
    QTest::addColumn<Touch>("touch");
    QTest::addColumn<QPointF>("from"); // px, at 10 x 5 px/mm
    QTest::addColumn<QPointF>("to");
    const auto row = [](const char *name, const Touch &touch, const QPointF &from,
                         const QPointF &to) { QTest::newRow(name) << touch << from << to; };
    const QPointF middle(100, 50);
    const auto off
        = [](Qt::Edge edge) { return [edge](Finger &f, QWidget *w) { f.slideOff(w, edge, 2); }; };
    row(
        "tap", [](Finger &f, QWidget *w) { f.tap(w); }, middle, middle);
    row("tap at", [](Finger &f, QWidget *w) { f.tap(w, { 2, 4 }); }, { 20, 20 }, { 20, 20 });
    row("slide",
        [](Finger &f, QWidget *w) {
            f.slide(w, { 1, 1 }, { 5, -1 }, 200);
        },
        { 10, 5 }, { 60, 0 });
    row("flick", [](Finger &f, QWidget *w) { f.flick(w, { 0, 5 }, 50); }, middle, { 100, 75 });
    row("off the left edge", off(Qt::LeftEdge), middle, { -20, 50 });
    row("off the right edge", off(Qt::RightEdge), middle, { 220, 50 });
    row("off the top edge", off(Qt::TopEdge), middle, { 100, -10 });
    row("off the bottom edge", off(Qt::BottomEdge), middle, { 100, 110 });
}

void TestFinger::touchesWhereItIsTold()
{
    QFETCH(Touch, touch);
    const PanelScale scale(10, 5);
    PadScreen screen(QRect(50, 60, 200, 100));
    QVERIFY(screen.is_exposed);
    Finger finger(&screen);
    touch(finger, &screen.pad);
    QCOMPARE(finger.lastProblem(), QString());
    QCOMPARE(screen.pad.kinds, QByteArray("pr"));
    QTEST(screen.pad.path.first(), "from");
    QTEST(screen.pad.path.last(), "to");
}

void TestFinger::twoTapsAreTwoAndABounceIsADoubleOne()
{
    PadScreen screen;
    Pad &pad = screen.pad;
    Finger finger(&screen);
    finger.tap(&pad);
    finger.tap(&pad);
    QCOMPARE(pad.kinds, QByteArray("prpr"));
    QVERIFY(pad.times_ms.at(1) - pad.times_ms.at(0) == 80);
    pad.times_ms.clear();
    finger.setBounce(30).tap(&pad);
    QCOMPARE(pad.kinds, QByteArray("prprprdr"));
    QVERIFY(pad.times_ms.at(2) - pad.times_ms.at(1) == 30);
}

void TestFinger::errsAsMuchAsItIsTold()
{
    const PanelScale scale(10, 5);
    PadScreen screen;
    const auto errors = [&](Finger finger) {
        QVector<QPointF> mm;
        for (int i = 0; i < 40; ++i) {
            finger.tap(&screen.pad);
            for (const QPointF &px : qAsConst(screen.pad.path))
                mm.append(QPointF((px.x() - 200) / 10, (px.y() - 150) / 5));
        }
        return mm;
    };
    const QVector<QPointF> jitter = errors(Finger(&screen, 7).setJitter(1));
    QVERIFY(jitter == errors(Finger(&screen, 7).setJitter(1)));
    QVERIFY(jitter != errors(Finger(&screen, 8).setJitter(1)));
    double squares[2] = { 0, 0 };
    double farthest = 0;
    for (const QPointF &mm : jitter) {
        squares[0] += mm.x() * mm.x() / jitter.size();
        squares[1] += mm.y() * mm.y() / jitter.size();
        farthest = qMax(farthest, std::hypot(mm.x(), mm.y()));
    }
    for (const double square : squares)
        QVERIFY2(square > 0.5 && square < 1, qPrintable(QString::number(square)));
    QVERIFY2(farthest > 1.5 && farthest < 2 + 0.12, qPrintable(QString::number(farthest)));
    for (const QPointF &mm : errors(Finger(&screen).setWiggle(1)))
        QVERIFY(std::hypot(mm.x(), mm.y()) < 1 + 0.12);
    QVERIFY(errors(Finger(&screen).setWiggle(qQNaN()).setJitter(-1)).size() == 2 * 40);
}

void TestFinger::holdsForARealTime()
{
    QWidget window;
    window.resize(200, 200);
    MeasuredPushButton button(&window);
    button.resize(200, 200);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QSignalSpy keys(&button, &MeasuredPushButton::keyPressHandling);
    Finger finger(&window);
    finger.tap(&button);
    finger.hold(&button, 400);
    QCOMPARE(keys.size(), 3);
    QCOMPARE(keys.at(0).mid(1), QVariantList({ true, false })); // a short one
    QCOMPARE(keys.at(1).mid(1), QVariantList({ false, true })); // a long one
    QCOMPARE(keys.at(2).mid(1), QVariantList({ false, false })); // and its end
}

void TestFinger::dragsAndFlicksAList()
{
    const PanelScale scale(5, 5);
    QWidget window;
    window.resize(300, 300);
    auto *list = new VexoVerticalScrollArea(&window);
    list->resize(300, 300);
    auto *content = new VexoVerticalScrollContent;
    QVector<VexoFunctionButton *> rows;
    for (int i = 0; i < 60; ++i) {
        rows.append(new VexoFunctionButton(content, VexoFunctionButton::ActionType));
        content->layout()->addWidget(rows.last());
    }
    list->setWidget(content);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QSignalSpy clicks(rows.at(1), &QAbstractButton::clicked);
    Finger finger(&window);
    const QScrollBar *bar = list->verticalScrollBar();
    finger.slide(rows.at(1), QPointF(5, 2), QPointF(0, -20), 300);
    const int way = bar->value();
    QVERIFY2(way > 50 && way <= 100, qPrintable(QString::number(way))); // px; less what a tap may
    QCOMPARE(list->getScroller()->velocity(), QPointF()); // it rested
    finger.flick(rows.at(4), QPointF(0, -10), 50);
    QCOMPARE(finger.lastProblem(), QString());
    const int flung_from = bar->value();
    QTRY_VERIFY(bar->value() > flung_from + 50);
    QCOMPARE(clicks.size(), 0);
}

void TestFinger::saysWhyATargetIsOutOfReach()
{
    QWidget window;
    window.setObjectName("screen");
    window.resize(200, 200);
    QPushButton button("OK", &window);
    button.setGeometry(10, 10, 50, 50);
    QPushButton later("later", &window);
    later.setGeometry(180, 180, 50, 50); // its centre is outside
    QPushButton stranger("elsewhere");
    Finger finger(&window);
    const auto problem = [&](QWidget *target) {
        finger.tap(target);
        return finger.lastProblem();
    };
    QCOMPARE(problem(&button), QString("there is no window on the screen"));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(problem(nullptr), QString("there is no target"));
    QCOMPARE(problem(&later), QString("QPushButton \"later\" lies outside of QWidget \"screen\""));
    later.hide();
    QCOMPARE(
        problem(&later), QString("QPushButton \"later\" is not visible in QWidget \"screen\""));
    QVERIFY(problem(&stranger).endsWith("is no part of QWidget \"screen\""));

    QWidget notice(&window);
    notice.setObjectName("notice");
    notice.setGeometry(0, 0, 100, 100);
    notice.show();
    const QSignalSpy clicks(&button, &QPushButton::clicked);
    QCOMPARE(problem(&button), QString("QPushButton \"OK\" is covered by QWidget \"notice\""));
    notice.setAttribute(Qt::WA_TransparentForMouseEvents);
    QCOMPARE(problem(&button), QString());
    QDialog dialog(&window);
    dialog.setObjectName("question");
    dialog.open();
    QCOMPARE(problem(&button), QString("QPushButton \"OK\" is blocked by QDialog \"question\""));
    QCOMPARE(clicks.size(), 1);
}

// A slot may delete all of it.
void TestFinger::survivesItsTargets()
{
    const QPointer<QWidget> window = new QWidget;
    auto *button = new QPushButton(window);
    window->resize(100, 100);
    button->resize(100, 100);
    connect(button, &QPushButton::pressed, window, [window] { window->deleteLater(); });
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window));
    Finger finger(window);
    finger.setBounce(20).setWiggle(1).hold(button, 30);
    QVERIFY(!window);
    finger.tap(button = nullptr);
    QCOMPARE(finger.lastProblem(), "there is no target");
}

QTEST_MAIN(TestFinger)
#include "tst_finger.moc"
