// SPDX-License-Identifier: MIT
#include "support/iconfiles.h"
#include "support/panelscale.h"
#include "support/testcase.h"

#include <VexoIconButton>
#include <VexoLineEdit>

#include <QAccessible>
#include <QAction>
#include <QTest>

#include <functional>

using namespace vexo::hox::qt::ui;

namespace {

const QColor INK(Qt::blue);

using Change = std::function<void(VexoLineEdit &)>;

/// What a field with eleven i shows: nothing, letters, or dots, which are wider than a stem.
QByteArray lookOf(VexoLineEdit *field)
{
    const QImage image = field->grab().toImage();
    const int y = image.height() / 2;
    int run = 0;
    int longest = 0;
    for (int x = 0; x < image.width(); ++x) {
        run = image.pixelColor(x, y) == INK ? run + 1 : 0;
        longest = qMax(longest, run);
    }
    return boxOf(image, INK).isEmpty() ? "nothing" : longest >= 9 ? "dots" : "letters";
}

} // namespace

Q_DECLARE_METATYPE(Change)

/// What of VexoLineEdit depends on the modes of the toolkit's line edit.
class TestLineEditModes : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void onlyNormalEchoTellsLetters_data();
    void onlyNormalEchoTellsLetters();
    void cursorHasANameForAssistiveTechnology();
    void trailingButtonKeepsItsSize_data();
    void trailingButtonKeepsItsSize();

private:
    const PanelScale m_scale{ 10, 20 };
};

void TestLineEditModes::onlyNormalEchoTellsLetters_data()
{
    using Mode = QLineEdit::EchoMode;
    QTest::addColumn<bool>("secured");
    QTest::addColumn<Mode>("mode");
    QTest::addColumn<QByteArray>("look");
    QTest::addColumn<QString>("told");
    const QString text(11, QLatin1Char('i'));
    const QString stars(11, QLatin1Char('*'));
    QTest::newRow("normal") << false << QLineEdit::Normal << QByteArray("letters") << text;
    QTest::newRow("password") << false << QLineEdit::Password << QByteArray("dots") << stars;
    QTest::newRow("on edit") << false << QLineEdit::PasswordEchoOnEdit << QByteArray("dots")
                             << stars;
    QTest::newRow("none") << false << QLineEdit::NoEcho << QByteArray("nothing") << QString();
    QTest::newRow("secured, normal") << true << QLineEdit::Normal << QByteArray("dots") << stars;
    QTest::newRow("secured, none")
        << true << QLineEdit::NoEcho << QByteArray("nothing") << QString();
}

void TestLineEditModes::onlyNormalEchoTellsLetters()
{
    QFETCH(bool, secured);
    QFETCH(QLineEdit::EchoMode, mode);
    VexoLineEdit field;
    field.resize(600, field.height());
    field.setTextColor(INK);
    field.setText(QString(11, QLatin1Char('i')));
    QCOMPARE(lookOf(&field), QByteArray("letters"));
    field.setDrawPasswordSecured(secured);
    field.setEchoMode(mode);
    QTEST(lookOf(&field), "look");
    for (const bool shows_text : { true, false }) { // of what was shown before, too
        field.shake(500, 5, 10, shows_text);
        if (mode != QLineEdit::Normal || secured)
            QTEST(lookOf(&field), "look");
    }
    QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(&field);
    QTEST(seen->text(QAccessible::Value), "told");
    const bool is_open = mode == QLineEdit::Normal && !secured;
    QCOMPARE(bool(seen->state().passwordEdit), !is_open);
    QCOMPARE(seen->textInterface() != nullptr, is_open);
}

void TestLineEditModes::cursorHasANameForAssistiveTechnology()
{
    VexoLineEdit field;
    field.setText(QStringLiteral("one two six"));
    field.setCursorPosition(5);
    QAccessibleTextInterface *text = QAccessible::queryAccessibleInterface(&field)->textInterface();
    const int cursor = -2;
    const int end = -1;
    int from = 0;
    int to = 0;
    QCOMPARE(
        text->textAtOffset(cursor, QAccessible::WordBoundary, &from, &to), QStringLiteral("two"));
    QCOMPARE(
        text->textBeforeOffset(cursor, QAccessible::CharBoundary, &from, &to), QStringLiteral("t"));
    QCOMPARE(
        text->textAfterOffset(cursor, QAccessible::CharBoundary, &from, &to), QStringLiteral("o"));
    QCOMPARE(
        text->textBeforeOffset(end, QAccessible::CharBoundary, &from, &to), QStringLiteral("x"));
    text->attributes(cursor, &from, &to);
    QCOMPARE(from, 5);
}

void TestLineEditModes::trailingButtonKeepsItsSize_data()
{
    QTest::addColumn<Change>("change");
    QTest::newRow("direction") << Change(
        [](VexoLineEdit &field) { field.setLayoutDirection(Qt::RightToLeft); });
    QTest::newRow("clear button") << Change(
        [](VexoLineEdit &field) { field.setClearButtonEnabled(true); });
    QTest::newRow("further action") << Change([](VexoLineEdit &field) {
        field.addAction(new QAction(&field), QLineEdit::TrailingPosition);
    });
    QTest::newRow("size") << Change([](VexoLineEdit &field) { field.resize(300, 60); });
    QTest::newRow("icon") << Change(
        [](VexoLineEdit &field) { field.setMmTrailingIconSize(QSizeF(4, 4)); });
}

void TestLineEditModes::trailingButtonKeepsItsSize()
{
    QFETCH(Change, change);
    VexoLineEdit field;
    QPixmap green(40, 40);
    green.fill(Qt::green);
    field.setMmTrailingIconSize(QSizeF(4, 2));
    field.setTrailingIcon(green);
    field.enableTrailingButtonAction();
    field.resize(400, field.height());
    field.show();
    QVERIFY(QTest::qWaitForWindowExposed(&field));
    auto *button = field.findChild<VexoIconButton *>(QStringLiteral("trailingButton"));
    const QSize size = button->size();
    QCOMPARE(size.width(), 40);
    change(field);
    QCoreApplication::processEvents();
    QCOMPARE(button->size(), size);
    QVERIFY(field.rect().contains(button->geometry()));
    QCOMPARE(boxOf(field.grab().toImage(), Qt::green).size(), QSize(40, 40));
}

QTEST_MAIN(TestLineEditModes)
#include "tst_lineeditmodes.moc"
