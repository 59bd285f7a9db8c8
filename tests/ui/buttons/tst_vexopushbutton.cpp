// SPDX-License-Identifier: MIT
#include "support/iconfiles.h"
#include "support/paintcounter.h"
#include "support/panelscale.h"
#include "support/testcase.h"
#include "support/touch.h"

#include <VexoPushButton>

#include <QTest>

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

} // namespace

class TestVexoPushButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void imageIsPlacedInMillimetres_data();
    void imageIsPlacedInMillimetres();
    void looksFollowTheState_data();
    void looksFollowTheState();
    void imageCanBeHiddenAndRemoved();
    void buttonWithoutStandardImageThrows();
    void textsKeepTheirMargins();
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
    QCOMPARE(boxOf(seen.copy(200, 0, 1, 100), Qt::darkBlue), QRect(0, 57, 1, 6));
    QVERIFY(!boxOf(seen, text).isEmpty());
    QVERIFY(!boxOf(seen, images[image]).isEmpty());
    button.setDrawButtonBorder(false);
    seen = picture(&button);
    QCOMPARE(boxOf(seen, fill), QRect(0, 0, 400, 240));
    QVERIFY(boxOf(seen, Qt::darkBlue).isEmpty());
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

void TestVexoPushButton::textsKeepTheirMargins()
{
    const PanelScale scale(10, 20);
    const QString label = QStringLiteral("Speichern");
    const QString right = QStringLiteral("12");
    VexoPushButton button;
    QFont underlined = button.font(); // the line shows where a text begins and ends
    underlined.setUnderline(true);
    const QFontMetrics metrics(underlined);
    const auto ink = [&](const QRect &area = QRect(0, 0, 999, 999)) {
        return boxOf(picture(&button).copy(area), Qt::blue);
    };
    button.setFont(underlined);
    button.setTextColor(Qt::blue);
    button.setTextAlignment(Qt::AlignLeft);
    button.setText(label);
    button.setTextMmMarginX(2);
    button.resize(500, button.height());
    QCOMPARE(ink().left(), 50); // after the margin of 3 mm
    button.setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QCOMPARE(ink().right(), 449);
    button.setDrawButtonBorder(false);
    QCOMPARE(ink().right(), 479);
    button.setRightSideText(right);
    const int right_x = 480 - metrics.horizontalAdvance(right);
    QCOMPARE(
        ink({ right_x - 10, 0, 100, 240 }), QRect(10, ink().y(), 480 - right_x, ink().height()));
    QCOMPARE(ink({ 0, 0, right_x - 10, 240 }).right(), right_x - 21);
    QCOMPARE(button.accessibleDescription(), right);
    const int limit
        = metrics.boundingRect(label).width() + metrics.boundingRect(right).width() + 60;
    button.resize(limit + 1, 240);
    QVERIFY(!button.hasTwoLines());
    button.resize(limit, 240);
    QVERIFY(button.hasTwoLines());
    QVERIFY(!ink({ 0, 0, limit, 120 }).isEmpty());
    QVERIFY(ink({ right_x - 500 + limit, 0, 99, 240 }).top() >= 120);
    QVERIFY(button.findFittingString(metrics, label, QRectF(0, 0, 1, 999)).isEmpty());
}

void TestVexoPushButton::easyAccessClicksBesideTheButton()
{
    VexoPushButton button;
    button.setFixedSize(100, 50);
    button.setCheckable(true);
    QByteArray log;
    record(&button, &log);
    QVERIFY(touch(&button, { { 9, 9 } }));
    QVERIFY(touch(&button, { { 9, 9 }, { 120, 9 } }));
    QVERIFY(!touch(&button, { { 9, 9 }, { 9, 71 } })); // ignored: it goes on to a parent
    QCOMPARE(log,
        QByteArray("pressed; toggled 1; released; clicked 1; pressed; released; clicked 0; "
                   "pressed; released; "));
}

void TestVexoPushButton::ringsAndMayBeDeleted()
{
    QVERIFY(ringsOnce<VexoPushButton>());
    const Way beside{ { 9, 9 }, { -9, 9 } };
    QVERIFY(isGoneAfter(&QAbstractButton::released, new VexoPushButton, beside));
    QVERIFY(isGoneAfter(&QAbstractButton::clicked, new VexoPushButton, beside));
}

void TestVexoPushButton::changeRepaintsOnceOrNot()
{
    VexoPushButton button;
    QCOMPARE(propertiesWithoutOneRepaint(&button),
        (QByteArrayList{ "m_mm_horiz_center_distance_from_border", "m_pt_font_size",
            "m_text_mm_margin_x", "m_text_alignment", "m_right_side_text" }));
}

int main(int argc, char *argv[])
{
    const Application application(argc, argv);
    TestVexoPushButton test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_vexopushbutton.moc"
