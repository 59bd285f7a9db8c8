// SPDX-License-Identifier: MIT
#include "package/loadedfiles.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QWindow>

namespace {

/// The visible part of \a window whose class has this name.
QWidget *partOf(const QWidget &window, const char *class_name)
{
    const auto parts = window.findChildren<QWidget *>();
    for (QWidget *part : parts) {
        if (part->isVisible() && qstrcmp(part->metaObject()->className(), class_name) == 0)
            return part;
    }
    return nullptr;
}

QAbstractButton *keyOf(const QWidget &keyboard, const QString &label)
{
    const auto keys = keyboard.findChildren<QAbstractButton *>();
    for (QAbstractButton *key : keys) {
        if (key->isVisible() && (key->text() == label || key->accessibleName() == label))
            return key;
    }
    return nullptr;
}

void tap(const QWidget &key)
{
    const QWidget *window = key.window();
    QTest::mouseClick(
        window->windowHandle(), Qt::LeftButton, {}, key.mapTo(window, key.rect().center()));
}

} // namespace

/// The installed input method in an application that knows nothing of the libraries: it comes by
/// the environment, QT_PLUGIN_PATH and QT_IM_MODULE, of a German system.
class TestStockKeyboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typesIntoAStockField();
    void comesFromTheInstalledTree();
};

void TestStockKeyboard::typesIntoAStockField()
{
    QWidget window;
    QLineEdit field(&window);
    window.resize(800, 600);
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const char *const class_name = "vexo::hox::qt::panel::OnScreenKeyboard";
    QVERIFY(!partOf(window, class_name));
    field.setFocus();
    QTRY_VERIFY(partOf(window, class_name));
    const QWidget &keyboard = *partOf(window, class_name);
    QCOMPARE(keyboard.accessibleName(), QString("Tastatur"));
    for (const char *label : { "T", "a", "Leertaste" }) {
        QTRY_VERIFY2(keyOf(keyboard, label), label);
        tap(*keyOf(keyboard, label));
    }
    QTRY_COMPARE(field.text(), QString("Ta "));
}

void TestStockKeyboard::comesFromTheInstalledTree()
{
    const QStringList files = loadedFiles();
    for (const char *name : { "libhoxqpanel.so", "libhoxquikeyboard.so" })
        QVERIFY2(!files.filter(name).isEmpty(), name);
    for (const QString &file : files)
        QVERIFY2(file.startsWith(HOXQ_STAGE "/"), qPrintable(file));
}

QTEST_MAIN(TestStockKeyboard)
#include "tst_stockkeyboard.moc"
