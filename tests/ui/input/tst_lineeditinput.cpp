// SPDX-License-Identifier: MIT
#include "support/onscreen.h"
#include "support/panelscale.h"
#include "support/testcase.h"
#include "ui/buttons/vexoiconbutton.h"
#include "ui/input/vexolineedit.h"

#include <QAction>
#include <QInputMethodEvent>
#include <QLabel>
#include <QTextCharFormat>
#include <QTimer>

#include <functional>

using namespace vexo::hox::qt::ui;

namespace {

using Change = std::function<void(VexoLineEdit &)>;
using Mode = QLineEdit::EchoMode;

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

/// What goes into a field beside setText(), and what it tells of it.
class TestLineEditInput : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void secretIsNotToldToInputMethods_data();
    void secretIsNotToldToInputMethods();
    void secretDoesNotComeBack_data();
    void secretDoesNotComeBack();
    void composedTextIsDrawn();
    void hiddenCursorWakesNobody();
    void changeDuringAShakeLeavesNoGhost_data();
    void changeDuringAShakeLeavesNoGhost();

private:
    const PanelScale m_scale{ 10, 12 };
};

void TestLineEditInput::secretIsNotToldToInputMethods_data()
{
    QTest::addColumn<bool>("secured");
    QTest::addColumn<Mode>("mode");
    QTest::addColumn<bool>("is_told");
    QTest::newRow("plain") << false << QLineEdit::Normal << true;
    QTest::newRow("secured") << true << QLineEdit::Password << false;
    QTest::newRow("secured, echo mode reset") << true << QLineEdit::Normal << false;
    QTest::newRow("password") << false << QLineEdit::Password << false;
    QTest::newRow("no echo") << false << QLineEdit::NoEcho << false;
    QTest::newRow("while it is edited") << false << QLineEdit::PasswordEchoOnEdit << false;
}

void TestLineEditInput::secretIsNotToldToInputMethods()
{
    QFETCH(bool, secured);
    QFETCH(Mode, mode);
    QFETCH(bool, is_told);
    VexoLineEdit field;
    field.setDrawPasswordSecured(secured);
    field.setEchoMode(mode);
    field.setText(QStringLiteral("7391"));
    field.selectAll();
    for (const auto query : { Qt::ImSurroundingText, Qt::ImCurrentSelection }) {
        QCOMPARE(told(field, query).contains(QLatin1Char('7')), is_told);
        if (mode != QLineEdit::NoEcho) // which does not even tell the length
            QCOMPARE(told(field, query).size(), 8);
    }
    QCOMPARE(static_cast<QLineEdit &>(field).inputMethodQuery(Qt::ImCursorPosition).toInt(), 4);
}

void TestLineEditInput::secretDoesNotComeBack_data()
{
    QTest::addColumn<bool>("by_echo_mode");
    QTest::newRow("by the property") << false;
    QTest::newRow("by the toolkit's echo mode") << true;
}

void TestLineEditInput::secretDoesNotComeBack()
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
    field.redo();
    QCOMPARE(field.text(), QStringLiteral("plain"));
}

void TestLineEditInput::composedTextIsDrawn()
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

void TestLineEditInput::hiddenCursorWakesNobody()
{
    QWidget window;
    VexoLineEdit field(&window);
    field.setCursorState(true);
    const auto *timer = field.findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
    QVERIFY(timer && timer->isActive());
    window.show();
    QVERIFY(timer->isActive());
    window.hide();
    QVERIFY(!timer->isActive());
    window.show();
    QVERIFY(timer->isActive());
    field.setCursorState(false);
    window.hide();
    window.show();
    QVERIFY(!timer->isActive());
}

void TestLineEditInput::changeDuringAShakeLeavesNoGhost_data()
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

void TestLineEditInput::changeDuringAShakeLeavesNoGhost()
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

QTEST_MAIN(TestLineEditInput)
#include "tst_lineeditinput.moc"
