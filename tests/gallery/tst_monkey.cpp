// SPDX-License-Identifier: MIT
#include "gallery/mainwindow.h"
#include "gallery/pagelist.h"
#include "support/onscreen.h"
#include "support/testcase.h"
#include "support/virtualclock.h"

#include <Finger>
#include <Panel>

#include <QAbstractButton>
#include <QRandomGenerator>
#include <QStackedWidget>

#include <unistd.h>

using namespace vexo::hox::qt::panel;
using namespace vexo::hox::qt::ui;
using vexo::hox::qt::uitest::Finger;

namespace {

/// A finger that knows nothing, on any page of the gallery.
class Monkey
{
public:
    Monkey(MainWindow *window, quint32 seed)
        : m_window(window)
        , m_finger(window, seed)
        , m_random(seed)
    {
        m_finger.setJitter(0.3).setWiggle(0.5).setBounce(m_random.bounded(2) * 30);
    }

    void touch()
    {
        if (m_random.bounded(30) == 0)
            m_window->showPage(m_random.bounded(pageList().size()));
        QWidget *target = anyWidget();
        const QPointF by(way(), way());
        switch (m_random.bounded(10)) {
        case 0:
            return m_finger.hold(target, m_random.bounded(700));
        case 1:
        case 2:
            return m_finger.slide(target, QPointF(1, 1), by, m_random.bounded(400));
        case 3:
            return m_finger.flick(target, by, 40 + m_random.bounded(100));
        case 4:
            return m_finger.slideOff(target, Qt::RightEdge, m_random.bounded(5));
        default:
            return m_finger.tap(target);
        }
    }

    /// Closes what lies over the window.
    void clear() const
    {
        const auto windows = QApplication::topLevelWidgets();
        for (QWidget *window : windows) {
            if (window != m_window && window->isVisible())
                window->close();
        }
    }

private:
    double way() { return m_random.bounded(60) - 30; }

    QWidget *anyWidget()
    {
        const auto widgets = m_window->findChildren<QWidget *>();
        for (int i = 0; i < 50; ++i) {
            QWidget *widget = widgets.at(m_random.bounded(widgets.size()));
            if (widget->isVisible() && !widget->visibleRegion().isEmpty())
                return widget;
        }
        return m_window;
    }

    MainWindow *m_window;
    Finger m_finger;
    QRandomGenerator m_random;
};

// On the page; a row that is chosen stays down, to be seen.
QStringList buttonsThatAreDown(const QWidget &window)
{
    QStringList names;
    const auto buttons = window.findChild<QStackedWidget *>()->findChildren<QAbstractButton *>();
    for (const QAbstractButton *button : buttons) {
        if (button->isDown() && !button->isChecked())
            names += QString::fromLatin1(button->metaObject()->className()) + button->text();
    }
    return names;
}

// Images are loaded in a thread, which takes a time of its own.
QRect wrongPixelsAtRest(QWidget &window)
{
    QRect wrong;
    for (int i = 0; i < 10; ++i) {
        virtualclock::pass(3000);
        wrong = wrongPixels(window, 2);
        if (wrong.isEmpty())
            break;
        usleep(20000);
    }
    return wrong;
}

} // namespace

class TestMonkey : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void nothingStaysDownOrWronglyPainted_data();
    void nothingStaysDownOrWronglyPainted();
};

void TestMonkey::nothingStaysDownOrWronglyPainted_data()
{
    QTest::addColumn<QSize>("px");
    QTest::addColumn<QSizeF>("mm");
    QTest::newRow("3 px/mm") << QSize(480, 320) << QSizeF(160, 106);
    QTest::newRow("5 px/mm") << QSize(800, 480) << QSizeF(152, 91);
    QTest::newRow("8 x 6 px/mm") << QSize(800, 600) << QSizeF(100, 100);
    QTest::newRow("12 px/mm") << QSize(800, 600) << QSizeF(66, 50);
}

// HOXQ_MONKEY_TOUCHES makes it longer, HOXQ_MONKEY_SEED other.
void TestMonkey::nothingStaysDownOrWronglyPainted()
{
    QFETCH(QSize, px);
    QFETCH(QSizeF, mm);
    const int touches = asked("HOXQ_MONKEY_TOUCHES", 60);
    const int seed = asked("HOXQ_MONKEY_SEED", 0);
    virtualclock::start();
    PanelOptions options;
    options.px = px;
    options.mm = mm;
    Panel::setUp(*qApp, options);
    MainWindow window;
    window.setMinimumSize(px); // the platform would warn of what the layout asks for
    window.setMaximumSize(px);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    Monkey monkey(&window, quint32(seed + 1));
    for (int i = 1; i <= touches; ++i) {
        monkey.touch();
        virtualclock::pass(60);
        monkey.clear();
        QVERIFY2(buttonsThatAreDown(window).isEmpty(),
            qPrintable(
                QString("touch %1: ").arg(i) + buttonsThatAreDown(window).join(QString(", "))));
        if (i % 30 == 0)
            QCOMPARE(wrongPixelsAtRest(window), QRect());
    }
}

QTEST_MAIN(TestMonkey)
#include "tst_monkey.moc"
