// SPDX-License-Identifier: MIT
#include "ui/touch/bouncefilter.h"

#include "support/panelscale.h"
#include "support/testcase.h"

#include <QMouseEvent>
#include <QPushButton>
#include <QSignalSpy>
#include <QTouchEvent>
#include <QWindow>

using namespace vexo::hox::qt::ui;

namespace {

/// What a touch panel reports at a time.
struct Report
{
    ulong ms;
    int finger;
    Qt::TouchPointState state;
    QPoint place;
};

} // namespace

using Reports = QVector<Report>;
Q_DECLARE_METATYPE(Reports)

namespace {

const QPoint here(100, 100);

Reports tap(ulong ms, const QPoint &place = here, int finger = 1)
{
    return { { ms, finger, Qt::TouchPointPressed, place },
        { ms + 10, finger, Qt::TouchPointReleased, place } };
}

/// Notes which fingers come and go.
class Pad : public QWidget
{
public:
    Pad()
    {
        setAttribute(Qt::WA_AcceptTouchEvents);
        resize(400, 300);
        show();
    }

    QByteArray log;

protected:
    bool event(QEvent *event) override
    {
        const auto type = event->type();
        if (type != QEvent::TouchBegin && type != QEvent::TouchUpdate && type != QEvent::TouchEnd)
            return QWidget::event(event);
        for (const auto &point : static_cast<QTouchEvent *>(event)->touchPoints()) {
            if (point.state() == Qt::TouchPointPressed)
                log += QByteArray::number(point.id() & 0xff) + "+ ";
            else if (point.state() == Qt::TouchPointReleased)
                log += QByteArray::number(point.id() & 0xff) + "- ";
        }
        event->accept();
        return true;
    }
};

/// A touch screen with several fingers.
class Screen
{
public:
    explicit Screen(QWidget *window)
        : m_window(window)
    {
    }

    void report(const Report &report)
    {
        for (QTouchEvent::TouchPoint &point : m_points)
            point.setState(Qt::TouchPointStationary);
        QTouchEvent::TouchPoint &point = m_points[report.finger];
        point.setId(report.finger);
        point.setState(report.state);
        point.setScreenPos(m_window->mapToGlobal(report.place));
        Qt::TouchPointStates states;
        for (const QTouchEvent::TouchPoint &each : qAsConst(m_points))
            states |= each.state();
        const auto type = states == Qt::TouchPointPressed ? QEvent::TouchBegin
            : states == Qt::TouchPointReleased            ? QEvent::TouchEnd
                                                          : QEvent::TouchUpdate;
        QTouchEvent event(type, device(), Qt::NoModifier, states, m_points.values());
        event.setTimestamp(report.ms);
        QCoreApplication::sendEvent(m_window->windowHandle(), &event);
        if (report.state == Qt::TouchPointReleased)
            m_points.remove(report.finger);
    }

private:
    static QTouchDevice *device()
    {
        static QTouchDevice *panel = QTest::createTouchDevice(); // the toolkit owns it
        return panel;
    }

    QWidget *m_window;
    QMap<int, QTouchEvent::TouchPoint> m_points;
};

void sendMouse(QWidget *window, const Report &report, Qt::MouseButton button = Qt::LeftButton)
{
    const bool is_press = report.state == Qt::TouchPointPressed;
    QMouseEvent event(is_press ? QEvent::MouseButtonPress : QEvent::MouseButtonRelease,
        report.place, report.place, window->mapToGlobal(report.place), button,
        is_press ? button : Qt::NoButton, Qt::NoModifier);
    event.setTimestamp(report.ms);
    QCoreApplication::sendEvent(window->windowHandle(), &event);
}

} // namespace

/// On a panel of 5 x 10 px/mm.
class TestBounceFilter : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void takesBouncesOnly_data();
    void takesBouncesOnly();
    void otherFingersGoOn_data();
    void otherFingersGoOn();
    void anotherButtonIsNoFinger();

private:
    PanelScale m_scale{ 5, 10 };
};

void TestBounceFilter::initTestCase()
{
    TestCase::initTestCase();
    BounceFilter::install();
    BounceFilter::install(); // once is enough, and twice does no harm
}

void TestBounceFilter::takesBouncesOnly_data()
{
    QTest::addColumn<Reports>("reports");
    QTest::addColumn<int>("taps");
    QTest::newRow("one") << tap(1000) << 1;
    QTest::newRow("bounce") << tap(2000) + tap(2050) << 1;
    QTest::newRow("bounces of a bounce") << tap(3000) + tap(3050) + tap(3100) << 1;
    QTest::newRow("fast double tap") << tap(4000) + tap(4051) << 2;
    QTest::newRow("double click of a test") << tap(5000) + tap(5013) << 2;
    QTest::newRow("5 mm beside") << tap(6000) + tap(6050, here + QPoint(25, 50)) << 1;
    QTest::newRow("farther across") << tap(7000) + tap(7050, here + QPoint(26, 0)) << 2;
    QTest::newRow("farther down") << tap(8000) + tap(8050, here + QPoint(0, 51)) << 2;
    QTest::newRow("of the finger before the last") // two thumbs
        << tap(9000) + tap(9015, here + QPoint(100, 0)) + tap(9040) << 2;
    QTest::newRow("the clock is set back") << tap(500) << 1;
}

void TestBounceFilter::takesBouncesOnly()
{
    QFETCH(Reports, reports);
    QFETCH(int, taps);
    Pad pad;
    Screen screen(&pad);
    QPushButton button;
    button.resize(400, 300);
    button.show();
    int clicks = 0;
    connect(&button, &QPushButton::clicked, this, [&] { ++clicks; });
    for (const Report &report : qAsConst(reports))
        screen.report(report);
    for (Report report : qAsConst(reports)) {
        report.ms += 100000; // as if the touches were long over
        sendMouse(&button, report);
    }
    QCOMPARE(pad.log.count('+'), taps);
    QCOMPARE(pad.log.count('-'), taps);
    QCOMPARE(clicks, taps);
}

void TestBounceFilter::otherFingersGoOn_data()
{
    QTest::addColumn<Reports>("reports");
    QTest::addColumn<QByteArray>("log");
    const QPoint there(300, 100);
    const Report first{ 20000, 1, Qt::TouchPointPressed, there };
    const Report first_lift{ 20200, 1, Qt::TouchPointReleased, there };
    const Reports taps = tap(20050, here, 2) + tap(20090, here, 3);
    QTest::newRow("beside a finger that stays")
        << Reports{ first } + taps + Reports{ first_lift } << QByteArray("1+ 2+ 2- 1- ");
    const Reports bounce = tap(30040);
    const Reports next = tap(30045, there, 2);
    QTest::newRow("before the bounce is over")
        << tap(30000) + Reports{ bounce[0], next[0], bounce[1], next[1] }
        << QByteArray("1+ 1- 2+ 2- ");
}

void TestBounceFilter::otherFingersGoOn()
{
    QFETCH(Reports, reports);
    Pad pad;
    Screen screen(&pad);
    for (const Report &report : qAsConst(reports))
        screen.report(report);
    QTEST(pad.log, "log");
}

void TestBounceFilter::anotherButtonIsNoFinger()
{
    QPushButton button;
    button.resize(400, 300);
    button.show();
    QSignalSpy clicked(&button, &QPushButton::clicked);
    for (const Report &report : tap(40000))
        sendMouse(&button, report, Qt::RightButton);
    for (const Report &report : tap(40030))
        sendMouse(&button, report);
    QCOMPARE(clicked.size(), 1);
}

QTEST_MAIN(TestBounceFilter)
#include "tst_bouncefilter.moc"
