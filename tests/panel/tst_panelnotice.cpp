// SPDX-License-Identifier: MIT
#include "support/panelscale.h"
#include "support/testcase.h"
#include "support/touch.h"

#include <OnScreenKeyboard>
#include <PanelNotice>

#include <QLabel>
#include <QSignalSpy>
#include <QTest>

using vexo::hox::qt::panel::OnScreenKeyboard;
using vexo::hox::qt::panel::PanelNotice;

class TestPanelNotice : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void liesAtItsEdge_data();
    void liesAtItsEdge();
    void staysAboveAKeyboard();
    void comesAndGoes();
    void aTapSendsItAway();
    void mayBeDeletedInItsSignal();
    void aLongTextWraps();
};

void TestPanelNotice::liesAtItsEdge_data()
{
    QTest::addColumn<int>("edge");
    QTest::addColumn<int>("distance_px"); // from that edge, on a panel of 5 x 10 px/mm
    QTest::newRow("top") << int(Qt::TopEdge) << 40;
    QTest::newRow("bottom") << int(Qt::BottomEdge) << 40;
}

void TestPanelNotice::liesAtItsEdge()
{
    QFETCH(int, edge);
    QFETCH(int, distance_px);
    const PanelScale scale(5, 10);
    QWidget screen;
    screen.resize(600, 400);
    screen.show();
    PanelNotice notice(Qt::Edge(edge), &screen);
    notice.tell(QStringLiteral("Saved"));
    for (const QSize &size : { QSize(600, 400), QSize(400, 600) }) {
        screen.resize(size);
        const QRect place = notice.geometry();
        const int distance
            = edge == Qt::TopEdge ? place.top() : screen.height() - place.bottom() - 1;
        QCOMPARE(distance, distance_px);
        QVERIFY(qAbs(place.center().x() - screen.rect().center().x()) <= 1);
    }
}

// That of the window, whatever lies between it and the notice.
void TestPanelNotice::staysAboveAKeyboard()
{
    const PanelScale scale(5, 10);
    QWidget window;
    window.resize(600, 800);
    QWidget screen(&window);
    screen.setGeometry(0, 50, 600, 750);
    OnScreenKeyboard keyboard(&window);
    keyboard.setGeometry(0, 400, 600, 400);
    keyboard.hide();
    window.show();
    PanelNotice below(Qt::BottomEdge, &screen);
    PanelNotice above(Qt::TopEdge, &screen);
    below.tell(QStringLiteral("Saved"));
    above.tell(QStringLiteral("Saved"));
    const QRect lowest = below.geometry();
    const QRect highest = above.geometry();
    QCOMPARE(lowest.bottom(), 709);
    keyboard.show();
    QTRY_COMPARE(below.geometry().bottom(), 309);
    keyboard.setGeometry(0, 500, 600, 300);
    QTRY_COMPARE(below.geometry().bottom(), 409);
    below.tell(QStringLiteral("Saved again"));
    QCOMPARE(below.geometry().bottom(), 409);
    keyboard.hide();
    QTRY_COMPARE(below.geometry().bottom(), 709);
    QCOMPARE(above.geometry(), highest);
}

void TestPanelNotice::comesAndGoes()
{
    QWidget screen;
    screen.show();
    PanelNotice notice(Qt::BottomEdge, &screen);
    QWidget later(&screen);
    later.show();
    QVERIFY(!notice.isVisible());
    notice.setMs(30);
    notice.tell(QStringLiteral("Saved"));
    QVERIFY(notice.isVisible());
    QCOMPARE(screen.children().last(), &notice); // above what came later
    QCOMPARE(notice.accessibleName(), QStringLiteral("Saved"));
    QTRY_VERIFY(!notice.isVisible());
    notice.setMs(0);
    notice.tell(QStringLiteral("Door open"));
    QVERIFY(notice.isVisible());
    notice.tell(QString());
    QVERIFY(!notice.isVisible());
}

void TestPanelNotice::aTapSendsItAway()
{
    QWidget screen;
    screen.resize(600, 400);
    screen.show();
    PanelNotice notice(Qt::BottomEdge, &screen);
    QSignalSpy tapped(&notice, &PanelNotice::tapped);
    notice.tell(QStringLiteral("Saved"));
    touch(&notice, { { 5, 5 }, { 5, -50 } });
    QVERIFY(tapped.isEmpty() && notice.isVisible());
    touch(&notice, { { 5, 5 } });
    QCOMPARE(tapped.size(), 1);
    QVERIFY(!notice.isVisible());
}

void TestPanelNotice::mayBeDeletedInItsSignal()
{
    QWidget screen;
    screen.show();
    auto *notice = new PanelNotice(Qt::BottomEdge, &screen);
    const QPointer<PanelNotice> alive(notice);
    connect(notice, &PanelNotice::tapped, notice, [notice] { delete notice; });
    notice->tell(QStringLiteral("Saved"));
    touch(notice, { { 5, 5 } });
    QVERIFY(!alive);
}

void TestPanelNotice::aLongTextWraps()
{
    const PanelScale scale(5, 5);
    QWidget screen;
    screen.resize(800, 480);
    screen.show();
    PanelNotice notice(Qt::BottomEdge, &screen);
    notice.tell(QStringLiteral("Saved"));
    const int line_px = notice.height();
    QVERIFY(notice.width() < 200);
    notice.tell(QStringLiteral("The door could not be opened: ").repeated(6));
    QCOMPARE(notice.width(), 500); // 100 mm
    const auto *label = notice.findChild<QLabel *>();
    QVERIFY(notice.height() > line_px && label->height() >= label->heightForWidth(label->width()));
    screen.resize(300, 480);
    QCOMPARE(notice.width(), 260); // 4 mm each side
}

QTEST_MAIN(TestPanelNotice)
#include "tst_panelnotice.moc"
