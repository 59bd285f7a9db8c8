// SPDX-License-Identifier: MIT
#include "gallery/expose.h"
#include "gallery/keys.h"
#include "gallery/pages/loginpage.h"
#include "gallery/pages/pinpage.h"
#include "gallery/pages/stringspage.h"
#include "support/find.h"
#include "support/testcase.h"

#include <VexoIconButton>
#include <VexoLineEdit>

using vexo::hox::qt::ui::VexoIconButton;
using vexo::hox::qt::ui::VexoLineEdit;

/// The pages on which an on-screen keyboard fills line edits.
class TestEntry : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void wrongPinShakesAndGoes_data();
    void wrongPinShakesAndGoes();
    void loginFormGoesFromFieldToField();
    void converterFollowsTheText();
};

namespace {

QString textOf(const QWidget &page, const char *name)
{
    return page.findChild<QLabel *>(QLatin1String(name))->text();
}

QImage pictureOf(VexoLineEdit *field)
{
    field->setCursorState(false); // it would blink
    return field->grab().toImage();
}

} // namespace

void TestEntry::wrongPinShakesAndGoes_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("dots") << QByteArray("pinField");
    QTest::newRow("underscores") << QByteArray("codeField");
}

void TestEntry::wrongPinShakesAndGoes()
{
    QFETCH(QByteArray, name);
    PinPage page;
    expose(&page);
    VexoLineEdit *field = byName<VexoLineEdit>(page, name);
    QTest::mouseClick(field, Qt::LeftButton, {}, QPoint(2, 2));
    const QImage empty = pictureOf(field);
    clickKeys(page, "2 0");
    const QImage half = pictureOf(field);
    clickKeys(page, "3");
    QTest::mouseClick(field, Qt::LeftButton); // moves the toolkit's cursor, not ours
    clickKeys(page, "Delete");
    QCOMPARE(pictureOf(field), half);
    clickKeys(page, "1 1");
    QCOMPARE(field->text(), QString());
    QCOMPARE(textOf(page, "pinResult"), "Wrong, try again");
    QVERIFY(pictureOf(field) != empty);
    QTRY_COMPARE(pictureOf(field), empty);
    clickKeys(page, "2 0 2 6");
    QCOMPARE(textOf(page, "pinResult"), "Right");
}

void TestEntry::loginFormGoesFromFieldToField()
{
    LoginPage page;
    expose(&page);
    clickKeys(page, "p a n e l x Delete Enter v e x x Enter");
    QCOMPARE(textOf(page, "loginResult"), "Wrong name or password");
    clickKeys(page, "v e x o y");
    VexoLineEdit *password = byName<VexoLineEdit>(page, "passwordField");
    QTest::mouseClick(password->findChild<VexoIconButton *>(), Qt::LeftButton);
    QCOMPARE(password->text(), "vexo");
    clickKeys(page, "Enter");
    QCOMPARE(textOf(page, "loginResult"), "Logged in");
    QCOMPARE(byName<VexoLineEdit>(page, "nameField")->text(), "panel");
}

void TestEntry::converterFollowsTheText()
{
    StringsPage page;
    expose(&page);
    const auto resultOf = [&](const char *name) {
        return textOf(page, name).remove(QChar(0x200b)); // where a line may break
    };
    clickKeys(page, "Enter Shift A Space b");
    QCOMPARE(resultOf("hexResult"), "412062");
    QCOMPARE(resultOf("base64Result"), "QSBi");
    QCOMPARE(resultOf("lowerResult"), "a b");
    QCOMPARE(resultOf("splitResult"), "A | b");
    QCOMPARE(resultOf("fromBase64Result"), "Invalid base64 length!");
    clickKeys(page, "Delete Delete Delete 123 4 8 6 9");
    QCOMPARE(resultOf("fromHexResult"), "Hi");
}

QTEST_MAIN(TestEntry)
#include "tst_entry.moc"
