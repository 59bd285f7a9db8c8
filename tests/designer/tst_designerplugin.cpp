// SPDX-License-Identifier: MIT
#include "publicclasses.h"
#include "support/testcase.h"

#include <QIcon>
#include <QImage>
#include <QMainWindow>
#include <QPluginLoader>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <type_traits>

using namespace vexo::hox::qt::system;
using namespace vexo::hox::qt::ui;
using namespace vexo::util;

/// The plugin's entries, one for each widget class.
class TestDesignerPlugin : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void offersEveryPublicWidget();
    void makesAndDescribesTheWidget_data();
    void makesAndDescribesTheWidget();
    void iconsAreToldApart();

private:
    QList<QDesignerCustomWidgetInterface *> m_entries;
};

namespace {

// A form makes a widget of its parent alone; a window is no part of one.
template <typename Class>
constexpr bool isForForms()
{
    return std::is_base_of_v<QWidget,
               Class> && std::is_constructible_v<Class, QWidget *> && !std::is_base_of_v<QMainWindow, Class>;
}

QStringList classesForForms()
{
    QStringList names;
#define HOXQ_ADD(Class)                                                                            \
    if (isForForms<Class>())                                                                       \
        names += QStringLiteral(#Class);
    HOXQ_FOR_EACH_CLASS(HOXQ_ADD)
#undef HOXQ_ADD
    return names;
}

const QString NAMESPACE = QStringLiteral("vexo::hox::qt::ui::");

// How much two icons differ: the mean distance of their pixels, 0 to 255 for each of three colours.
double distance(const QImage &a, const QImage &b)
{
    double sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QColor left = a.pixelColor(x, y);
            const QColor right = b.pixelColor(x, y);
            sum += qAbs(left.red() - right.red()) + qAbs(left.green() - right.green())
                + qAbs(left.blue() - right.blue());
        }
    }
    return sum / (a.width() * a.height());
}

} // namespace

void TestDesignerPlugin::initTestCase()
{
    TestCase::initTestCase();
    QPluginLoader loader(QStringLiteral(HOXQ_DESIGNER_PLUGIN));
    auto *collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(loader.instance());
    QVERIFY2(collection, qPrintable(loader.errorString()));
    m_entries = collection->customWidgets();
}

void TestDesignerPlugin::offersEveryPublicWidget()
{
    QStringList names;
    for (const QDesignerCustomWidgetInterface *entry : qAsConst(m_entries))
        names += entry->name().mid(NAMESPACE.size());
    QStringList expected = classesForForms();
    names.sort();
    expected.sort();
    QVERIFY(expected.contains(QLatin1String("VexoLabel")));
    QCOMPARE(names, expected);
}

void TestDesignerPlugin::makesAndDescribesTheWidget_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < m_entries.size(); ++i)
        QTest::newRow(qPrintable(m_entries.at(i)->name())) << i;
}

void TestDesignerPlugin::makesAndDescribesTheWidget()
{
    QFETCH(int, index);
    QDesignerCustomWidgetInterface *entry = m_entries.at(index);
    QWidget parent;
    const QWidget *widget = entry->createWidget(&parent);
    QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), entry->name());
    QCOMPARE(widget->parentWidget(), &parent);
    QVERIFY2(entry->toolTip().endsWith(QLatin1String(".</p>")), qPrintable(entry->toolTip()));
    QVERIFY(entry->whatsThis().size() >= entry->toolTip().size());
    QVERIFY(!entry->domXml().contains(QLatin1String("///")));
}

void TestDesignerPlugin::iconsAreToldApart()
{
    const double least = 10;
    QList<QImage> images;
    for (const QDesignerCustomWidgetInterface *entry : qAsConst(m_entries)) {
        const QImage image = entry->icon().pixmap(24, 24).toImage();
        QCOMPARE(image.size(), QSize(24, 24));
        for (int i = 0; i < images.size(); ++i)
            QVERIFY2(distance(image, images.at(i)) > least,
                qPrintable(entry->name() + QLatin1Char(' ') + m_entries.at(i)->name()
                    + QStringLiteral(" %1").arg(distance(image, images.at(i)))));
        images += image;
    }
}

QTEST_MAIN(TestDesignerPlugin)
#include "tst_designerplugin.moc"
