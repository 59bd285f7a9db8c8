// SPDX-License-Identifier: MIT
#include "support/iconfiles.h"
#include "support/onscreen.h"
#include "support/panelscale.h"
#include "support/testcase.h"

#include <VexoIconButton>
#include <VexoLineEdit>

#include <QAccessible>
#include <QAction>
#include <QInputMethodEvent>
#include <QTest>
#include <QTextCharFormat>

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

QString told(VexoLineEdit &field, Qt::InputMethodQuery query)
{
    QInputMethodQueryEvent event(query);
    QCoreApplication::sendEvent(&field, &event);
    // What the toolkit's own input methods ask.
    QVariant answer;
    QMetaObject::invokeMethod(&field, "inputMethodQuery", Qt::DirectConnection,
        Q_RETURN_ARG(QVariant, answer), Q_ARG(Qt::InputMethodQuery, query),
        Q_ARG(QVariant, QVariant()));
    return event.value(query).toString() + answer.toString();
}

void compose(VexoLineEdit &field, const QString &text, const QString &committed = QString())
{
    QTextCharFormat underlined;
    underlined.setFontUnderline(true);
    underlined.setForeground(Qt::red);
    QInputMethodEvent event(text,
        { QInputMethodEvent::Attribute(
            QInputMethodEvent::TextFormat, 0, text.size(), underlined) });
    event.setCommitString(committed);
    QCoreApplication::sendEvent(&field, &event);
}

int pixelsOf(QWidget &widget, const QColor &color)
{
    const QImage image = widget.grab().toImage();
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == color;
    }
    return count;
}

} // namespace

Q_DECLARE_METATYPE(Change)

/// What of VexoLineEdit depends on the modes of the toolkit's line edit, and on what goes into it
/// beside setText().
class TestLineEditModes : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void onlyNormalEchoTellsLetters_data();
    void onlyNormalEchoTellsLetters();
    void secretDoesNotComeBack_data();
    void secretDoesNotComeBack();
    void composedTextIsDrawn();
    void changeDuringAShakeLeavesNoGhost_data();
    void changeDuringAShakeLeavesNoGhost();
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
    field.setPlaceholderText(QStringLiteral("Password"));
    field.setText(QString(11, QLatin1Char('i')));
    QCOMPARE(lookOf(&field), QByteArray("letters"));
    field.setDrawPasswordSecured(secured);
    field.setEchoMode(mode);
    QTEST(lookOf(&field), "look");
    const bool is_open = mode == QLineEdit::Normal && !secured;
    for (const bool shows_text : { true, false }) { // of what was shown before, too
        field.shake(500, 5, 10, shows_text);
        if (!is_open)
            QTEST(lookOf(&field), "look");
    }
    QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(&field);
    QCOMPARE(seen->role(), QAccessible::EditableText);
    QCOMPARE(seen->text(QAccessible::Description), QStringLiteral("Password"));
    QTEST(seen->text(QAccessible::Value), "told");
    QCOMPARE(bool(seen->state().passwordEdit), !is_open);
    // Changes are reported, with their text, where there is one.
    QCOMPARE(seen->textInterface() != nullptr, is_open);
    field.selectAll();
    for (const auto query : { Qt::ImSurroundingText, Qt::ImCurrentSelection }) {
        const QString heard = told(field, query);
        QCOMPARE(heard.count(QLatin1Char('i')), is_open ? 22 : 0);
        QCOMPARE(heard.size(), mode == QLineEdit::NoEcho ? 0 : 22); // not even the length
    }
    QCOMPARE(static_cast<QLineEdit &>(field).inputMethodQuery(Qt::ImCursorPosition).toInt(), 11);
    seen->editableTextInterface()->replaceText(1, 11, QStringLiteral("x"));
    QCOMPARE(field.text(), QStringLiteral("ix"));
}

void TestLineEditModes::secretDoesNotComeBack_data()
{
    QTest::addColumn<bool>("by_echo_mode");
    QTest::newRow("by the property") << false;
    QTest::newRow("by the toolkit's echo mode") << true;
}

void TestLineEditModes::secretDoesNotComeBack()
{
    QFETCH(bool, by_echo_mode);
    VexoLineEdit field;
    const auto hide = [&](bool is_secret) {
        if (by_echo_mode)
            field.setEchoMode(is_secret ? QLineEdit::Password : QLineEdit::Normal);
        else
            field.setDrawPasswordSecured(is_secret);
    };
    hide(true);
    for (const char *digit : { "7", "3", "9" })
        field.insert(QLatin1String(digit));
    field.setCursorPosition(1);
    field.insert(QStringLiteral("1"));
    QCOMPARE(field.text(), QStringLiteral("7139"));
    QCOMPARE(field.cursorPosition(), 2);
    field.selectAll();
    field.del();
    hide(false);
    field.undo();
    QCOMPARE(field.text(), QString());
    field.insert(QStringLiteral("plain"));
    field.undo();
    QCOMPARE(field.text(), QString());
}

void TestLineEditModes::composedTextIsDrawn()
{
    VexoLineEdit field;
    field.resize(300, field.height());
    field.setTextColor(Qt::blue);
    field.setPlaceholderText(QStringLiteral("------"));
    field.setPlaceholderColor(Qt::green);
    field.setText(QStringLiteral("aa"));
    QVERIFY(pixelsOf(field, Qt::green) > 0);
    compose(field, QStringLiteral("IIII"));
    QVERIFY(pixelsOf(field, Qt::red) > 0);
    QVERIFY(pixelsOf(field, Qt::blue) > 0);
    QCOMPARE(pixelsOf(field, Qt::green), 0);
    QCOMPARE(field.text(), QStringLiteral("aa"));
    compose(field, QString(), QStringLiteral("II"));
    QCOMPARE(pixelsOf(field, Qt::red), 0);
    QCOMPARE(field.text(), QStringLiteral("aaII"));
    field.setDrawPasswordSecured(true);
    compose(field, QStringLiteral("I"));
    QCOMPARE(pixelsOf(field, Qt::red), 0);
}

void TestLineEditModes::changeDuringAShakeLeavesNoGhost_data()
{
    QTest::addColumn<Change>("change");
    QTest::newRow("narrower") << Change([](VexoLineEdit &f) { f.resize(200, f.height()); });
    QTest::newRow("wider") << Change([](VexoLineEdit &f) { f.resize(340, f.height()); });
    QTest::newRow("font") << Change([](VexoLineEdit &f) { f.setPtFontSize(5); });
    QTest::newRow("other font") << Change([](VexoLineEdit &f) { f.setFont(QFont()); });
    QTest::newRow("radius") << Change([](VexoLineEdit &f) { f.setMmRadius(2); });
    QTest::newRow("margin") << Change([](VexoLineEdit &f) { f.setMmMargin(QSizeF(4, 1)); });
    QTest::newRow("offset") << Change([](VexoLineEdit &f) { f.setMmLeftOffset(4); });
    QTest::newRow("covered in part") << Change([](VexoLineEdit &f) { f.update(0, 0, 60, 99); });
}

void TestLineEditModes::changeDuringAShakeLeavesNoGhost()
{
    QFETCH(Change, change);
    for (const int variant : { 0, 1, 2, 3, 4, 5, 6, 7 }) {
        const bool is_secret = variant & 1;
        const bool is_centered = variant & 2;
        const int when = variant & 4 ? 0 : 2;
        QWidget window;
        window.resize(360, 120);
        VexoLineEdit field(&window);
        field.setGeometry(10, 10, 300, field.height());
        field.setDrawPasswordSecured(is_secret);
        field.setDrawCentered(is_centered);
        field.setText(QStringLiteral("1234"));
        field.setCursorState(true);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        settle();
        field.shake(500, 5, 10, !is_secret);
        for (int step = 0; step < 5; ++step) {
            if (step == when)
                change(field);
            if (step != 3)
                settle();
            QVERIFY(QMetaObject::invokeMethod(&field, "onShakeAnimationStep"));
            settle();
            QCOMPARE(wrongPixels(window), QRect());
        }
    }
}

void TestLineEditModes::cursorHasANameForAssistiveTechnology()
{
    VexoLineEdit field;
    field.setText(QStringLiteral("one two six"));
    field.setCursorPosition(5);
    QAccessibleTextInterface *text = QAccessible::queryAccessibleInterface(&field)->textInterface();
    const int cursor = -2; // and -1 the end
    int from = 0;
    int to = 0;
    QCOMPARE(
        text->textAtOffset(cursor, QAccessible::WordBoundary, &from, &to), QStringLiteral("two"));
    QCOMPARE(
        text->textBeforeOffset(cursor, QAccessible::CharBoundary, &from, &to), QStringLiteral("t"));
    QCOMPARE(
        text->textAfterOffset(cursor, QAccessible::CharBoundary, &from, &to), QStringLiteral("o"));
    QCOMPARE(
        text->textBeforeOffset(-1, QAccessible::CharBoundary, &from, &to), QStringLiteral("x"));
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
