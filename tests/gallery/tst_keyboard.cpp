// SPDX-License-Identifier: MIT
#include "gallery/keys.h"
#include "support/testcase.h"

class TestKeyboard : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void typesAGreeting();
    void deleteRepeatsWhileHeld();
    void gapsAreEven();
};

void TestKeyboard::typesAGreeting()
{
    Keyboard keyboard;
    keyboard.resize(880, keyboard.height());
    QString text;
    connect(&keyboard, &Keyboard::typed, this, [&](const QString &typed) { text += typed; });
    clickKeys(keyboard, QString::fromUtf8("Shift G r ü ß e Space 123 2 0 2 6 ABC DE"));
    QCOMPARE(text, QString::fromUtf8("Grüße 2026"));
    QVERIFY(byText<Keyboard::Key>(keyboard, "EN")); // the language key has led to English
    clickKeys(keyboard, "123 @");
    QVERIFY(text.endsWith(QLatin1Char('@')));
}

void TestKeyboard::deleteRepeatsWhileHeld()
{
    Keyboard keyboard;
    keyboard.resize(880, keyboard.height());
    const QSignalSpy deletions(&keyboard, &Keyboard::resetPressed);
    Keyboard::Key *key = byText<Keyboard::Key>(keyboard, "Delete");
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
        const QRect left = byText<Keyboard::Key>(keyboard, row.at(i - 1))->geometry();
        const QRect right = byText<Keyboard::Key>(keyboard, row.at(i))->geometry();
        QCOMPARE(right.left() - left.right() - 1, 3); // 1 mm of 3.9 px
    }
}

QTEST_MAIN(TestKeyboard)
#include "tst_keyboard.moc"
