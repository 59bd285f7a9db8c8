#include "support/iconfiles.h"
#include "support/paintcounter.h"
#include "support/panelscale.h"
#include "support/testcase.h"

#include <VexoDesignVectorButton>

#include <QFontMetrics>
#include <QTest>

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
    void repaintsOnceForEachProperty();

private:
    const IconFiles m_files;
};

void TestVexoDesignVectorButton::centresTheIconOnItsPoint_data()
{
    QTest::addColumn<QSize>("density");
    QTest::addColumn<QSizeF>("icon_mm");
    QTest::addColumn<QPointF>("centre_mm");
    QTest::addColumn<QRect>("visible");
    const QPointF usual(6.25, 7.25);
    QTest::newRow("square pixels")
        << QSize(6, 6) << QSizeF(10, 10) << usual << QRect(7, 13, 60, 60);
    QTest::newRow("upright pixels")
        << QSize(10, 20) << QSizeF(2, 2) << usual << QRect(52, 125, 20, 40);
    QTest::newRow("odd size, half of it cut")
        << QSize(10, 20) << QSizeF(2.1, 1.05) << QPointF(5, 4) << QRect(40, 70, 21, 21);
    QTest::newRow("off the edge, cut toward zero")
        << QSize(10, 20) << QSizeF(2, 2) << QPointF(0.05, 4) << QRect(0, 60, 11, 40);
}

void TestVexoDesignVectorButton::centresTheIconOnItsPoint()
{
    QFETCH(QSize, density);
    QFETCH(QSizeF, icon_mm);
    QFETCH(QPointF, centre_mm);
    const PanelScale scale(density.width(), density.height());
    VexoDesignVectorButton tile;
    dress(&tile);
    tile.addIcon(DEFAULT, m_files.svg(Qt::blue));
    tile.setMmIconSize(icon_mm);
    tile.setMmIconPos(centre_mm);
    QTEST(boxOf(picture(&tile), Qt::blue), "visible");
}

void TestVexoDesignVectorButton::placesTheBaselines_data()
{
    QTest::addColumn<double>("height_mm"); // on a panel of 10 x 20 px/mm
    QTest::addColumn<int>("height_px");
    QTest::addColumn<double>("text_pt");
    QTest::addColumn<double>("subtext_pt");
    QTest::addColumn<double>("spacing_pt");
    QTest::addColumn<int>("text_px");
    QTest::addColumn<int>("below_ascent"); // px from the ascent of the main text to its baseline
    QTest::addColumn<int>("spacing_px");
    QTest::newRow("defaults") << 14.5 << 290 << 9.0 << 9.0 << 11.0 << 63 << 75 << 77;
    QTest::newRow("large text") << 14.5 << 290 << 12.0 << 9.0 << 11.0 << 84 << 75 << 77;
    QTest::newRow("small subtext") << 14.5 << 290 << 9.0 << 6.0 << 11.0 << 63 << 85 << 77;
    QTest::newRow("close lines") << 14.5 << 290 << 9.0 << 9.0 << 8.0 << 63 << 85 << 56;
    QTest::newRow("half a pixel is cut") << 12.05 << 241 << 9.0 << 9.0 << 11.0 << 63 << 50 << 77;
    QTest::newRow("too low for both") << 5.0 << 100 << 9.0 << 9.0 << 11.0 << 63 << -20 << 77;
}

void TestVexoDesignVectorButton::placesTheBaselines()
{
    QFETCH(double, height_mm);
    QFETCH(double, text_pt);
    QFETCH(double, subtext_pt);
    QFETCH(double, spacing_pt);
    QFETCH(int, text_px);
    QFETCH(int, below_ascent);
    QFETCH(int, spacing_px);
    const PanelScale scale(10, 20);
    VexoDesignVectorButton tile;
    tile.setPtTextFontSize(text_pt);
    tile.setPtSubtextFontSize(subtext_pt);
    tile.setPtLineSpacing(spacing_pt);
    tile.setMmHeight(height_mm);
    QTEST(tile.minimumHeight(), "height_px");
    QTEST(tile.maximumHeight(), "height_px");
    dress(&tile);
    QFont font;
    font.setPixelSize(text_px);
    font.setWeight(QFont::Medium);
    const int baseline = QFontMetrics(font).ascent() + below_ascent;
    const QString letters = QStringLiteral("EEEE");
    const QRect line = boxOfLine(&tile, letters, QString());
    QCOMPARE(line.bottom() + 1, baseline);
    const QRect subline = boxOfLine(&tile, QString(), letters);
    QCOMPARE(subline.bottom() + 1, qMin(baseline + spacing_px, tile.height()));
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
    tile.setText(QStringLiteral("E"));
    const QImage main_text = picture(&tile);
    tile.setSubtext(QStringLiteral("E"));
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
    QTest::addColumn<QString>("line");
    QTest::addColumn<QByteArray>("missing");
    QTest::addColumn<QString>("subline");
    QTest::newRow("on") << true << true << "on" << QByteArray() << "on below";
    QTest::newRow("off") << true << false << "off" << QByteArray() << "off below";
    QTest::newRow("not checkable") << false << false << "plain" << QByteArray() << "below";
    for (const char *missing : { "on_text", "off_text", "on_subtext", "off_subtext" })
        QTest::newRow(missing) << true << true << "plain" << QByteArray(missing) << "below";
}

void TestVexoDesignVectorButton::toggleTextsNeedAllFour()
{
    QFETCH(bool, checkable);
    QFETCH(bool, checked);
    QFETCH(QByteArray, missing);
    QFETCH(QString, line);
    QFETCH(QString, subline);
    const PanelScale scale(10, 20);
    VexoDesignVectorButton tile;
    VexoDesignVectorButton expected;
    for (VexoDesignVectorButton *each : { &tile, &expected }) {
        dress(each);
        each->setCheckable(checkable);
        each->setChecked(checked);
    }
    expected.setText(line);
    expected.setSubtext(subline);
    tile.setText(QStringLiteral("plain"));
    tile.setSubtext(QStringLiteral("below"));
    tile.setOnText(QStringLiteral("on"));
    tile.setOnSubtext(QStringLiteral("on below"));
    tile.setOffText(QStringLiteral("off"));
    tile.setOffSubtext(QStringLiteral("off below"));
    if (!missing.isEmpty())
        tile.setProperty(missing, QString());
    QCOMPARE(tile.isToggleTextSet(), missing.isEmpty());
    QCOMPARE(picture(&tile), picture(&expected));
}

void TestVexoDesignVectorButton::darkLook_data()
{
    QTest::addColumn<QByteArray>("look");
    QTest::addColumn<bool>("is_dark");
    QTest::addColumn<bool>("must_be_dark"); // by "dark when on"
    QTest::newRow("up") << QByteArray() << false << false;
    QTest::newRow("pressed") << QByteArray("down") << true << false;
    QTest::newRow("on") << QByteArray("on") << true << false;
    QTest::newRow("on, dark when on") << QByteArray("on must") << true << true;
    QTest::newRow("dark when on, but off") << QByteArray("must") << false << false;
    QTest::newRow("pressed, never dark") << QByteArray("down never") << false << false;
    QTest::newRow("on, never dark") << QByteArray("on must never") << false << true;
}

void TestVexoDesignVectorButton::darkLook()
{
    QFETCH(QByteArray, look);
    QFETCH(bool, is_dark);
    const PanelScale scale(6, 6);
    VexoDesignVectorButton tile;
    dress(&tile);
    tile.setText(QStringLiteral("EEEE"));
    tile.addIcon(DEFAULT, m_files.svg(Qt::blue));
    tile.addInverseIcon(DEFAULT, m_files.svg(Qt::cyan));
    tile.setCheckable(true);
    tile.setChecked(look.contains("on"));
    tile.setDown(look.contains("down"));
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
    const QString letter = QStringLiteral("E");
    const QString words = letter.repeated(10000) + QStringLiteral(" E").repeated(1000);
    const QRect line = boxOfLine(&tile, words, QString());
    QVERIFY(line.right() > 790); // no ellipsis
    QCOMPARE(line.bottom(), boxOfLine(&tile, letter, QString()).bottom()); // no second line
    const QRect subline = boxOfLine(&tile, QString(), words);
    QVERIFY(subline.right() > 790);
    QCOMPARE(subline.bottom(), boxOfLine(&tile, QString(), letter).bottom());
}

void TestVexoDesignVectorButton::repaintsOnceForEachProperty()
{
    VexoDesignVectorButton tile;
    QCOMPARE(propertiesWithoutOneRepaint(&tile), QByteArrayList());
}

QTEST_MAIN(TestVexoDesignVectorButton)
#include "tst_vexodesignvectorbutton.moc"
