// SPDX-License-Identifier: MIT
#include "support/iconfiles.h"
#include "support/paintcounter.h"
#include "support/panelscale.h"
#include "support/testcase.h"
#include "support/touch.h"

#include <VexoIconButton>

#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include <array>

using namespace vexo::hox::qt::ui;

namespace {

const QString DEFAULT = QLatin1String(ActiveButton::DEFAULT_STATE_NAME);
const QString CLICKED = QLatin1String(ActiveButton::CLICKED_STATE_NAME);
const QString INACTIVE = QLatin1String(ActiveButton::INACTIVE_STATE_NAME);
const QColor GROUND(Qt::white);
const QColor INK(Qt::magenta);

class Hooked : public VexoIconButton
{
public:
    void setState(const QString &state) override
    {
        states += state;
        VexoIconButton::setState(state);
    }

    QStringList states;
};

} // namespace

class TestVexoIconButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheIconOfItsLook_data();
    void showsTheIconOfItsLook();
    void paintSetsTheStateThatDiffers();
    void paintsSettle();
    void firstPaintLaysNothingOut();
    void tickRepaintsOnlyWhatBlinks();
    void easyAccessClicksBesideTheButton_data();
    void easyAccessClicksBesideTheButton();

private:
    IconFiles m_files;
};

void TestVexoIconButton::showsTheIconOfItsLook_data()
{
    QTest::addColumn<QColor>("icon"); // DEFAULT is red, CLICKED green, INACTIVE blue
    QTest::addColumn<bool>("outlined");
    QTest::addColumn<QString>("state");
    QTest::newRow("up") << QColor(Qt::red) << false << DEFAULT;
    QTest::newRow("down") << QColor(Qt::green) << false << CLICKED;
    QTest::newRow("on") << QColor(Qt::green) << false << CLICKED;
    QTest::newRow("down, DEFAULT only") << QColor(Qt::cyan) << true << DEFAULT; // inverse
    QTest::newRow("down, look kept") << QColor(Qt::red) << false << DEFAULT;
    QTest::newRow("off") << QColor(Qt::blue) << false << INACTIVE;
    QTest::newRow("off, DEFAULT only") << QColor(Qt::red) << false << DEFAULT;
    QTest::newRow("off on") << QColor(Qt::green) << false << CLICKED;
}

void TestVexoIconButton::showsTheIconOfItsLook()
{
    QFETCH(QColor, icon);
    QFETCH(bool, outlined);
    const QByteArray look(QTest::currentDataTag());
    const PanelScale scale(10, 20);
    VexoIconButton button;
    QPalette palette(GROUND, GROUND);
    palette.setColor(QPalette::ButtonText, INK);
    button.setPalette(palette);
    button.resize(140, 220);
    button.addIcon(DEFAULT, m_files.svg(Qt::red));
    if (!look.contains("only")) {
        button.addIcon(CLICKED, m_files.svg(Qt::green));
        button.addIcon(INACTIVE, m_files.svg(Qt::blue));
    }
    button.createMissingInverseIcons();
    button.setCanChangeBackgroundColor(!look.contains("kept"));
    button.setCheckable(true);
    button.setDown(look.contains("down"));
    button.setEnabled(!look.contains("off"));
    button.setChecked(look.endsWith("on"));
    button.grab();
    const QImage image = button.grab().toImage();
    QCOMPARE(boxOf(image, icon), QRect(20, 10, 100, 200)); // 10 x 10 mm
    QCOMPARE(image.pixelColor(70, 110), icon);
    QCOMPARE(image.pixelColor(50, 0), outlined ? INK : GROUND);
    QCOMPARE(image.pixelColor(0, 50), outlined ? INK : GROUND);
    QCOMPARE(image.pixelColor(1, 1), GROUND);
    QTEST(button.currentState(), "state");
}

void TestVexoIconButton::paintSetsTheStateThatDiffers()
{
    const PanelScale scale(10, 10);
    Hooked button;
    button.addIcon(DEFAULT, m_files.svg(Qt::red));
    button.addIcon("A", m_files.svg(Qt::green));
    button.grab();
    QCOMPARE(button.states, QStringList{ DEFAULT }); // the first time in any case
    button.grab();
    QCOMPARE(button.states.size(), 1);
    button.setState("A");
    QVERIFY(!boxOf(button.grab().toImage(), Qt::green).isEmpty()); // what was shown as it began
    QCOMPARE(button.states, (QStringList{ DEFAULT, "A", DEFAULT }));
    QVERIFY(!boxOf(button.grab().toImage(), Qt::red).isEmpty());
}

void TestVexoIconButton::paintsSettle()
{
    for (const QString &pressed_state : { CLICKED, QString("other") }) {
        VexoIconButton button;
        PaintCounter paints;
        paints.watch(&button);
        const auto settles = [&] {
            const int count = paints.take(&button);
            return count >= 1 && count <= 2 && paints.take(&button) == 0;
        };
        button.addIcon(DEFAULT, m_files.svg(Qt::red));
        button.addIcon(INACTIVE, m_files.svg(Qt::blue));
        button.addIcon(pressed_state, m_files.svg(Qt::green));
        button.show();
        QVERIFY(QTest::qWaitForWindowExposed(&button));
        paints.take(&button);
        QCOMPARE(paints.take(&button), 0);
        QTest::mousePress(&button, Qt::LeftButton);
        QVERIFY(settles());
        QTest::mouseRelease(&button, Qt::LeftButton);
        QVERIFY(settles());
        button.setEnabled(false);
        QVERIFY(settles());
    }
}

/// In a long list each button that came into sight would have the whole list laid out anew.
void TestVexoIconButton::firstPaintLaysNothingOut()
{
    struct Requests : QObject
    {
        int count = 0;

        bool eventFilter(QObject * /*watched*/, QEvent *event) override
        {
            count += event->type() == QEvent::LayoutRequest;
            return false;
        }
    };
    QScrollArea list;
    auto *content = new QWidget;
    auto *column = new QVBoxLayout(content);
    VexoIconButton *button = nullptr;
    for (int i = 0; i < 20; ++i) {
        button = new VexoIconButton;
        button->addIcon(DEFAULT, m_files.svg(Qt::red));
        column->addWidget(button);
    }
    list.setWidget(content);
    list.resize(100, 200);
    list.show();
    PaintCounter paints;
    paints.watch(button);
    QVERIFY(QTest::qWaitForWindowExposed(&list));
    QCOMPARE(paints.take(button), 0); // it lies below what is seen
    Requests requests;
    content->installEventFilter(&requests);
    list.verticalScrollBar()->setValue(list.verticalScrollBar()->maximum());
    QVERIFY(paints.take(button) > 0);
    QCOMPARE(requests.count, 0);
}

void TestVexoIconButton::tickRepaintsOnlyWhatBlinks()
{
    QTimer timer;
    QWidget window;
    PaintCounter paints;
    std::array<VexoIconButton *, 3> buttons; // side by side; the first blinks, the second is on
    for (VexoIconButton *&button : buttons) {
        button = new VexoIconButton(&window);
        button->setGeometry(int(&button - buttons.data()) * 10, 0, 10, 10);
        button->setPxIconSize(QSize(8, 8));
        button->addIcon(DEFAULT, m_files.svg(Qt::red));
        button->addIcon(CLICKED, m_files.svg(Qt::green));
        button->setTimer(&timer);
        button->setCheckable(true);
        paints.watch(button);
    }
    buttons[1]->setChecked(true);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    paints.take(&window); // a blink that is set before the first paint ends with it
    buttons[0]->blink(DEFAULT, CLICKED);
    for (VexoIconButton *button : buttons)
        paints.take(button);
    for (int tick = 1; tick <= 10; ++tick) {
        QVERIFY(QMetaObject::invokeMethod(&timer, "timeout"));
        QCOMPARE(paints.take(buttons[0]), 1);
    }
    QCOMPARE(paints.take(buttons[1]) + paints.take(buttons[2]), 0);
}

void TestVexoIconButton::easyAccessClicksBesideTheButton_data()
{
    QTest::addColumn<Way>("way"); // on a button of 100 x 50 px
    QTest::addColumn<QByteArray>("told");
    QTest::newRow("right of it") << Way{ { 9, 9 }, { 110, 25 } }
                                 << QByteArray("pressed; released; clicked 0; ");
    QTest::newRow("too far below")
        << Way{ { 9, 9 }, { 50, 80 } } << QByteArray("pressed; released; ");
    QTest::newRow("and back") << Way{ { 9, 9 }, { 110, 25 }, { 90, 25 } }
                              << QByteArray("pressed; released; pressed; toggled 1; released; "
                                            "clicked 1; ");
}

void TestVexoIconButton::easyAccessClicksBesideTheButton()
{
    QFETCH(Way, way);
    QFETCH(QByteArray, told);
    VexoIconButton button;
    QCOMPARE(button.qt_metacast("EasyAccessButton"),
        static_cast<void *>(static_cast<EasyAccessButton *>(&button)));
    button.resize(100, 50);
    button.setCheckable(true);
    QByteArray log;
    record(&button, &log);
    // Else the toolkit goes on with a button that a slot may have deleted.
    QCOMPARE(touch(&button, way), told.contains("clicked"));
    QCOMPARE(log, told);
    QVERIFY(!button.isDown());
    finger(&button, QEvent::MouseButtonPress, QPoint(9, 9)); // forgets the moves of the last one
    log.clear();
    finger(&button, QEvent::MouseButtonRelease, QPoint(110, 25));
    QVERIFY(!log.contains("clicked"));
}

QTEST_MAIN(TestVexoIconButton)
#include "tst_vexoiconbutton.moc"
