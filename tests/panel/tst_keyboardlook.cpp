// SPDX-License-Identifier: MIT
#include "panel/typist.h"
#include "support/panelscale.h"
#include "support/testcase.h"

#include <QLineEdit>

using namespace vexo::hox::qt;

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

} // namespace

/// What the keys of an on-screen keyboard look like.
class TestKeyboardLook : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void keysMayBeDark();
    void labelsFitTheKeys_data();
    void labelsFitTheKeys();
    void imagesOutliveATinySize();
};

// Ground, a letter's key, and the locked shift with its arrow.
void TestKeyboardLook::keysMayBeDark()
{
    const PanelScale scale(5, 6);
    QLineEdit field;
    field.setInputMethodHints(Qt::ImhUppercaseOnly);
    panel::OnScreenKeyboard keyboard;
    keyboard.setReceiver(&field);
    keyboard.resize(800, 270);
    keyboard.show();
    const auto look = [&keyboard] {
        const QImage image = keyboard.grab().toImage();
        const QRect shift = keyOf(keyboard, text("Shift"))->geometry();
        const QPoint letter = keyOf(keyboard, text("Q"))->pos();
        QStringList colors;
        for (const QPoint &place :
            { QPoint(), letter + QPoint(9, 9), shift.topLeft() + QPoint(9, 9), shift.center() })
            colors += image.pixelColor(place).name();
        return colors.join(QLatin1Char(' '));
    };
    keyboard.setDark(true);
    QCOMPARE(look(), text("#1e1e1e #505050 #dcdcdc #3c3c3c"));
    keyboard.setBackgroundColor(Qt::red);
    keyboard.setDark(false);
    QCOMPARE(look(), text("#ff0000 #f5f5f5 #505050 #ffffff"));
    keyboard.setBackgroundColor(QColor());
    QCOMPARE(look(), text("#c8c8c8 #f5f5f5 #505050 #ffffff"));
}

void TestKeyboardLook::labelsFitTheKeys_data()
{
    QTest::addColumn<QSizeF>("mm");
    QTest::addColumn<double>("pt"); // of a letter
    QTest::newRow("usual") << QSizeF(160, 43) << 15.0;
    QTest::newRow("low") << QSizeF(160, 26) << 15 * 6.125 / 9; // 1.5 mm around, 0.5 mm between
    QTest::newRow("narrow") << QSizeF(67, 43) << 15 * 6.475 / 8; // of ten letters
}

void TestKeyboardLook::labelsFitTheKeys()
{
    QFETCH(QSizeF, mm);
    QFETCH(double, pt);
    const PanelScale scale(40, 40);
    panel::OnScreenKeyboard keyboard;
    keyboard.setLanguages({ text("en") });
    keyboard.resize((mm * 40).toSize());
    keyboard.show();
    const auto *key = keyOf(keyboard, text("q"));
    QVERIFY(qAbs(key->buttonTextFontSizeInPt() - pt) < 0.5);
    QVERIFY(key->height() > int(pt * 0.353 * 40 * 1.2)); // with its accents
}

// Before it lies in its layout a keyboard is as small as any widget.
void TestKeyboardLook::imagesOutliveATinySize()
{
    const PanelScale scale(8, 8);
    panel::OnScreenKeyboard keyboard;
    keyboard.resize(100, 26);
    keyboard.show();
    keyboard.resize(800, 350);
    QCOMPARE(keyOf(keyboard, text("Enter"))->iconSize().height(), 43); // 5.4 mm
    QVERIFY(!keyOf(keyboard, text("Enter"))->icon().isNull());
}

QTEST_MAIN(TestKeyboardLook)
#include "tst_keyboardlook.moc"
