// SPDX-License-Identifier: MIT
#include "support/iconfiles.h"
#include "support/paintcounter.h"
#include "support/panelscale.h"
#include "support/testcase.h"
#include "support/touch.h"

#include <VexoPushButton>

#include <QTest>

#include <ctime>
#include <stdexcept>

using namespace vexo::hox::qt::ui;

namespace {

const QColor IMAGE(Qt::red);
QByteArrayList caught;

/// Lives through a paint that throws, as an application would.
class Application : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override
    {
        try {
            return QApplication::notify(receiver, event);
        } catch (const std::logic_error &error) {
            caught += error.what();
            return false;
        }
    }
};

QImage picture(QWidget *button)
{
    return button->grab().toImage();
}

/// A button of 500 px with a line below all of its text, which shows where that begins and ends.
struct Underlined : VexoPushButton
{
    explicit Underlined(const QString &text)
    {
        QFont underlined = font();
        underlined.setUnderline(true);
        setFont(underlined);
        setTextColor(Qt::blue);
        setTextAlignment(Qt::AlignLeft);
        setText(text);
        resize(500, height());
    }
    QRect ink(const QRect &area = QRect(0, 0, 999, 999))
    {
        return boxOf(picture(this).copy(area), Qt::blue);
    }
    QFontMetrics metrics() const { return QFontMetrics(font()); }
};

} // namespace

class TestVexoPushButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void fillsNoMoreThanItsPill();
    void imageIsPlacedInMillimetres_data();
    void imageIsPlacedInMillimetres();
    void looksFollowTheState_data();
    void looksFollowTheState();
    void freshImageIsRenderedOnce();
    void imageCanBeHiddenAndRemoved();
    void buttonWithoutStandardImageThrows();
    void labelBreaksWhereItReachesTheMargins();
    void textsKeepTheirMargins();
    void fittingStringIsTheLongest_data();
    void fittingStringIsTheLongest();
    void longTextIsFittedQuickly();
    void easyAccessClicksBesideTheButton_data();
    void easyAccessClicksBesideTheButton();
    void ringsAndMayBeDeleted();
    void changeRepaintsOnceOrNot();

private:
    IconFiles m_files;
};

void TestVexoPushButton::imageIsPlacedInMillimetres_data()
{
    QTest::addColumn<int>("height"); // px at 10 x 20 px/mm
    QTest::addColumn<QRect>("image");
    QTest::newRow("none") << 240 << QRect();
    QTest::newRow("left") << 200 << QRect(14, 53, 47, 94);
    QTest::newRow("right") << 200 << QRect(440, 53, 47, 94);
    QTest::newRow("margin") << 220 << QRect(22, 63, 47, 94);
    QTest::newRow("m_mm_radius") << 240 << QRect(14, 73, 47, 94);
    QTest::newRow("m_mm_horiz_center_distance_from_border") << 200 << QRect(24, 53, 47, 94);
}

void TestVexoPushButton::imageIsPlacedInMillimetres()
{
    const QByteArray change(QTest::currentDataTag());
    const PanelScale scale(10, 20);
    VexoPushButton button;
    button.resize(500, button.height());
    button.setAlignImageRight(change == "right");
    if (change != "none")
        button.setSvgImage(m_files.svg(IMAGE), Standard);
    if (change == "margin")
        button.setMmMargin(QSizeF(1, 2.5));
    else if (change.startsWith("m_"))
        button.setProperty(change, button.property(change).toDouble() + 1);
    button.setAlignImageRight(true); // acts at the next change
    button.resize(600, button.height());
    QTEST(button.height(), "height");
    QTEST(boxOf(picture(&button), IMAGE), "image");
}

void TestVexoPushButton::looksFollowTheState_data()
{
    QTest::addColumn<QColor>("fill"); // yellow; down or checked green
    QTest::addColumn<QColor>("text"); // blue; down white, off gray
    QTest::addColumn<int>("image");
    QTest::newRow("up") << QColor(Qt::yellow) << QColor(Qt::blue) << int(Standard);
    QTest::newRow("down") << QColor(Qt::green) << QColor(Qt::white) << int(Clicked);
    QTest::newRow("off") << QColor(Qt::yellow) << QColor(Qt::gray) << int(Inactive);
    QTest::newRow("on") << QColor(Qt::green) << QColor(Qt::blue) << int(Standard);
    QTest::newRow("down only") << QColor(Qt::green) << QColor(Qt::white) << int(Standard);
    QTest::newRow("off only") << QColor(Qt::yellow) << QColor(Qt::gray) << int(Standard);
    QTest::newRow("hidden on off") << QColor(Qt::green) << QColor(Qt::gray) << int(Hidden);
}

void TestVexoPushButton::looksFollowTheState()
{
    QFETCH(QColor, fill);
    QFETCH(QColor, text);
    QFETCH(int, image);
    const PanelScale scale(10, 20);
    const QByteArray look(QTest::currentDataTag());
    const QColor images[] = { Qt::red, Qt::cyan, Qt::magenta, Qt::darkRed };
    VexoPushButton button;
    button.setPalette(Qt::black);
    button.setText(QStringLiteral("MMM"));
    button.setBackgroundColor(Qt::yellow);
    button.setBackgroundClickedColor(Qt::green);
    button.setTextColor(Qt::blue);
    button.setTextClickedColor(Qt::white);
    button.setTextInactiveColor(Qt::gray);
    button.setPenColor(Qt::darkBlue);
    button.setMmPenLine(0.3); // 6 px, half of them inside
    for (int state = Standard; state <= (look.contains("only") ? Standard : Hidden); ++state)
        button.setSvgImage(m_files.svg(images[state]), ButtonState(state));
    button.setMmMargin(VexoPushButton::STANDARD_MARGIN_IN_MM);
    button.resize(400, button.height());
    button.setCheckable(true);
    button.setChecked(look.contains("on") && !look.contains("only"));
    button.setEnabled(!look.contains("off"));
    button.setDown(look.startsWith("down"));
    button.hideImage(look.contains("hidden"));
    QImage seen = picture(&button);
    QCOMPARE(boxOf(seen, fill), QRect(34, 63, 332, 114)); // inside the line, the ends are round
    QVERIFY(seen.pixelColor(40, 70) != fill);
    QCOMPARE(boxOf(seen.copy(200, 0, 1, 100), Qt::darkBlue), QRect(0, 57, 1, 6));
    QVERIFY(!boxOf(seen, text).isEmpty());
    QVERIFY(!boxOf(seen, images[image]).isEmpty());
    button.setDrawButtonBorder(false);
    seen = picture(&button);
    QCOMPARE(boxOf(seen, fill), QRect(0, 0, 400, 240));
    QVERIFY(boxOf(seen, Qt::darkBlue).isEmpty());
}

/// A file that has just been written, too.
void TestVexoPushButton::freshImageIsRenderedOnce()
{
    VexoPushButton button;
    const QString file = m_files.svg(IMAGE);
    button.setSvgImage(file, Standard);
    button.setSvgImage(file, Clicked);
    const QPixmap shown = button.icon().pixmap(button.iconSize());
    QVERIFY(!shown.isNull());
    for (const ButtonState state : { Standard, Clicked })
        QCOMPARE(button.getIconForState(state).toPixmap().cacheKey(), shown.cacheKey());
}

void TestVexoPushButton::imageCanBeHiddenAndRemoved()
{
    const PanelScale scale(10, 20);
    VexoPushButton button;
    const QImage plain = picture(&button);
    button.hideImage(true);
    QCOMPARE(button.height(), 200); // as with any image
    button.hideImage(false); // only the empty image is left: as without
    picture(&button);
    QCOMPARE(caught, QByteArrayList());
    button.removeImage();
    button.setSvgImage(m_files.svg(Qt::green), QSizeF(3, 3), Standard);
    button.setSvgImage(m_files.svg(IMAGE), QSizeF(4, 4), Standard); // in its place
    const QImage shown = picture(&button);
    QVERIFY_EXCEPTION_THROWN(
        button.setSvgImage(QString(), QSizeF(-1, 5), Standard), std::out_of_range);
    button.hideImage(true);
    QCOMPARE(picture(&button).size(), shown.size());
    QVERIFY(boxOf(picture(&button), IMAGE).isEmpty());
    button.hideImage(false);
    QCOMPARE(picture(&button), shown); // at its place
    button.removeImage();
    QCOMPARE(picture(&button), plain);
    QVERIFY(button.icon().isNull());
}

void TestVexoPushButton::buttonWithoutStandardImageThrows()
{
    QWidget window;
    VexoPushButton button(&window);
    VexoPushButton next(&window);
    next.setBackgroundColor(Qt::cyan);
    next.move(0, 100);
    button.setSvgImage(m_files.svg(IMAGE), Clicked);
    QVERIFY_EXCEPTION_THROWN(button.getIconForState(Standard), std::logic_error);
    QVERIFY(!boxOf(picture(&window), Qt::cyan).isEmpty());
    QCOMPARE(caught, QByteArrayList{ "No standard icon for VexoPushButton set" });
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(caught.size(), 2);
    QVERIFY(!button.paintingActive() && !button.testAttribute(Qt::WA_WState_InPaintEvent));
    button.setDown(true); // has an image
    QVERIFY(!boxOf(picture(&window), IMAGE).isEmpty());
    QCOMPARE(caught.size(), 2);
}

void TestVexoPushButton::labelBreaksWhereItReachesTheMargins()
{
    const PanelScale scale(10, 20);
    Underlined button(QStringLiteral("Speichern"));
    button.setDrawButtonBorder(false);
    button.setTextMmMarginX(1); // 10 px
    for (const QString &right : { QString(), QStringLiteral("12") }) {
        button.setRightSideText(right);
        const int limit = button.metrics().boundingRect(button.text()).width()
            + button.metrics().boundingRect(right).width() + 30;
        button.resize(limit + 1, 240);
        QVERIFY(!button.hasTwoLines());
        button.resize(limit, 240);
        QVERIFY(button.hasTwoLines());
        QVERIFY(!button.ink({ 0, 0, limit, 120 }).isEmpty());
    }
    const int right_x
        = button.width() - 10 - button.metrics().horizontalAdvance(QStringLiteral("12"));
    QVERIFY(button.ink({ right_x, 0, 99, 240 }).top() >= 120);
}

void TestVexoPushButton::textsKeepTheirMargins()
{
    const PanelScale scale(10, 20);
    Underlined button(QStringLiteral("Ok"));
    const QString right = QStringLiteral("Off");
    button.setTextMmMarginX(2);
    QCOMPARE(button.ink().left(), 50); // after the margin of 3 mm
    button.setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QCOMPARE(button.ink().right(), 449);
    button.setDrawButtonBorder(false);
    QCOMPARE(button.ink().right(), 479);
    button.setRightSideText(right);
    const int right_x = 480 - button.metrics().horizontalAdvance(right);
    QCOMPARE(button.ink().right(), 479);
    QCOMPARE(button.ink({ 0, 0, right_x - 10, 240 }).right(), right_x - 21);
    QCOMPARE(button.ink({ right_x - 10, 0, 100, 240 }).left(), 10);
    QCOMPARE(button.accessibleDescription(), right);
}

void TestVexoPushButton::fittingStringIsTheLongest_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("word") << QStringLiteral("Geschwindigkeitsbegrenzungsanzeige");
    QTest::newRow("line break") << QStringLiteral("first line\nsecond  line ");
    QTest::newRow("kerning") << QStringLiteral("AVAVAffiflWAToTo");
    QTest::newRow("Arabic") << QStringLiteral("\u0645\u0631\u062d\u0628\u0627 \u0628\u0643\u0645");
    QTest::newRow("accents") << QStringLiteral("a\u0301\u0302e\u0301o\u0308n\u0303");
    QTest::newRow("pairs") << QStringLiteral("a\U0001D578\U0001D578bc\U0001D578");
}

void TestVexoPushButton::fittingStringIsTheLongest()
{
    QFETCH(QString, text);
    VexoPushButton button;
    const QFontMetrics metrics(button.font());
    for (int width = -1; width <= metrics.boundingRect(text).width() + 1; ++width) {
        int length = text.size();
        while (length > 0 && metrics.boundingRect(text.left(length)).width() > width)
            --length;
        if (length > 0 && length < text.size() && text.at(length).isLowSurrogate())
            --length; // never half a pair
        QCOMPARE(
            button.findFittingString(metrics, text, QRectF(0, 0, width, 9)), text.left(length));
    }
}

void TestVexoPushButton::longTextIsFittedQuickly()
{
    VexoPushButton button;
    const QFontMetrics metrics(button.font());
    const QString text(10000, QLatin1Char('m'));
    const std::clock_t start = std::clock(); // CPU time, whatever else the machine does
    metrics.boundingRect(text);
    const std::clock_t once = std::clock() - start;
    button.findFittingString(metrics, text, QRectF(0, 0, 300, 9));
    QVERIFY(std::clock() - start - once < 200 * once); // one by one: thousands
}

void TestVexoPushButton::easyAccessClicksBesideTheButton_data()
{
    QTest::addColumn<QVector<QPoint>>("way"); // on a button of 100 x 50 px
    QTest::addColumn<QByteArray>("told");
    const QByteArray beside("pressed; released; clicked 0; ");
    QTest::newRow("inside") << QVector<QPoint>{ { 9, 9 } }
                            << QByteArray("pressed; toggled 1; released; clicked 1; ");
    QTest::newRow("20 px right") << QVector<QPoint>{ { 9, 9 }, { 120, 9 } } << beside;
    QTest::newRow("20 px above") << QVector<QPoint>{ { 9, 9 }, { 9, -20 } } << beside;
    QTest::newRow("21 px below") << QVector<QPoint>{ { 9, 9 }, { 9, 71 } }
                                 << QByteArray("pressed; released; ");
}

void TestVexoPushButton::easyAccessClicksBesideTheButton()
{
    QFETCH(QVector<QPoint>, way);
    QFETCH(QByteArray, told);
    VexoPushButton button;
    button.setFixedSize(100, 50);
    button.setCheckable(true);
    QByteArray log;
    record(&button, &log);
    // What is ignored goes on to a parent.
    QCOMPARE(touch(&button, way), told.contains("clicked"));
    QCOMPARE(log, told);
}

void TestVexoPushButton::ringsAndMayBeDeleted()
{
    QVERIFY(ringsOnce<VexoPushButton>());
    QVERIFY(isGoneAfter(&QAbstractButton::pressed, new VexoPushButton));
    for (const QPoint &end : { QPoint(9, 9), QPoint(-9, 9) }) {
        const QVector<QPoint> way{ { 9, 9 }, end };
        QVERIFY(isGoneAfter(&QAbstractButton::released, new VexoPushButton, way));
        QVERIFY(isGoneAfter(&QAbstractButton::clicked, new VexoPushButton, way));
    }
}

void TestVexoPushButton::changeRepaintsOnceOrNot()
{
    VexoPushButton button;
    QCOMPARE(propertiesWithoutOneRepaint(&button),
        (QByteArrayList{ "m_mm_horiz_center_distance_from_border", "m_pt_font_size",
            "m_text_mm_margin_x", "m_text_alignment", "m_right_side_text" }));
}

void TestVexoPushButton::fillsNoMoreThanItsPill()
{
    const PanelScale scale(10, 10); // margin 30 px, radius 30 px
    for (const int width_px : { 1, 30, 59, 60, 61, 80, 119, 120, 121, 200 }) {
        VexoPushButton button;
        button.setBackgroundColor(Qt::blue);
        button.setPenColor(Qt::blue);
        button.resize(width_px, button.height());
        const QRect filled = boxOf(picture(&button), Qt::blue);
        const QRect pill(30, 30, width_px - 60, 60);
        QVERIFY2(pill.adjusted(-1, -1, 1, 1).contains(filled) || filled.isEmpty(),
            QByteArray::number(width_px));
        QCOMPARE(filled.isEmpty(), width_px <= 60);
    }
}

int main(int argc, char *argv[])
{
    const Application application(argc, argv);
    TestVexoPushButton test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_vexopushbutton.moc"
