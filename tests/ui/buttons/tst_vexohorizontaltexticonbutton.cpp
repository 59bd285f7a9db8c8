// SPDX-License-Identifier: MIT
#include "support/iconfiles.h"
#include "support/panelscale.h"
#include "support/testcase.h"

#include <VexoHorizontalTextIconButton>

using namespace vexo::hox::qt::ui;

namespace {

QPixmap square(const QColor &color)
{
    QPixmap pixmap(10, 20);
    pixmap.fill(color);
    return pixmap;
}

QRect inkOf(QWidget *row, const QColor &color = Qt::white)
{
    return boxOf(row->grab().toImage(), color);
}

} // namespace

class TestVexoHorizontalTextIconButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void columnsFollowThePercents_data();
    void columnsFollowThePercents();
    void looksFollowTheState();
    void imageServesStatesWithoutOne();

private:
    const PanelScale m_scale{ 10, 20 };
};

void TestVexoHorizontalTextIconButton::columnsFollowThePercents_data()
{
    using Numbers = QVector<double>;
    QTest::addColumn<Numbers>("given"); // % left, % right, indent in mm
    QTest::addColumn<Numbers>("columns"); // first and last of the texts, in 800 px
    QTest::addColumn<int>("image_x"); // 10 px, centred in the rest
    QTest::newRow("no indent") << Numbers{ 70, 20, 0 } << Numbers{ 0, 559, 559, 718 } << 754;
    QTest::newRow("indent") << Numbers{ 70, 20, 2 } << Numbers{ 20, 559, 579, 718 } << 754;
    QTest::newRow("cut") << Numbers{ 50.2, 30.3, 1.19 } << Numbers{ 11, 400, 411, 641 } << 715;
}

void TestVexoHorizontalTextIconButton::columnsFollowThePercents()
{
    QFETCH(QVector<double>, given);
    const QString text(10000, QLatin1Char('M'));
    QFont font; // a line below the whole text shows where it begins and ends
    font.setUnderline(true);
    VexoHorizontalTextIconButton row;
    row.resize(800, 1);
    row.setFont(font);
    row.setPtFontSize(20);
    row.setLeftSideTextPercentWidth(given[0]);
    row.setRightSideTextPercentWidth(given[1]);
    row.setDefaultImage(square(Qt::red));
    row.setLeftSideText(text);
    row.setMmIndent(given[2]);
    const QRect left = inkOf(&row);
    row.setLeftSideText(QString());
    row.setRightSideText(text);
    const QRect right = inkOf(&row);
    const QVector<int> seen{ left.left(), left.right(), right.left(), right.right() };
    QTEST((QVector<double>(seen.begin(), seen.end())), "columns");
    QTEST(inkOf(&row, Qt::red).x(), "image_x");
    QCOMPARE(inkOf(&row, Qt::red).y(), 90); // in 10 mm
    QCOMPARE(row.accessibleDescription(), text);
}

void TestVexoHorizontalTextIconButton::looksFollowTheState()
{
    VexoHorizontalTextIconButton row;
    row.resize(400, 200);
    row.setLeftSideText("M");
    const QByteArrayList states{ "default", "clicked", "inactive" };
    const auto color = [](int state, int part) { return QColor(50 * state, 50 * part, 200); };
    for (int i = 0; i < states.size(); ++i) {
        row.setProperty(states[i] + "_text_color", color(i, 0));
        row.setProperty(states[i] + "_background_color", color(i, 1));
        row.setProperty(states[i] + "_image", square(color(i, 2)));
    }
    for (int i = 0; i < states.size(); ++i) {
        row.setEnabled(i < 2);
        row.setDown(i > 0); // the inactive one too
        QVERIFY2(!inkOf(&row, color(i, 0)).isEmpty(), states[i]);
        QCOMPARE(inkOf(&row, color(i, 1)), QRect(0, 0, 400, 200));
        QCOMPARE(inkOf(&row, color(i, 2)).size(), QSize(10, 20));
    }
}

void TestVexoHorizontalTextIconButton::imageServesStatesWithoutOne()
{
    VexoHorizontalTextIconButton row;
    row.resize(400, row.height());
    row.setClickedImage(square(Qt::red));
    QVERIFY(!inkOf(&row, Qt::red).isEmpty());
    row.setDefaultImage(square(Qt::green));
    QVERIFY(!inkOf(&row, Qt::green).isEmpty());
    row.setEnabled(false);
    QVERIFY(!inkOf(&row, Qt::red).isEmpty());
}

QTEST_MAIN(TestVexoHorizontalTextIconButton)
#include "tst_vexohorizontaltexticonbutton.moc"
