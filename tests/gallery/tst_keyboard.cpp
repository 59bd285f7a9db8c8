#include "gallery/widgets/keyboard.h"
#include "support/testcase.h"

#include <VexoKeyboardButton>

#include <QSignalSpy>
#include <QTest>

using vexo::hox::qt::ui::VexoKeyboardButton;

class TestKeyboard : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void typesAGreeting();
    void deleteRepeatsWhileHeld();
    void gapsAreEven();

private:
    void click(Keyboard *keyboard, const QString &label);
};

namespace {

// The visible key that bears the text, the object name or the accessible name.
VexoKeyboardButton *findKey(const Keyboard &keyboard, const QString &label)
{
    const auto keys = keyboard.findChildren<VexoKeyboardButton *>();
    for (VexoKeyboardButton *key : keys) {
        if (!key->isHidden() && (key->text() == label || key->accessibleName() == label))
            return key;
    }
    return nullptr;
}

} // namespace

void TestKeyboard::click(Keyboard *keyboard, const QString &label)
{
    VexoKeyboardButton *key = findKey(*keyboard, label);
    QVERIFY2(key, qPrintable(label));
    QTest::mouseClick(key, Qt::LeftButton);
}

void TestKeyboard::typesAGreeting()
{
    Keyboard keyboard;
    keyboard.resize(880, keyboard.height());
    QString text;
    connect(&keyboard, &Keyboard::typed, this, [&](const QString &typed) { text += typed; });
    const QStringList labels
        = QString::fromUtf8("Shift G r ü ß e Space 123 2 0 2 6 ABC DE @").split(QLatin1Char(' '));
    const QStringList greeting = labels.mid(0, labels.size() - 1);
    for (const QString &label : greeting)
        click(&keyboard, label);
    QCOMPARE(text, QString::fromUtf8("Grüße 2026"));
    QVERIFY(findKey(keyboard, QStringLiteral("EN"))); // the language key has led to English
    click(&keyboard, QStringLiteral("123"));
    click(&keyboard, labels.last());
    QVERIFY(text.endsWith(QLatin1Char('@')));
}

void TestKeyboard::deleteRepeatsWhileHeld()
{
    Keyboard keyboard;
    keyboard.resize(880, keyboard.height());
    const QSignalSpy deletions(&keyboard, &Keyboard::resetPressed);
    VexoKeyboardButton *key = findKey(keyboard, QStringLiteral("Delete"));
    QTest::mousePress(key, Qt::LeftButton);
    QCOMPARE(deletions.count(), 1);
    QTRY_VERIFY(deletions.count() >= 3);
    QTest::mouseRelease(key, Qt::LeftButton);
}

void TestKeyboard::gapsAreEven()
{
    Keyboard keyboard;
    keyboard.resize(873, keyboard.height());
    keyboard.show();
    const QStringList row = QString::fromUtf8("q w e r t z u i o p ü").split(QLatin1Char(' '));
    for (int i = 1; i < row.size(); ++i) {
        const QRect left = findKey(keyboard, row.at(i - 1))->geometry();
        const QRect right = findKey(keyboard, row.at(i))->geometry();
        QCOMPARE(right.left() - left.right() - 1, 3); // 1 mm of 3.9 px
    }
}

QTEST_MAIN(TestKeyboard)
#include "tst_keyboard.moc"
