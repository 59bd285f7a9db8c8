#include "docs/snippets.h"
#include "support/panelscale.h"
#include "support/testcase.h"

#include <ActiveButton>
#include <ActiveVectorButton>
#include <MeasuredPushButton>
#include <VexoDesignVectorButton>
#include <VexoFeedbackDelegator>
#include <VexoIconButton>
#include <VexoKeyboardButton>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QPainter>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <memory>

using namespace vexo::hox::qt::ui;

namespace {

const QColor white(255, 255, 255);
const QColor lime(190, 220, 0);
const QColor dark(80, 80, 80); // ground of what is pressed or checked

template <typename Widget>
std::unique_ptr<Widget> shown(Widget *widget)
{
    widget->show();
    return std::unique_ptr<Widget>(widget);
}

QImage picture(QWidget *widget)
{
    return widget->grab().toImage();
}

bool isBlank(const QIcon &icon)
{
    QImage image = icon.pixmap(44, 44).toImage();
    QImage blank = image;
    blank.fill(Qt::transparent);
    return image == blank;
}

} // namespace

/// Each snippet of the pages does what its comment says.
class TestSnippets : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void fieldHasItsSizeOnTheDescribedPanel();
    void lampLightsUp();
    void headingUsesThePanelsFont();
    void ownStylesheetWins();
    void enterButtonIsAsWideAsItsImage();
    void backButtonTellsTapFromLongPress();
    void stopButtonClicksBesideItself();
    void toneSounds();
    void alarmFlashesUntilAcknowledged();
    void choiceChangesItsIcon();
    void menuButtonInvertsWhilePressed();
    void lightTileIsDarkWhenOn();
    void keysTypeAndDelete();
    void pumpLogs();
};

void TestSnippets::fieldHasItsSizeOnTheDescribedPanel()
{
    const PanelScale scale(10, 20);
    QWidget field;
    sizeField(&field);
    QCOMPARE(field.size(), QSize(400, 240));
    describePanel();
    sizeField(&field);
    QCOMPARE(field.size(), QSize(320, 96));
}

void TestSnippets::lampLightsUp()
{
    QImage image(20, 20, QImage::Format_RGB32);
    image.fill(white);
    QPainter painter(&image);
    drawLamp(&painter, image.rect().adjusted(0, 0, -1, -1), false);
    QCOMPARE(image.pixelColor(10, 10), QColor(200, 200, 200));
    drawLamp(&painter, image.rect().adjusted(0, 0, -1, -1), true);
    QCOMPARE(image.pixelColor(10, 10), lime);
    QCOMPARE(image.pixelColor(10, 0), QColor(60, 60, 60));
}

void TestSnippets::headingUsesThePanelsFont()
{
    const PanelScale scale(10, 20);
    useFonts();
    QLabel label;
    makeHeading(&label);
    QCOMPARE(label.font().family(), QStringLiteral("Inter"));
    QCOMPARE(label.font().weight(), int(QFont::Medium));
    QCOMPARE(label.font().pixelSize(), 91); // 13 pt at 20 px/mm are 91.7 px
    QCOMPARE(QApplication::font().pixelSize(), 49);
}

void TestSnippets::ownStylesheetWins()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("own.qs"));
    QVERIFY(file.open(QFile::WriteOnly) && file.write("QLabel { background: #bedc00; }") > 0);
    file.close();
    useStylesheets(file.fileName());
    QLabel label;
    label.resize(20, 20);
    QCOMPARE(picture(&label).pixelColor(10, 10), lime);
    QVERIFY(qApp->styleSheet().contains("cb_checked"));
    qApp->setStyleSheet(QString());
}

void TestSnippets::enterButtonIsAsWideAsItsImage()
{
    const PanelScale scale(10, 20);
    QWidget parent;
    QCOMPARE(createEnterButton(&parent)->iconSize(), QSize(100, 200));
}

void TestSnippets::backButtonTellsTapFromLongPress()
{
    QWidget window;
    QLabel screen(&window);
    MeasuredPushButton *button = createBackButton(&screen);
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(screen.text(), QStringLiteral("Last page"));
    QTest::mousePress(button, Qt::LeftButton);
    QTRY_COMPARE(screen.text(), QStringLiteral("Home"));
    QTest::mouseRelease(button, Qt::LeftButton);
    QCOMPARE(screen.text(), QStringLiteral("Home"));
}

void TestSnippets::stopButtonClicksBesideItself()
{
    const auto button = shown(createStopButton());
    button->resize(100, 50);
    int clicks = 0;
    connect(button.get(), &QPushButton::clicked, [&clicks] { ++clicks; });
    for (const QPoint &end : { QPoint(50, 25), QPoint(110, 25), QPoint(130, 25) }) {
        QTest::mousePress(button.get(), Qt::LeftButton, Qt::NoModifier, QPoint(50, 25));
        QMouseEvent move(QEvent::MouseMove, end, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(button.get(), &move);
        QTest::mouseRelease(button.get(), Qt::LeftButton, Qt::NoModifier, end);
    }
    QCOMPARE(clicks, 2);
}

void TestSnippets::toneSounds()
{
    int tones = 0;
    const std::unique_ptr<VexoFeedbackDelegator> tone(installTone([&tones] { ++tones; }));
    MeasuredPushButton button;
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(tones, 1);
}

void TestSnippets::alarmFlashesUntilAcknowledged()
{
    QTimer beat;
    const auto alarm = shown(createAlarm(&beat));
    QVERIFY(isBlank(alarm->icon()));
    Q_EMIT beat.timeout({});
    QVERIFY(!isBlank(alarm->icon()));
    Q_EMIT beat.timeout({});
    QVERIFY(isBlank(alarm->icon()));
    alarm->click();
    Q_EMIT beat.timeout({});
    Q_EMIT beat.timeout({});
    QVERIFY(!isBlank(alarm->icon()));
}

void TestSnippets::choiceChangesItsIcon()
{
    const PanelScale scale(10, 20);
    QWidget parent;
    ActiveVectorButton *choice = createChoice(&parent);
    QCOMPARE(choice->iconSize().height(), 240);
    const QImage plus = choice->icon().pixmap(choice->iconSize()).toImage();
    QTest::mouseClick(choice, Qt::LeftButton);
    QVERIFY(choice->icon().pixmap(choice->iconSize()).toImage() != plus);
}

void TestSnippets::menuButtonInvertsWhilePressed()
{
    const PanelScale scale(10, 20);
    const auto button = shown(createMenuButton(nullptr));
    button->resize(130, 250);
    const QImage up = picture(button.get());
    button->setDown(true);
    const QImage down = picture(button.get());
    QCOMPARE(button->minimumSizeHint().height(), 240);
    QVERIFY(up != down);
}

void TestSnippets::lightTileIsDarkWhenOn()
{
    const PanelScale scale(10, 20);
    const auto tile = shown(createLightTile(nullptr));
    tile->resize(600, 290);
    QCOMPARE(tile->height(), 290);
    QCOMPARE(picture(tile.get()).pixelColor(2, 2), QColor(245, 245, 245));
    QTest::mouseClick(tile.get(), Qt::LeftButton);
    QCOMPARE(picture(tile.get()).pixelColor(2, 2), dark);
}

void TestSnippets::keysTypeAndDelete()
{
    QLineEdit line;
    const auto letter = shown(createLetterKey("q", &line));
    const auto del = shown(createDeleteKey(&line));
    for (int i = 0; i < 4; ++i)
        QTest::mouseClick(letter.get(), Qt::LeftButton);
    QCOMPARE(line.text(), QStringLiteral("qqqq"));
    QTest::mousePress(del.get(), Qt::LeftButton);
    QCOMPARE(line.text(), QStringLiteral("qqq"));
    QTRY_COMPARE(line.text(), QString());
    QTest::mouseRelease(del.get(), Qt::LeftButton);
}

void TestSnippets::pumpLogs()
{
    const Messages messages;
    startPump(1500);
    QLoggingCategory::setFilterRules("hoxq.PUMP.debug=true");
    startPump(1500);
    QLoggingCategory::setFilterRules(QString());
    QCOMPARE(messages.lines(),
        QStringList(
            { "info hoxq.PUMP: started", "info hoxq.PUMP: started", "debug hoxq.PUMP: 1500 rpm" }));
}

QTEST_MAIN(TestSnippets)
#include "tst_snippets.moc"
