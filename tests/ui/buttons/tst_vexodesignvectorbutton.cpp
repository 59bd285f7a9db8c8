// SPDX-License-Identifier: MIT
#include "support/iconfiles.h"
#include "support/panelscale.h"
#include "support/testcase.h"

#include <VexoDesignVectorButton>

#include <QFontMetrics>

using namespace vexo::hox::qt::ui;

namespace {

const QString DEFAULT = QLatin1String(ActiveButton::DEFAULT_STATE_NAME);
const QString CLICKED = QLatin1String(ActiveButton::CLICKED_STATE_NAME);
const QColor INK(Qt::red);
const QColor DARK_INK(Qt::yellow);
const QColor GROUND(Qt::white);
const QColor DARK_GROUND(Qt::black);

void dress(VexoDesignVectorButton *tile)
{
    tile->resize(800, tile->height());
    tile->setTextColor(INK);
    tile->setTextClickedColor(DARK_INK);
    tile->setBackgroundColor(GROUND);
    tile->setBackgroundClickedColor(DARK_GROUND);
}

QImage picture(VexoDesignVectorButton *tile)
{
    return tile->grab().toImage();
}

/// Where the tile draws \a line alone: letters that stand on the baseline.
QRect boxOfLine(VexoDesignVectorButton *tile, const QString &line, const QString &subline)
{
    tile->setText(line);
    tile->setSubtext(subline);
    return boxOf(picture(tile), INK);
}

} // namespace

class TestVexoDesignVectorButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void centresTheIconOnItsPoint_data();
    void centresTheIconOnItsPoint();
    void placesTheBaselines_data();
    void placesTheBaselines();
    void mainTextHasItsOwnWeight();
    void toggleTextsNeedAllFour_data();
    void toggleTextsNeedAllFour();
    void darkLook_data();
    void darkLook();
    void cutsLongTextsAtTheEdge();

private:
    IconFiles m_files;
};

void TestVexoDesignVectorButton::centresTheIconOnItsPoint_data()
{
    QTest::addColumn<QSizeF>("icon_mm"); // on a panel of 10 x 20 px/mm
    QTest::addColumn<QPointF>("centre_mm");
    QTest::addColumn<QRect>("visible");
    QTest::newRow("default") << QSizeF(2, 2) << QPointF() << QRect(52, 125, 20, 40);
    QTest::newRow("half cut") << QSizeF(2.1, 1.05) << QPointF(5, 4) << QRect(40, 70, 21, 21);
    QTest::newRow("toward 0") << QSizeF(2, 2) << QPointF(0.05, 4) << QRect(0, 60, 11, 40);
}

void TestVexoDesignVectorButton::centresTheIconOnItsPoint()
{
    QFETCH(QSizeF, icon_mm);
    QFETCH(QPointF, centre_mm);
    const PanelScale scale(10, 20);
    VexoDesignVectorButton tile;
    dress(&tile);
    tile.addIcon(DEFAULT, m_files.svg(Qt::blue));
    tile.setMmIconSize(icon_mm);
    if (!centre_mm.isNull())
        tile.setMmIconPos(centre_mm);
    QTEST(boxOf(picture(&tile), Qt::blue), "visible");
}

void TestVexoDesignVectorButton::placesTheBaselines_data()
{
    QTest::addColumn<double>("value"); // of the property; on a panel of 10 x 20 px/mm
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("text_px");
    QTest::addColumn<int>("below_ascent"); // px from the ascent of the main text to its baseline
    QTest::addColumn<int>("spacing");
    QTest::newRow("pt_text_font_size") << 12.0 << 290 << 84 << 75 << 77; // 9.0 is the default
    QTest::newRow("pt_subtext_font_size") << 6.0 << 290 << 63 << 85 << 77; // 9.0
    QTest::newRow("pt_line_spacing") << 8.0 << 290 << 63 << 85 << 56; // 11.0
    QTest::newRow("mm_height") << 12.05 << 241 << 63 << 50 << 77; // 14.5; half a pixel is cut
}

void TestVexoDesignVectorButton::placesTheBaselines()
{
    QFETCH(double, value);
    QFETCH(int, text_px);
    QFETCH(int, below_ascent);
    QFETCH(int, spacing);
    const PanelScale scale(10, 20);
    VexoDesignVectorButton tile;
    tile.setProperty(QTest::currentDataTag(), value);
    QTEST(tile.minimumHeight(), "height");
    QTEST(tile.maximumHeight(), "height");
    dress(&tile);
    QFont font;
    font.setPixelSize(text_px);
    font.setWeight(QFont::Medium);
    const int baseline = QFontMetrics(font).ascent() + below_ascent;
    const QString letters = "EEEE";
    const QRect line = boxOfLine(&tile, letters, QString());
    QCOMPARE(line.bottom() + 1, baseline);
    const QRect subline = boxOfLine(&tile, QString(), letters);
    QCOMPARE(subline.bottom() + 1, baseline + spacing);
    QCOMPARE(boxOfLine(&tile, letters, letters), line | subline);
    QVERIFY(line.left() >= 125 && line.left() < 140 && subline.left() >= 125); // 12.5 mm
    tile.setMmIndent(20.09); // 200 px
    QCOMPARE(boxOfLine(&tile, letters, QString()), line.translated(75, 0));
    QCOMPARE(boxOfLine(&tile, QString(), letters), subline.translated(75, 0));
}

void TestVexoDesignVectorButton::mainTextHasItsOwnWeight()
{
    VexoDesignVectorButton tile;
    dress(&tile);
    QFont bold;
    bold.setBold(true);
    tile.setText("E");
    const QImage main_text = picture(&tile);
    tile.setSubtext("E");
    const QImage both_texts = picture(&tile);
    tile.setFont(bold);
    QVERIFY(picture(&tile) != both_texts); // the subtext follows
    tile.setSubtext(QString());
    QCOMPARE(picture(&tile), main_text);
}

void TestVexoDesignVectorButton::toggleTextsNeedAllFour_data()
{
    QTest::addColumn<bool>("checkable");
    QTest::addColumn<bool>("checked");
    QTest::addColumn<QString>("shown");
    QTest::newRow("on") << true << true << "on";
    QTest::newRow("off") << true << false << "off";
    QTest::newRow("not checkable") << false << false << "plain";
    for (const char *missing : { "on_text", "off_text", "on_subtext", "off_subtext" })
        QTest::newRow(missing) << true << true << "plain";
}

void TestVexoDesignVectorButton::toggleTextsNeedAllFour()
{
    QFETCH(bool, checkable);
    QFETCH(bool, checked);
    QFETCH(QString, shown);
    const QString below = " below";
    const PanelScale scale(10, 20);
    VexoDesignVectorButton tile;
    VexoDesignVectorButton expected;
    for (VexoDesignVectorButton *each : { &tile, &expected }) {
        dress(each);
        each->setCheckable(checkable);
        each->setChecked(checked);
        each->setText("plain");
        each->setSubtext(each->text() + below);
    }
    expected.setText(shown);
    expected.setSubtext(shown + below);
    for (const char *property : { "on_text", "off_text", "on_subtext", "off_subtext" }) {
        const QString on_or_off = QString::fromLatin1(property).section(QLatin1Char('_'), 0, 0);
        tile.setProperty(property, strstr(property, "sub") ? on_or_off + below : on_or_off);
    }
    if (shown == "plain")
        tile.setProperty(QTest::currentDataTag(), QString());
    QCOMPARE(picture(&tile), picture(&expected));
}

void TestVexoDesignVectorButton::darkLook_data()
{
    QTest::addColumn<bool>("is_dark");
    QTest::addColumn<bool>("must_be_dark"); // by "dark when on"
    QTest::newRow("up") << false << false;
    QTest::newRow("down") << true << false;
    QTest::newRow("on") << true << false;
    QTest::newRow("on, must be dark") << true << true;
    QTest::newRow("must be dark when on") << false << false;
    QTest::newRow("down, never dark") << false << false;
    QTest::newRow("on, must be dark, never dark") << false << true;
}

void TestVexoDesignVectorButton::darkLook()
{
    QFETCH(bool, is_dark);
    const QByteArray look(QTest::currentDataTag());
    const PanelScale scale(6, 6);
    VexoDesignVectorButton tile;
    dress(&tile);
    tile.setText("EEEE");
    tile.addIcon(DEFAULT, m_files.svg(Qt::blue));
    tile.addInverseIcon(DEFAULT, m_files.svg(Qt::cyan));
    tile.setCheckable(true);
    tile.setChecked(look.startsWith("on"));
    tile.setDown(look.startsWith("down"));
    tile.setDarkButtonWhenOn(look.contains("must"));
    tile.setIgnoreBackgroundDarkRendering(look.contains("never"));
    QTEST(tile.mustBackgroundBeRenderedPressed(), "must_be_dark");

    const QImage image = picture(&tile);
    QCOMPARE(image.pixelColor(799, 86), is_dark ? DARK_GROUND : GROUND);
    QCOMPARE(image.pixelColor(37, 43), QColor(is_dark ? Qt::cyan : Qt::blue));
    QVERIFY(!boxOf(image, is_dark ? DARK_INK : INK).isEmpty());
    QVERIFY(boxOf(image, is_dark ? INK : DARK_INK).isEmpty());

    tile.addIcon(CLICKED, m_files.svg(Qt::green));
    QCOMPARE(picture(&tile).pixelColor(37, 43), QColor(is_dark ? Qt::green : Qt::blue));
    QCOMPARE(tile.currentState(), DEFAULT); // a paint changes no state
}

void TestVexoDesignVectorButton::cutsLongTextsAtTheEdge()
{
    const PanelScale scale(10, 20);
    VexoDesignVectorButton tile;
    dress(&tile);
    const QString letter = QString("E");
    const QString words = letter.repeated(10000) + QString(" E").repeated(1000);
    const QRect line = boxOfLine(&tile, letter, QString());
    const QRect subline = boxOfLine(&tile, QString(), letter);
    const QRect words_line = boxOfLine(&tile, words, QString());
    const QRect words_subline = boxOfLine(&tile, QString(), words);
    QVERIFY(words_line.right() > 790 && words_subline.right() > 790); // no ellipsis
    QCOMPARE(words_line.bottom(), line.bottom()); // no second line
    QCOMPARE(words_subline.bottom(), subline.bottom());
}

QTEST_MAIN(TestVexoDesignVectorButton)
#include "tst_vexodesignvectorbutton.moc"
