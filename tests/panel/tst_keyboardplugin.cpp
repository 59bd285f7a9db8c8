// SPDX-License-Identifier: MIT
#include "panel/typist.h"
#include "support/panelscale.h"
#include "support/virtualclock.h"

#include <PanelDimmer>
#include <PanelNotice>

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QDialog>
#include <QInputMethod>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QSplitter>
#include <QTextEdit>
#include <QVBoxLayout>

#include <memory>

using namespace vexo::hox::qt;
using panel::OnScreenKeyboard;

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

OnScreenKeyboard *keyboardOf(const QWidget &window)
{
    auto *keyboard = window.findChild<OnScreenKeyboard *>({}, Qt::FindDirectChildrenOnly);
    return keyboard && keyboard->isVisible() ? keyboard : nullptr;
}

void activate(QWidget *window)
{
    window->show();
    QApplication::setActiveWindow(window);
    QVERIFY(QTest::qWaitForWindowActive(window));
}

int bottomOf(const QWidget &widget)
{
    return widget.mapTo(widget.window(), widget.rect().bottomLeft()).y();
}

QWidget *makeWindow(const QByteArray &kind)
{
    if (kind == "QMainWindow")
        return new QMainWindow;
    return kind == "QSplitter" ? new QSplitter : new QWidget;
}

/// A form whose last field lies where the keyboard comes up.
class Form : public QWidget
{
public:
    Form()
    {
        auto *layout = new QVBoxLayout(this);
        layout->setSizeConstraint(QLayout::SetNoConstraint);
        layout->addWidget(first);
        layout->addWidget(label);
        layout->addStretch();
        layout->addWidget(button);
        layout->addWidget(last);
        resize(800, 576);
    }

    QLineEdit *first = new QLineEdit;
    QLabel *label = new QLabel(text("Label"));
    QPushButton *button = new QPushButton(text("OK"));
    QLineEdit *last = new QLineEdit;
    const PanelScale scale{ 5, 6 };
};

} // namespace

/// The input method, in applications that know nothing of it.
class TestKeyboardPlugin : public VirtualTimeTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void comesAndGoesWithTheFocus();
    void contentMovesInAnyWindow_data();
    void contentMovesInAnyWindow();
    void contentStaysUpWhateverTheLayoutDoes();
    void noticeAndDimmerKeepTheirPlaces();
    void cursorOfALargeFieldStaysVisible();
    void typesAndFollowsHints();
    void staysBesideTheListOfACompleter();
    void hideKeyDismissesIt();
    void buttonThatTakesTheFocusIsClicked();
    void smallDialogGrows();
    void windowsMayGo();
    void languagesAreThoseOfTheVariable();
};

void TestKeyboardPlugin::comesAndGoesWithTheFocus()
{
    Form form;
    const QInputMethod &method = *QGuiApplication::inputMethod();
    form.button->setFocus();
    activate(&form);
    virtualclock::pass(50);
    QVERIFY(!keyboardOf(form));
    const QRect before = form.last->geometry();

    form.last->setFocus();
    QTRY_VERIFY(keyboardOf(form));
    const OnScreenKeyboard &keyboard = *keyboardOf(form);
    QVERIFY(method.isVisible());
    QCOMPARE(keyboard.geometry().bottomLeft(), form.rect().bottomLeft());
    QCOMPARE(method.keyboardRectangle().toRect().size(), keyboard.size());
    QVERIFY(bottomOf(*form.last) < keyboard.y());
    QCOMPARE(form.last->size(), before.size());
    form.first->setFocus();
    QTRY_COMPARE(form.last->geometry(), before); // the first one needs no room
    QVERIFY(keyboardOf(form));
    QVERIFY(bottomOf(*form.first) > form.first->height() / 2);

    form.last->setFocus();
    QTRY_VERIFY(form.last->geometry() != before);
    form.button->setFocus();
    QTRY_VERIFY(!method.isVisible());
    QCOMPARE(form.last->geometry(), before);
}

void TestKeyboardPlugin::contentMovesInAnyWindow_data()
{
    QTest::addColumn<QByteArray>("kind");
    for (const char *kind : { "QWidget", "QMainWindow", "QSplitter" })
        QTest::newRow(kind) << QByteArray(kind);
}

void TestKeyboardPlugin::contentMovesInAnyWindow()
{
    QFETCH(QByteArray, kind);
    const PanelScale scale(5, 6);
    const std::unique_ptr<QWidget> window(makeWindow(kind));
    auto *splitter = qobject_cast<QSplitter *>(window.get());
    auto *main = qobject_cast<QMainWindow *>(window.get());
    QWidget *page = main || splitter ? new QWidget : window.get();
    if (main)
        main->setCentralWidget(page);
    if (splitter)
        splitter->addWidget(page);
    auto *field = new QLineEdit(page);
    field->setGeometry(10, 500, 300, 40);
    window->resize(800, 576);
    activate(window.get());
    QCOMPARE(bottomOf(*field), 539);
    field->setFocus();
    QTRY_VERIFY(keyboardOf(*window));
    QCOMPARE(keyboardOf(*window)->geometry().bottomRight(), window->rect().bottomRight());
    QCOMPARE(bottomOf(*field), keyboardOf(*window)->y() - 1 - 12); // 2 mm above it
    uitest::Finger finger(window.get());
    finger.hold(keyOf(*window, text("E")), 700); // its variants lie over the window, too
    QTRY_VERIFY(keyOf(*window, text("É")));
    if (splitter)
        QCOMPARE(splitter->count(), 1);
    field->clearFocus();
    QTRY_COMPARE(bottomOf(*field), 539);
}

void TestKeyboardPlugin::contentStaysUpWhateverTheLayoutDoes()
{
    Form form;
    activate(&form);
    form.last->setFocus();
    QTRY_VERIFY(keyboardOf(form));
    form.label->setText(QString(5, QLatin1Char('\n')));
    virtualclock::pass(20);
    QVERIFY(bottomOf(*form.last) < keyboardOf(form)->y());
    form.resize(700, 640);
    virtualclock::pass(20);
    QCOMPARE(keyboardOf(form)->geometry().bottomRight(), form.rect().bottomRight());
    QCOMPARE(bottomOf(*form.last), keyboardOf(form)->y() - 13);
    form.last->hide();
    QTRY_VERIFY(!keyboardOf(form) || form.first->hasFocus());
    form.button->setFocus();
    QTRY_VERIFY(!keyboardOf(form));
    QCOMPARE(form.contentsMargins(), QMargins());
}

void TestKeyboardPlugin::noticeAndDimmerKeepTheirPlaces()
{
    Form form;
    form.move(0, 100);
    form.setWindowFlag(Qt::FramelessWindowHint);
    activate(&form);
    panel::PanelNotice notice(Qt::BottomEdge, &form);
    notice.tell(text("Saved"));
    panel::PanelDimmer dimmer(0, &form);
    const QRect before = notice.geometry();
    form.last->setFocus();
    QTRY_VERIFY(keyboardOf(form));
    const QRect keys = keyboardOf(form)->geometry();
    QCOMPARE(QGuiApplication::inputMethod()->keyboardRectangle().toRect(), keys); // of the window
    QTRY_COMPARE(notice.geometry().bottom(), keys.top() - 1 - 24); // 4 mm
    QCOMPARE(dimmer.geometry(), form.rect());
    form.button->setFocus();
    QTRY_COMPARE(notice.geometry(), before);
}

void TestKeyboardPlugin::cursorOfALargeFieldStaysVisible()
{
    const PanelScale scale(5, 6);
    QWidget window;
    auto *field = new QTextEdit(&window);
    field->setPlainText(QString(40, QLatin1Char('\n')));
    field->setGeometry(0, 0, 800, 576);
    window.resize(800, 576);
    activate(&window);
    field->setFocus();
    QTRY_VERIFY(keyboardOf(window));
    QCOMPARE(field->y(), 0); // the cursor is in the first line
    field->moveCursor(QTextCursor::End);
    const auto cursor_bottom = [&] {
        return field->mapTo(&window, field->viewport()->pos() + field->cursorRect().bottomLeft())
            .y();
    };
    QTRY_VERIFY(cursor_bottom() < keyboardOf(window)->y());
    field->clearFocus();
    QTRY_COMPARE(field->y(), 0);
}

void TestKeyboardPlugin::typesAndFollowsHints()
{
    Form form;
    activate(&form);
    form.last->setFocus();
    QTRY_VERIFY(keyboardOf(form));
    uitest::Finger finger(&form);
    Typist typist(*keyboardOf(form), &finger);
    typist.type(text("Hello, world. A"));
    QCOMPARE(form.last->text(), text("Hello, world. A"));
    typist.tap(text("Shift"));
    form.last->setText(QString());
    QVERIFY(keyOf(form, text("Q")));
    form.last->setInputMethodHints(Qt::ImhDigitsOnly);
    QTRY_VERIFY(!keyOf(form, text("Space")));
    form.last->setInputMethodHints(Qt::ImhNone);
    form.last->setEchoMode(QLineEdit::Password);
    QTRY_VERIFY(keyOf(form, text("q")));

    auto *number = new QSpinBox(&form);
    number->show();
    number->setFocus();
    number->selectAll();
    QTRY_VERIFY(keyOf(form, text("7")));
    typist.type(text("42"));
    QCOMPARE(number->value(), 42);
}

void TestKeyboardPlugin::staysBesideTheListOfACompleter()
{
    Form form;
    activate(&form);
    const Messages messages; // of a platform that cannot raise popups
    QCompleter completer({ text("Hamburg"), text("Hamm") });
    form.last->setCompleter(&completer);
    form.last->setFocus();
    QTRY_VERIFY(keyboardOf(form));
    uitest::Finger finger(&form);
    Typist(*keyboardOf(form), &finger).type(text("Ha"));
    QTRY_VERIFY(completer.popup()->isVisible());
    virtualclock::pass(20);
    QVERIFY(keyboardOf(form));
    completer.popup()->hide();
    virtualclock::pass(20);
    QVERIFY(keyboardOf(form));
}

void TestKeyboardPlugin::hideKeyDismissesIt()
{
    Form form;
    activate(&form);
    form.last->setFocus();
    QTRY_VERIFY(keyboardOf(form));
    uitest::Finger finger(&form);
    finger.tap(keyOf(form, text("Hide keyboard")));
    QTRY_VERIFY(!keyboardOf(form));
    QVERIFY(form.last->hasFocus());
    finger.tap(form.last);
    QTRY_VERIFY(keyboardOf(form));
}

// It lies elsewhere as soon as the keyboard has gone.
void TestKeyboardPlugin::buttonThatTakesTheFocusIsClicked()
{
    Form form;
    activate(&form);
    form.last->setFocus();
    QTRY_VERIFY(keyboardOf(form));
    const QSignalSpy clicks(form.button, &QPushButton::clicked);
    uitest::Finger(&form).hold(form.button, 200);
    QCOMPARE(clicks.count(), 1);
    QTRY_VERIFY(!keyboardOf(form));
}

void TestKeyboardPlugin::smallDialogGrows()
{
    Form form;
    activate(&form);
    form.last->setFocus();
    QTRY_VERIFY(keyboardOf(form));
    QDialog dialog(&form);
    auto *field = new QLineEdit;
    auto *layout = new QVBoxLayout(&dialog);
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    layout->addWidget(field);
    dialog.setGeometry(300, 200, 200, 60);
    activate(&dialog);
    field->setFocus();
    QTRY_VERIFY(keyboardOf(dialog));
    QVERIFY(!keyboardOf(form));
    QVERIFY(dialog.width() >= 500);
    QVERIFY(keyboardOf(dialog)->height() > 200);
    QVERIFY(bottomOf(*field) < keyboardOf(dialog)->y());
    uitest::Finger finger(&dialog);
    Typist(*keyboardOf(dialog), &finger).type(text("Abc"));
    QCOMPARE(field->text(), text("Abc"));
    field->clearFocus();
    QTRY_VERIFY(!keyboardOf(dialog));
    QCOMPARE(dialog.geometry(), QRect(300, 200, 200, 60));
}

void TestKeyboardPlugin::windowsMayGo()
{
    for (int i = 0; i < 3; ++i) {
        auto *form = new Form;
        activate(form);
        form->last->setFocus();
        QTRY_VERIFY(keyboardOf(*form));
        if (i == 0)
            delete form->last;
        delete form;
        QCoreApplication::processEvents();
    }
    Form form;
    activate(&form);
    form.last->setFocus();
    QTRY_VERIFY(keyboardOf(form));
    delete keyboardOf(form);
    form.first->setFocus();
    QTRY_VERIFY(keyboardOf(form));
}

void TestKeyboardPlugin::languagesAreThoseOfTheVariable()
{
    qputenv("HOXQUI_KEYBOARDS", "el, /no/such/file.txt,de");
    {
        Form form;
        const Messages messages;
        activate(&form);
        form.last->setFocus();
        QTRY_VERIFY(keyboardOf(form));
        QCOMPARE(keyboardOf(form)->languages(), QStringList({ text("el"), text("de") }));
        QVERIFY(
            messages.lines().join(QLatin1Char('|')).contains(text("/no/such/file.txt: there is")));
        keyboardOf(form)->setLanguage(text("de"));
        QCOMPARE(QGuiApplication::inputMethod()->locale().language(), QLocale::German);
    }
    Form form; // its keyboard is another one
    const Messages messages;
    activate(&form);
    form.last->setFocus();
    QTRY_VERIFY(keyboardOf(form));
    QCOMPARE(keyboardOf(form)->language(), text("de"));
    qunsetenv("HOXQUI_KEYBOARDS");
}

int main(int count, char **arguments)
{
    qputenv("QT_IM_MODULE", "hoxqui");
    QCoreApplication::addLibraryPath(QStringLiteral(HOXQ_PLUGINS));
    QApplication application(count, arguments);
    TestKeyboardPlugin test;
    return QTest::qExec(&test, count, arguments);
}

#include "tst_keyboardplugin.moc"
