// SPDX-License-Identifier: MIT
#include "support/iconfiles.h"
#include "support/panelscale.h"
#include "support/testcase.h"

#include <VexoCenteredVectorButton>
#include <VexoIconButton>

#include <stdexcept>

using namespace vexo::hox::qt::ui;

class TestVexoCenteredVectorButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void measuresPlaceTheIcon();
    void fontsKeepTheirWeights();
    void negativeIconSizeChangesNothing();

private:
    const PanelScale m_scale{ 10, 20 };
    IconFiles m_files;
};

void TestVexoCenteredVectorButton::measuresPlaceTheIcon()
{
    VexoCenteredVectorButton tile;
    const auto icon = [&] { return boxOf(tile.grab().toImage(), Qt::magenta); };
    tile.setIconPath(m_files.svg(Qt::red));
    tile.setIconPath(m_files.svg(Qt::magenta)); // in its place
    const auto labels = tile.findChildren<QLabel *>();
    for (QLabel *label : labels)
        label->setFixedHeight(73); // fills the tile
    QCOMPARE(tile.size(), QSize(300, 560));
    QCOMPARE(icon(), QRect(80, 100, 140, 280));
    QCOMPARE(tile.layout()->minimumSize(), QSize(280, 100 + 280 + 34 + 2 * 73));

    tile.setIconSizeInMm(12); // while it is shown
    QCOMPARE(icon().size(), QSize(120, 240));
    tile.addIcon(QLatin1String(ActiveButton::CLICKED_STATE_NAME), m_files.svg(Qt::magenta));
    tile.getButtonInstance()->setDown(true);
    tile.setWidthInMm(16.49);
    tile.setHeightInMm(26.34);
    tile.setIconSideSpacingInMm(2.29);
    tile.setIconTopSpacingInMm(4.04);
    tile.setIconBottomSpacingInMm(3.04);
    QCOMPARE(tile.size(), QSize(164, 526));
    QCOMPARE(icon(), QRect(22, 80, 120, 240));
    QCOMPARE(tile.layout()->minimumSize(), QSize(164, 80 + 240 + 60 + 2 * 73));
}

void TestVexoCenteredVectorButton::fontsKeepTheirWeights()
{
    VexoCenteredVectorButton tile;
    tile.setTextFontSizeInPt(12);
    tile.setText("Camera");
    tile.setSubtext("off");
    const auto *text = tile.findChild<QLabel *>("textLabel");
    const auto *subtext = tile.findChild<QLabel *>("subtextLabel");
    QCOMPARE(text->font().pixelSize(), 84);
    QCOMPARE(text->font().weight(), 57);
    QCOMPARE(subtext->font().pixelSize(), 63); // 9 pt = 63.5 px
    QCOMPARE(subtext->font().weight(), 50);
    QCOMPARE(tile.getButtonInstance()->accessibleName(), text->text());
    QCOMPARE(tile.getButtonInstance()->accessibleDescription(), subtext->text());
}

void TestVexoCenteredVectorButton::negativeIconSizeChangesNothing()
{
    VexoCenteredVectorButton tile;
    tile.setIconPath(m_files.svg(Qt::magenta));
    const QImage before = tile.grab().toImage();
    for (double mm : { -1.0, qQNaN() })
        QVERIFY_EXCEPTION_THROWN(tile.setIconSizeInMm(mm), std::out_of_range);
    QCOMPARE(tile.iconSizeInMm(), 14.0);
    QCOMPARE(tile.grab().toImage(), before);
}

QTEST_MAIN(TestVexoCenteredVectorButton)
#include "tst_vexocenteredvectorbutton.moc"
