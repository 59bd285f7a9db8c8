// SPDX-License-Identifier: MIT
#include "panel/typist.h"
#include "support/panelscale.h"
#include "support/testcase.h"

#include <PanelAudit>
#include <VexoLineEdit>

#include <QAbstractItemView>
#include <QCompleter>
#include <QIntValidator>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QScrollArea>
#include <QShortcut>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QVBoxLayout>

#include <stdexcept>

using namespace vexo::hox::qt;
using panel::OnScreenKeyboard;

namespace {

using Key = ui::VexoKeyboardButton;

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

/// A window with a field that has the focus, and a German and English keyboard below it.
class Desk
{
public:
    explicit Desk(QLineEdit *line = new QLineEdit)
        : field(line)
    {
        keyboard->setLanguages({ text("de"), text("en") });
        auto *layout = new QVBoxLayout(&window);
        layout->setSizeConstraint(QLayout::SetNoConstraint);
        layout->addWidget(field);
        layout->addStretch();
        layout->addWidget(keyboard);
        window.resize(800, 700);
        window.show();
        field->setFocus();
        QApplication::setActiveWindow(&window);
        if (!QTest::qWaitForWindowActive(&window))
            qWarning("the window is not active");
    }

    void setHints(Qt::InputMethodHints hints)
    {
        field->setInputMethodHints(hints);
        keyboard->readReceiver();
    }

    const PanelScale scale{ 5, 6 };
    QWidget window;
    QPointer<QLineEdit> field;
    QPointer<OnScreenKeyboard> keyboard = new OnScreenKeyboard;
    uitest::Finger finger{ &window };
    Typist typist{ *keyboard, &finger };
};

/// Tells whether it was asked for its text.
class AskedField : public QLineEdit
{
public:
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override
    {
        was_asked = was_asked || query == Qt::ImSurroundingText;
        return QLineEdit::inputMethodQuery(query);
    }

    mutable bool was_asked = false;
};

/// Two fingers, each with a number.
class Hand
{
public:
    explicit Hand(QWidget *window)
        : m_window(window)
    {
    }

    void press(int finger, QWidget *key)
    {
        QTest::touchEvent(m_window, device()).press(finger, at(key), m_window);
    }
    void lift(int finger, QWidget *key)
    {
        QTest::touchEvent(m_window, device()).release(finger, at(key), m_window);
    }
    void pressBeside(int still, QWidget *still_key, int finger, QWidget *key)
    {
        QTest::touchEvent(m_window, device())
            .move(still, at(still_key), m_window)
            .press(finger, at(key), m_window);
    }
    void liftBeside(int still, QWidget *still_key, int finger, QWidget *key)
    {
        QTest::touchEvent(m_window, device())
            .move(still, at(still_key), m_window)
            .release(finger, at(key), m_window);
    }

private:
    static QTouchDevice *device()
    {
        static QTouchDevice *hand = QTest::createTouchDevice();
        return hand;
    }
    QPoint at(QWidget *key) const { return key->mapTo(m_window, key->rect().center()); }

    QWidget *m_window;
};

} // namespace

class TestOnScreenKeyboard : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void typesAGreeting();
    void sentencesBeginWithACapital();
    void shiftLocks();
    void masksValidatorsAndShortcutsWork();
    void completerGetsTheText();
    void listOfACompleterLetsTypeOn();
    void typesKeysWhereNoInputMethodIsWanted();
    void fieldOfThePanelIsTypedInAtItsEnd();
    void deleteRepeatsWhileHeld();
    void heldKeyOffersVariants_data();
    void heldKeyOffersVariants();
    void slowTapTypesItsLetter();
    void languageChanges();
    void followsHints_data();
    void followsHints();
    void secretIsNotAskedFor();
    void twoThumbsOverlap();
    void bounceOfWhatOpensItTypesNothing();
    void touchInAGapCounts();
    void takesNoFocus();
    void fieldMayEndTheKeyboard();
    void brokenFileChangesNothing();
    void keysNeverOverlap_data();
    void keysNeverOverlap();
    void auditFindsNothing();
};

void TestOnScreenKeyboard::typesAGreeting()
{
    Desk desk;
    desk.typist.type(text("Grüße 2026, @Lübeck!"));
    QCOMPARE(desk.field->text(), text("Grüße 2026, @Lübeck!"));
}

void TestOnScreenKeyboard::sentencesBeginWithACapital()
{
    Desk desk;
    desk.typist.tapAll(text("A b . Space C"));
    QCOMPARE(desk.field->text(), text("Ab. C"));
    desk.typist.tapAll(text("Delete C Delete Delete Delete c"));
    QCOMPARE(desk.field->text(), text("Abc"));
    desk.setHints(Qt::ImhNoAutoUppercase);
    desk.field->clear();
    desk.keyboard->readReceiver();
    QVERIFY(keyOf(*desk.keyboard, text("a")));
}

void TestOnScreenKeyboard::shiftLocks()
{
    Desk desk;
    desk.setHints(Qt::ImhNoAutoUppercase);
    desk.typist.tapAll(text("Shift A b"));
    QWidget *shift = keyOf(*desk.keyboard, text("Shift"));
    QTest::mouseDClick(shift, Qt::LeftButton); // two presses in quick succession
    QTest::mouseClick(shift, Qt::LeftButton, {}, {}, 0);
    desk.typist.tapAll(text("Shift c"));
    QCOMPARE(desk.field->text(), text("Abc"));

    Hand hand(&desk.window);
    for (int i = 0; i < 2; ++i) {
        hand.press(1, shift);
        QTest::qWait(60); // longer than a finger bounces
        hand.lift(1, shift);
        QTest::qWait(60);
    }
    desk.typist.tapAll(text("D E Shift f"));
    QCOMPARE(desk.field->text(), text("AbcDEf"));
}

void TestOnScreenKeyboard::masksValidatorsAndShortcutsWork()
{
    Desk desk;
    desk.field->setInputMask(text("99-99;_"));
    desk.field->home(false);
    desk.typist.type(text("12a34"));
    QCOMPARE(desk.field->text(), text("12-34"));
    desk.field->setInputMask(QString());
    desk.field->clear();
    desk.field->setValidator(
        new QRegularExpressionValidator(QRegularExpression(text("[0-9]{2}")), desk.field));
    desk.typist.type(text("2x51"));
    QCOMPARE(desk.field->text(), text("25"));
    const QSignalSpy returns(desk.field, &QLineEdit::returnPressed);
    desk.typist.tap(text("Enter"));
    QCOMPARE(returns.count(), 1);

    QShortcut shortcut(Qt::Key_Return, &desk.window);
    const QSignalSpy shortcuts(&shortcut, &QShortcut::activated);
    desk.typist.tap(text("Enter"));
    QCOMPARE(shortcuts.count(), 1);
    QCOMPARE(returns.count(), 1);
}

void TestOnScreenKeyboard::completerGetsTheText()
{
    Desk desk;
    QCompleter completer({ text("Hamburg"), text("Hannover") });
    completer.setCompletionMode(QCompleter::InlineCompletion);
    desk.field->setCompleter(&completer);
    desk.typist.type(text("Han"));
    QCOMPARE(desk.field->text(), text("Hannover"));
    desk.typist.tap(text("Enter"));
    QCOMPARE(desk.field->selectedText(), QString());
}

// Its list is a popup, which gets all touches.
void TestOnScreenKeyboard::listOfACompleterLetsTypeOn()
{
    Desk desk;
    const Messages messages; // of a platform that cannot raise popups
    QCompleter completer({ text("Hamburg"), text("Hamm"), text("Hannover") });
    desk.field->setCompleter(&completer);
    desk.typist.type(text("H"));
    QTRY_VERIFY(completer.popup()->isVisible());
    desk.typist.type(text("amx"));
    desk.typist.tap(text("Delete"));
    QCOMPARE(desk.field->text(), text("Ham"));
    QVERIFY(completer.popup()->isVisible());
    const QRect second = completer.popup()->visualRect(completer.popup()->model()->index(1, 0));
    QTest::mouseClick(completer.popup()->viewport(), Qt::LeftButton, {}, second.center());
    QCOMPARE(desk.field->text(), text("Hamm"));
    QVERIFY(!completer.popup()->isVisible());
    desk.typist.type(text("a"));
    QCOMPARE(desk.field->text(), text("Hamma"));
}

void TestOnScreenKeyboard::typesKeysWhereNoInputMethodIsWanted()
{
    Desk desk;
    desk.field->setAttribute(Qt::WA_InputMethodEnabled, false);
    desk.keyboard->readReceiver();
    desk.typist.tapAll(text("a ß Delete b"));
    QCOMPARE(desk.field->text(), text("ab"));
}

void TestOnScreenKeyboard::fieldOfThePanelIsTypedInAtItsEnd()
{
    Desk desk(new ui::VexoLineEdit);
    desk.field->setText(text("ab"));
    desk.keyboard->setReceiver(desk.field);
    desk.field->home(false); // as a touch does
    desk.typist.tapAll(text("c d Delete"));
    QCOMPARE(desk.field->text(), text("abc"));
    delete desk.field;
    desk.typist.tap(text("e")); // nothing has the focus
}

void TestOnScreenKeyboard::deleteRepeatsWhileHeld()
{
    Desk desk;
    desk.field->setText(QString(100, QLatin1Char('x')));
    desk.typist.tap(text("Delete"));
    QTest::qWait(150);
    QCOMPARE(desk.field->text().size(), 99);
    desk.finger.hold(keyOf(*desk.keyboard, text("Delete")), 700);
    const int left = desk.field->text().size();
    QVERIFY2(left < 97 && left > 80, qPrintable(QString::number(left)));
    QTest::qWait(250);
    QCOMPARE(desk.field->text().size(), left);
}

void TestOnScreenKeyboard::heldKeyOffersVariants_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QPointF>("by_mm");
    QTest::addColumn<QString>("tapped");
    QTest::addColumn<QString>("expected");
    QTest::newRow("slide to one") << text("e") << QPointF(-21, -9) << QString() << text("xé");
    QTest::newRow("slide to the last one")
        << text("e") << QPointF(40, -9) << QString() << text("xë");
    QTest::newRow("lift and tap one") << text("e") << QPointF() << text("è") << text("xè");
    QTest::newRow("lift and go on") << text("e") << QPointF() << text("r") << text("xer");
    QTest::newRow("at the edge") << text("a") << QPointF() << text("á") << text("xá");
}

void TestOnScreenKeyboard::heldKeyOffersVariants()
{
    QFETCH(QString, key);
    QFETCH(QPointF, by_mm);
    QFETCH(QString, tapped);
    QFETCH(QString, expected);
    Desk desk;
    desk.field->setText(text("x"));
    desk.keyboard->readReceiver();
    QWidget *held = keyOf(*desk.keyboard, key);
    const int windows = QApplication::topLevelWidgets().size();
    if (by_mm.isNull())
        desk.finger.hold(held, 500);
    else
        desk.finger.slide(held, QPointF(5, 4), by_mm, 900);
    if (by_mm.isNull()) {
        QWidget *next = keyOf(desk.window, tapped);
        QVERIFY(next);
        desk.finger.tap(next);
        QVERIFY2(desk.finger.lastProblem().isEmpty(), qPrintable(desk.finger.lastProblem()));
    }
    QCOMPARE(desk.field->text(), expected);
    QCOMPARE(QApplication::topLevelWidgets().size(), windows);
    QVERIFY(!keyOf(desk.window, text("ê")));
}

void TestOnScreenKeyboard::slowTapTypesItsLetter()
{
    Desk desk;
    desk.field->setValidator(new QIntValidator(desk.field));
    desk.field->setText(text("12"));
    desk.keyboard->readReceiver();
    desk.finger.hold(keyOf(*desk.keyboard, text("e")), 400);
    desk.finger.tap(keyOf(desk.window, text("é")));
    QCOMPARE(desk.field->text(), text("12")); // neither was taken, nothing is replaced
    desk.field->setValidator(nullptr);
    desk.finger.hold(keyOf(*desk.keyboard, text("e")), 400);
    QCOMPARE(desk.field->text(), text("12e"));
}

void TestOnScreenKeyboard::languageChanges()
{
    Desk desk;
    const QSignalSpy changes(desk.keyboard, &OnScreenKeyboard::languageChanged);
    QVERIFY(keyOf(*desk.keyboard, text("Deutsch")));
    desk.typist.tap(text("Next language"));
    QCOMPARE(desk.keyboard->language(), text("en"));
    QVERIFY(keyOf(*desk.keyboard, text("English")));
    desk.finger.flick(keyOf(*desk.keyboard, text("Space")), QPointF(16, 0), 150);
    QCOMPARE(desk.keyboard->language(), text("de"));
    desk.finger.flick(keyOf(*desk.keyboard, text("Space")), QPointF(6, 0), 150);
    QCOMPARE(changes.count(), 2);
    QCOMPARE(desk.field->text(), text(" "));
    desk.keyboard->setLanguages({ text("xx"), text("pl") });
    QCOMPARE(desk.keyboard->language(), text("pl"));
    QVERIFY(!keyOf(*desk.keyboard, text("Next language")));
}

void TestOnScreenKeyboard::followsHints_data()
{
    QTest::addColumn<int>("hints");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("hidden");
    const auto row = [](const char *name, int hints, const char *shown, const char *hidden) {
        QTest::newRow(name) << hints << text(shown) << text(hidden);
    };
    row("digits", Qt::ImhDigitsOnly, "1", "-");
    row("numbers", Qt::ImhFormattedNumbersOnly, "-", "Space");
    row("phone", Qt::ImhDialableCharactersOnly, "#", "Space");
    row("numbers first", Qt::ImhPreferNumbers, "ABC", "Shift");
    row("capitals", Qt::ImhUppercaseOnly, "Q", "q");
    row("no capitals", Qt::ImhNoAutoUppercase, "q", "Q");
    row("e-mail", Qt::ImhEmailCharactersOnly, "@", ",");
    row("web", Qt::ImhUrlCharactersOnly, "/", ",");
    row("Latin", Qt::ImhLatinOnly, "Deutsch", text("Русский").toUtf8());
    row("none", Qt::ImhNone, "Русский", "Deutsch");
}

void TestOnScreenKeyboard::followsHints()
{
    QFETCH(int, hints);
    QFETCH(QString, shown);
    QFETCH(QString, hidden);
    Desk desk;
    desk.keyboard->setLanguages({ text("ru"), text("de") });
    if (hints != Qt::ImhLatinOnly && hints != 0)
        desk.keyboard->setLanguage(text("de"));
    else
        desk.keyboard->setLanguage(text("ru"));
    desk.setHints(Qt::InputMethodHints(QFlag(hints)));
    QVERIFY(keyOf(*desk.keyboard, shown));
    QVERIFY(!keyOf(*desk.keyboard, hidden));
    desk.setHints(Qt::ImhNone);
    QVERIFY(keyOf(*desk.keyboard, text("Space")));
}

void TestOnScreenKeyboard::secretIsNotAskedFor()
{
    auto *field = new AskedField;
    Desk desk(field);
    QVERIFY(field->was_asked);
    field->setEchoMode(QLineEdit::Password);
    desk.keyboard->readReceiver();
    field->was_asked = false;
    desk.typist.type(text("Geheim 7"));
    desk.finger.hold(keyOf(*desk.keyboard, text("123")) ? keyOf(*desk.keyboard, text("e"))
                                                        : keyOf(*desk.keyboard, text("0")),
        400);
    QVERIFY(!field->was_asked);
    for (const Key *key : desk.window.findChildren<Key *>())
        QVERIFY(!key->text().contains(text("Geheim")));
    QCOMPARE(field->text().left(8), text("Geheim 7"));
}

void TestOnScreenKeyboard::twoThumbsOverlap()
{
    Desk desk;
    desk.setHints(Qt::ImhNoAutoUppercase);
    Hand hand(&desk.window);
    QWidget *keys[] = { keyOf(*desk.keyboard, text("t")), keyOf(*desk.keyboard, text("h")),
        keyOf(*desk.keyboard, text("e")) };
    hand.press(0, keys[0]);
    hand.pressBeside(0, keys[0], 1, keys[1]); // before the first one is lifted
    hand.liftBeside(1, keys[1], 0, keys[0]);
    hand.pressBeside(1, keys[1], 0, keys[2]);
    hand.liftBeside(0, keys[2], 1, keys[1]);
    hand.lift(0, keys[2]);
    QCOMPARE(desk.field->text(), text("the"));
}

void TestOnScreenKeyboard::bounceOfWhatOpensItTypesNothing()
{
    Desk desk;
    QPushButton opener(&desk.window);
    opener.setGeometry(desk.keyboard->geometry());
    opener.show();
    desk.keyboard->hide();
    connect(&opener, &QPushButton::clicked, desk.keyboard, [&] {
        opener.hide();
        desk.keyboard->show();
    });
    desk.finger.setBounce(30);
    desk.finger.tap(&opener);
    QVERIFY(desk.keyboard->isVisible());
    QCOMPARE(desk.field->text(), QString());
    desk.typist.type(text("A"));
    QCOMPARE(desk.field->text(), text("A"));
}

void TestOnScreenKeyboard::touchInAGapCounts()
{
    Desk desk;
    desk.setHints(Qt::ImhNoAutoUppercase);
    const QRect q = keyOf(*desk.keyboard, text("q"))->geometry();
    desk.finger.tap(desk.keyboard, QPointF((q.right() + 2) / 5.0, (q.bottom() + 2) / 6.0));
    desk.finger.tap(desk.keyboard, QPointF(q.center().x() / 5.0, 0.1));
    QTest::mouseClick(desk.keyboard, Qt::LeftButton, {}, q.topLeft() - QPoint(2, 0));
    QCOMPARE(desk.field->text(), text("qqq"));
}

void TestOnScreenKeyboard::takesNoFocus()
{
    Desk desk;
    QWidget around;
    auto *area = new QScrollArea(&around); // which takes it at a click
    auto *keyboard = new OnScreenKeyboard;
    area->setWidget(keyboard);
    auto *field = new QLineEdit(&around);
    area->setGeometry(0, 50, 800, 500);
    keyboard->resize(700, 300);
    around.resize(800, 600);
    around.show();
    QApplication::setActiveWindow(&around);
    field->setFocus();
    QTest::mouseClick(keyOf(*keyboard, text("Q")), Qt::LeftButton);
    QTest::mouseClick(keyboard, Qt::LeftButton, {}, QPoint(1, 1));
    uitest::Finger(&around).tap(keyOf(*keyboard, text("Space")));
    QVERIFY(field->hasFocus());
    keyboard->hide();
    QVERIFY(field->hasFocus());
    delete keyboard;
    QVERIFY(field->hasFocus());
}

void TestOnScreenKeyboard::fieldMayEndTheKeyboard()
{
    const auto end = [](const QString &label, int held_ms) {
        Desk desk;
        desk.field->setText(text("x"));
        desk.keyboard->readReceiver();
        connect(desk.field, &QLineEdit::textChanged, desk.keyboard,
            [&desk] { delete desk.keyboard.data(); });
        connect(desk.field, &QLineEdit::returnPressed, desk.keyboard,
            [&desk] { delete desk.keyboard.data(); });
        connect(desk.keyboard, &OnScreenKeyboard::languageChanged, desk.keyboard,
            [&desk] { delete desk.keyboard.data(); });
        desk.finger.hold(keyOf(*desk.keyboard, label), held_ms);
        return desk.keyboard.isNull();
    };
    for (const char *label : { "a", "Space", "Delete", "Enter", "Next language" }) {
        QVERIFY2(end(text(label), 50), label);
        QVERIFY2(end(text(label), 450), label);
    }
}

void TestOnScreenKeyboard::brokenFileChangesNothing()
{
    Desk desk;
    const QTemporaryDir folder;
    QFile file(folder.filePath(text("swiss.txt")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("language ch Schweiz\nlayer lower\nrow a {shift\n");
    file.flush();
    try {
        desk.keyboard->addLayoutFile(file.fileName());
        QFAIL("it was taken");
    } catch (const std::runtime_error &error) {
        QVERIFY(text(error.what()).contains(text("swiss.txt:3: ")));
    }
    QCOMPARE(desk.keyboard->languages(), QStringList({ text("de"), text("en") }));
    QVERIFY(file.resize(0) && file.seek(0));
    file.write("language ch Schweiz\nlayer lower\nrow a {shift} {space} {delete}\n");
    file.flush();
    desk.keyboard->addLayoutFile(file.fileName());
    desk.keyboard->setLanguage(text("ch"));
    QVERIFY(keyOf(*desk.keyboard, text("Schweiz")));
}

void TestOnScreenKeyboard::keysNeverOverlap_data()
{
    QTest::addColumn<double>("width_mm");
    QTest::addColumn<double>("height_mm");
    for (const double width : { 60.0, 77.3, 95.0, 160.0, 300.0 }) {
        for (const double height : { 30.0, 45.0, 80.0 })
            QTest::addRow("%g x %g mm", width, height) << width << height;
    }
}

void TestOnScreenKeyboard::keysNeverOverlap()
{
    QFETCH(double, width_mm);
    QFETCH(double, height_mm);
    const PanelScale scale(4, 5);
    OnScreenKeyboard keyboard;
    keyboard.resize(int(width_mm * 4), int(height_mm * 5));
    keyboard.setHasHideKey(true);
    keyboard.setLanguages(OnScreenKeyboard::builtInLanguages());
    keyboard.show();
    for (const QString &code : OnScreenKeyboard::builtInLanguages()) {
        keyboard.setLanguage(code);
        QRegion taken;
        int least_width = 1000;
        int widest = 0;
        for (const Key *key : keyboard.findChildren<Key *>()) {
            if (!key->isVisible())
                continue;
            QVERIFY(keyboard.rect().contains(key->geometry()));
            QVERIFY(!taken.intersects(key->geometry().adjusted(-1, -1, 1, 1)));
            taken += key->geometry();
            least_width = qMin(least_width, key->width());
            if (key->text().size() == 1)
                widest = qMax(widest, key->width());
        }
        QVERIFY(least_width >= int(60 * 4 / 14.0)); // 12 letters and the margins in the worst case
        QVERIFY(widest <= 19 * 4);
    }
}

void TestOnScreenKeyboard::auditFindsNothing()
{
    Desk desk;
    desk.field->setAccessibleName(text("Name"));
    desk.field->setFixedHeight(60);
    desk.field->setFrame(false);
    desk.keyboard->setHasHideKey(true);
    const auto found = uitest::PanelAudit::all(&desk.window, 1500);
    QVERIFY2(found.isEmpty(), qPrintable(uitest::PanelAudit::report(found)));
}

QTEST_MAIN(TestOnScreenKeyboard)
#include "tst_onscreenkeyboard.moc"
