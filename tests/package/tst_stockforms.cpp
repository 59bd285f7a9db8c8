// SPDX-License-Identifier: MIT
#include "package/loadedfiles.h"

#include <QAbstractButton>
#include <QBuffer>
#include <QTest>
#include <QUiLoader>

#include <memory>

/// The installed plugin for Designer in an application that knows nothing of the libraries.
class TestStockForms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formOfBothLibrariesIsLoaded();
    void comesFromTheInstalledTree();
};

void TestStockForms::formOfBothLibrariesIsLoaded()
{
    QByteArray form = R"(<ui version="4.0"><class>Form</class><widget class="QWidget" name="Form">
        <layout class="QVBoxLayout">
        <item><widget class="vexo::hox::qt::ui::VexoPushButton" name="button">
        <property name="text"><string>Start</string></property></widget></item>
        <item><widget class="vexo::hox::qt::panel::OnScreenKeyboard" name="keyboard">
        <property name="languages"><stringlist><string>fr</string></stringlist></property>
        </widget></item></layout></widget></ui>)";
    QBuffer buffer(&form);
    QUiLoader loader;
    loader.clearPluginPaths(); // of whatever else the machine has
    loader.addPluginPath(QStringLiteral(HOXQ_STAGE "/" HOXQ_LIBDIR "/qt5/plugins/designer"));
    const std::unique_ptr<QWidget> loaded(loader.load(&buffer));
    QVERIFY2(loaded, qPrintable(loader.errorString()));
    const auto *button = loaded->findChild<QAbstractButton *>("button");
    QVERIFY(button);
    QCOMPARE(button->metaObject()->className(), "vexo::hox::qt::ui::VexoPushButton");
    QCOMPARE(button->text(), QString("Start"));
    const auto *keyboard = loaded->findChild<QWidget *>("keyboard");
    QVERIFY(keyboard);
    QCOMPARE(keyboard->property("languages").toStringList(), QStringList{ "fr" });
    QVERIFY(!loaded->grab().isNull());
}

void TestStockForms::comesFromTheInstalledTree()
{
    const QStringList files = loadedFiles();
    for (const char *name : { "libhoxqpanel.so", "libhoxqui.so", "libhoxquiwidgets.so" })
        QVERIFY2(!files.filter(name).isEmpty(), name);
    for (const QString &file : files)
        QVERIFY2(file.startsWith(HOXQ_STAGE "/"), qPrintable(file));
}

QTEST_MAIN(TestStockForms)
#include "tst_stockforms.moc"
