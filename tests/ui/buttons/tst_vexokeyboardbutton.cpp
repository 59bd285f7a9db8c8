// SPDX-License-Identifier: MIT
#include "support/iconfiles.h"
#include "support/panelscale.h"
#include "support/testcase.h"

#include <VexoKeyboardButton>

using namespace vexo::hox::qt::ui;

namespace {

const QString DEFAULT = QLatin1String(ActiveButton::DEFAULT_STATE_NAME);
const QColor STANDARD(Qt::yellow);
const QColor SPECIAL(Qt::cyan);
const QColor DARK(Qt::black);
const QColor INACTIVE(Qt::gray);
const QColor BORDER(Qt::magenta);
const QColor INK(Qt::red);
const QColor DARK_INK(Qt::white);
const QColor TOP(Qt::green);
const QColor BOTTOM(Qt::darkBlue);

void dress(VexoKeyboardButton *key)
{
    key->resize(200, key->height());
    key->setBackgroundColor(STANDARD);
    key->setBackgroundSpecialKeyColor(SPECIAL);
    key->setBackgroundClickedColor(DARK);
    key->setBackgroundInactiveColor(INACTIVE);
    key->setBorderColor(BORDER);
    key->setTextColor(INK);
    key->setTextClickedColor(DARK_INK);
    key->setBorderTopColor(TOP);
    key->setBorderBottomExtraColor(BOTTOM);
}

QImage picture(VexoKeyboardButton *key)
{
    return key->grab().toImage();
}

} // namespace

class TestVexoKeyboardButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void lookFollowsNameAndState_data();
    void lookFollowsNameAndState();
    void edgesAreDrawnOnRequest();
    void cornersAreRoundInMillimetres();
    void iconIsRenderedAtTheCommonSize_data();
    void iconIsRenderedAtTheCommonSize();
    void labelLeavesItsIconSeen();
    void directionIsThatOfTheApplication();

private:
    IconFiles m_files;
};

void TestVexoKeyboardButton::lookFollowsNameAndState_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QColor>("cap");
    QTest::addColumn<QColor>("label");
    QTest::addColumn<QColor>("icon"); // blue, its inverse red
    const QColor normal(Qt::blue);
    const QColor inverse(Qt::red);
    QTest::newRow("standard") << "key" << STANDARD << INK << normal;
    QTest::newRow("space") << "spaceButton" << STANDARD << INK << normal;
    QTest::newRow("shift") << "shiftLeftButton" << SPECIAL << INK << normal;
    QTest::newRow("no name") << "" << SPECIAL << INK << normal;
    QTest::newRow("down") << "key" << DARK << DARK_INK << inverse;
    QTest::newRow("latched") << "" << DARK << DARK_INK << inverse;
    QTest::newRow("off") << "key" << INACTIVE << INK << normal;
    QTest::newRow("off, latched") << "key" << INACTIVE << DARK_INK << normal;
}

void TestVexoKeyboardButton::lookFollowsNameAndState()
{
    QFETCH(QString, name);
    QFETCH(QColor, label);
    QFETCH(QColor, icon);
    const QByteArray look(QTest::currentDataTag());
    const PanelScale scale(10, 20);
    VexoKeyboardButton key;
    dress(&key);
    key.setObjectName(name);
    key.addIcon(DEFAULT, m_files.svg(Qt::blue));
    key.addInverseIcon(DEFAULT, m_files.svg(Qt::red));
    key.setCheckable(true);
    key.setEnabled(!look.contains("off"));
    key.setChecked(look.contains("latched"));
    key.setDown(look.contains("down"));
    QImage image = picture(&key);
    QTEST(image.pixelColor(20, 80), "cap");
    QCOMPARE(boxOf(image, icon), QRect(77, 32, 47, 94)); // 94 px high, as wide in mm
    key.removeIcons();
    key.setIcon(QIcon());
    key.setText("H");
    image = picture(&key);
    const QRect letter = boxOf(image, label);
    QVERIFY(qAbs(letter.height() - 66) <= 4); // of 91 px
    QVERIFY(qAbs(letter.center().x() - 100) <= 2);
    QVERIFY(qAbs(letter.center().y() - 80) <= 8); // a capital stands above the line's middle
}

void TestVexoKeyboardButton::edgesAreDrawnOnRequest()
{
    const PanelScale scale(6, 6);
    VexoKeyboardButton key;
    dress(&key);
    key.setObjectName(VexoKeyboardButton::STANDARD_KEY_OBJECT_NAME);
    QCOMPARE(key.minimumHeight(), 48);
    QCOMPARE(key.maximumHeight(), 48);
    QImage image = picture(&key);
    QCOMPARE(image.pixelColor(100, 0), TOP);
    QCOMPARE(image.pixelColor(100, 1), STANDARD);
    QCOMPARE(image.pixelColor(100, 45), STANDARD);
    QCOMPARE(image.pixelColor(100, 47), BOTTOM);
    key.setStandardBorderDrawingDisabled(false);
    image = picture(&key);
    for (const QColor &edge : { TOP, BOTTOM })
        QVERIFY(boxOf(image, edge).isEmpty());
    QCOMPARE(image.pixelColor(100, 46), STANDARD);
    for (int row : { 0, 47 }) // the outline lies half on the outermost row, half beyond it
        QVERIFY(qAbs(image.pixelColor(100, row).blue() - 128) <= 1); // magenta on yellow
}

void TestVexoKeyboardButton::cornersAreRoundInMillimetres()
{
    const PanelScale scale(10, 20);
    VexoKeyboardButton key;
    dress(&key);
    key.setObjectName(VexoKeyboardButton::SPACE_BUTTON_OBJECT_NAME);
    key.setCornerRadius(2); // 20 x 40 px
    QImage image = picture(&key);
    QCOMPARE(boxOf(image, BOTTOM), QRect(19, 158, 161, 2)); // with square ends
    key.setStandardBorderDrawingDisabled(false);
    image = picture(&key);
    for (const QPoint &outside : { QPoint(2, 16), QPoint(197, 16), QPoint(2, 143) })
        QVERIFY(image.pixelColor(outside) != STANDARD);
    for (const QPoint &inside : { QPoint(3, 30), QPoint(12, 10), QPoint(196, 129) })
        QCOMPARE(image.pixelColor(inside), STANDARD);
}

void TestVexoKeyboardButton::iconIsRenderedAtTheCommonSize_data()
{
    QTest::addColumn<QSizeF>("mm"); // on a panel of 10 x 20 px/mm, an image of 2 : 1
    QTest::addColumn<QSize>("px"); // invalid: as before
    QTest::newRow("both given") << QSizeF(1.29, 1.29) << QSize(12, 25);
    QTest::newRow("width follows") << QSizeF(0, 1) << QSize(20, 20);
    QTest::newRow("height follows") << QSizeF(4, 0) << QSize(40, 40);
    QTest::newRow("negative is ignored") << QSizeF(-1, 3) << QSize(94, 94);
    QTest::newRow("NaN is ignored") << QSizeF(1, qQNaN()) << QSize(94, 94);
    QTest::newRow("no width") << QSizeF(0.05, 4) << QSize();
    QTest::newRow("no height") << QSizeF(4, 0.04) << QSize();
    QTest::newRow("nothing") << QSizeF(0, 0) << QSize();
}

void TestVexoKeyboardButton::iconIsRenderedAtTheCommonSize()
{
    QFETCH(QSizeF, mm);
    QFETCH(QSize, px);
    const PanelScale scale(10, 20);
    VexoKeyboardButton key;
    const QSize before = key.iconSize();
    key.setCommonIconSizeMM(mm);
    key.addIcon(DEFAULT, m_files.svg(Qt::blue, QSize(20, 10)));
    QCOMPARE(key.iconSize(), px.isValid() ? px : before);
    if (px.isValid())
        QCOMPARE(key.icon().availableSizes(), QList<QSize>{ px });
    key.setCommonIconSizeMM(QSizeF(2, 2));
    QCOMPARE(key.iconSize(), px.isValid() ? px : before); // until it is rendered anew
    key.rerenderAll(false);
    QCOMPARE(key.iconSize(), QSize(20, 40));
}

void TestVexoKeyboardButton::labelLeavesItsIconSeen()
{
    const PanelScale scale(10, 20); // the cap has room for the letters with their ground
    VexoKeyboardButton key;
    dress(&key);
    key.setButtonTextFontSizeInPt(9);
    key.addIcon(DEFAULT, m_files.svg(Qt::blue));
    const QRect icon = boxOf(picture(&key), Qt::blue);
    QVERIFY(!icon.isEmpty());
    key.setText("i");
    QVERIFY(!boxOf(picture(&key), INK).isEmpty());
    QVERIFY(boxOf(picture(&key).copy(icon), SPECIAL).isEmpty()); // no ground on it
}

// Of now, not of when the key was made.
void TestVexoKeyboardButton::directionIsThatOfTheApplication()
{
    const auto made = [](VexoKeyboardButton *key) {
        dress(key);
        key->setText("(a) b.");
        return picture(key);
    };
    VexoKeyboardButton before;
    const QImage left_to_right = made(&before);
    QApplication::setLayoutDirection(Qt::RightToLeft);
    VexoKeyboardButton after;
    const QImage right_to_left = made(&after);
    const QImage later = made(&before);
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QVERIFY(right_to_left != left_to_right);
    QVERIFY(later == right_to_left);
}

QTEST_MAIN(TestVexoKeyboardButton)
#include "tst_vexokeyboardbutton.moc"
