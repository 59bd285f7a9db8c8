#include "support/testcase.h"

#include <QBuffer>
#include <QPluginLoader>
#include <QTest>
#include <QUiLoader>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <memory>

/// The plugin as Designer and the toolkit's form loader see it.
class TestDesignerPlugin : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void offersEveryWidget();
    void formLoaderBuildsEveryWidget_data();
    void formLoaderBuildsEveryWidget();
};

namespace {

const QString NAMESPACE = QStringLiteral("vexo::hox::qt::ui::");

QStringList expectedWidgets()
{
    return QStringLiteral(HOXQ_DESIGNER_WIDGETS).split(QLatin1Char(' '));
}

} // namespace

void TestDesignerPlugin::offersEveryWidget()
{
    QPluginLoader loader(QStringLiteral(HOXQ_DESIGNER_PLUGIN));
    auto *collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(loader.instance());
    QVERIFY2(collection, qPrintable(loader.errorString()));
    QStringList names;
    const auto entries = collection->customWidgets();
    for (const QDesignerCustomWidgetInterface *entry : entries)
        names += entry->name().mid(NAMESPACE.size());
    QCOMPARE(names, expectedWidgets());
    for (QDesignerCustomWidgetInterface *entry : entries) {
        QWidget parent;
        const QWidget *widget = entry->createWidget(&parent);
        QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), entry->name());
        QCOMPARE(widget->parentWidget(), &parent);
    }
}

void TestDesignerPlugin::formLoaderBuildsEveryWidget_data()
{
    QTest::addColumn<QString>("widget");
    const QStringList widgets = expectedWidgets();
    for (const QString &widget : widgets)
        QTest::newRow(qPrintable(widget)) << widget;
}

void TestDesignerPlugin::formLoaderBuildsEveryWidget()
{
    QFETCH(QString, widget);
    const QString form = QStringLiteral(
        "<ui version=\"4.0\"><class>Form</class><widget class=\"QWidget\" name=\"Form\">"
        "<widget class=\"%1\" name=\"inner\"><property name=\"enabled\"><bool>false</bool>"
        "</property></widget></widget></ui>");
    QByteArray text = form.arg(NAMESPACE + widget).toUtf8();
    QBuffer buffer(&text);
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(QStringLiteral(HOXQ_DESIGNER_PLUGIN).section(QLatin1Char('/'), 0, -2));
    const std::unique_ptr<QWidget> built(loader.load(&buffer));
    QVERIFY2(built, qPrintable(loader.errorString()));
    const auto *inner = built->findChild<QWidget *>(QStringLiteral("inner"));
    QVERIFY(inner);
    QCOMPARE(QString::fromLatin1(inner->metaObject()->className()), NAMESPACE + widget);
    QVERIFY(!inner->isEnabled());
}

QTEST_MAIN(TestDesignerPlugin)
#include "tst_designerplugin.moc"
