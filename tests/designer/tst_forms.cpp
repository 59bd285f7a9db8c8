// SPDX-License-Identifier: MIT
#include "support/propertywalk.h"
#include "support/testcase.h"
#include "ui_everywidget.h"

#include <QBuffer>
#include <QFile>
#include <QMetaProperty>
#include <QUiLoader>

/// A form with every widget, each property set, as Designer saves it: compiled and loaded.
class TestForms : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void bothWaysSetTheSameProperties();
    void compiledFormSetsEachProperty();
    void containersPlaceTheirChildren_data();
    void containersPlaceTheirChildren();
    void loadedSliderKnowsItsRealRange();

private:
    std::unique_ptr<QWidget> m_compiled;
    std::unique_ptr<QWidget> m_loaded;
    Ui::Form m_ui;
};

using namespace vexo::hox::qt::ui;

namespace {

std::unique_ptr<QWidget> loaded(QIODevice *form)
{
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(QStringLiteral(HOXQ_PLUGINS "/designer"));
    std::unique_ptr<QWidget> widget(loader.load(form));
    if (!widget)
        qWarning("%s", qPrintable(loader.errorString()));
    return widget;
}

bool isOurs(const QWidget *widget)
{
    return QByteArray(widget->metaObject()->className()).startsWith("vexo::")
        && !widget->objectName().isEmpty();
}

bool isCompared(const QMetaProperty &property)
{
    return property.userType() != QMetaType::QIcon && property.userType() != QMetaType::QPixmap;
}

} // namespace

void TestForms::init()
{
    TestCase::init();
    m_compiled = std::make_unique<QWidget>();
    m_ui.setupUi(m_compiled.get());
    QFile file(QStringLiteral(HOXQ_FORM));
    QVERIFY(file.open(QFile::ReadOnly));
    m_loaded = loaded(&file);
    QVERIFY(m_loaded);
}

void TestForms::cleanup()
{
    m_compiled.reset();
    m_loaded.reset();
    TestCase::cleanup();
}

void TestForms::bothWaysSetTheSameProperties()
{
    int count = 0;
    const auto widgets = m_compiled->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        const auto *twin = m_loaded->findChild<QWidget *>(widget->objectName());
        const QMetaObject *meta = widget->metaObject();
        for (int i = meta->propertyOffset(); isOurs(widget) && i < meta->propertyCount(); ++i) {
            QVERIFY2(twin && meta == twin->metaObject(), qPrintable(widget->objectName()));
            if (isCompared(meta->property(i)))
                QCOMPARE(meta->property(i).read(twin), meta->property(i).read(widget));
            ++count;
        }
    }
    QVERIFY(count > 150);
}

void TestForms::compiledFormSetsEachProperty()
{
    QStringList untouched;
    for (const WalkedClass &walked : walkedClasses()) {
        QString name = QString::fromLatin1(walked.name);
        name.front() = name.front().toLower();
        const auto *widget = m_compiled->findChild<QWidget *>(name);
        if (!widget)
            continue;
        const std::unique_ptr<QWidget> fresh(walked.make(nullptr));
        const QMetaObject *meta = widget->metaObject();
        for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
            if (isCompared(meta->property(i))
                && meta->property(i).read(widget) == meta->property(i).read(fresh.get()))
                untouched += name + QLatin1Char('.') + QLatin1String(meta->property(i).name());
        }
    }
    const QStringList expected{
        QStringLiteral("vexoPushButton.m_text_mm_margin_x"), // Designer knows no float
        QStringLiteral("vexoFunctionButton.m_button_type"), // back from what a new one has
        QStringLiteral("vexoLineEdit.m_underscores"), // ended by the placeholder text
        QStringLiteral("vexoLineEdit.m_mm_margin"), // the labelled container takes it away
    };
    QCOMPARE(untouched, expected);
}

void TestForms::containersPlaceTheirChildren_data()
{
    QTest::addColumn<bool>("compiled");
    QTest::newRow("compiled") << true;
    QTest::newRow("loaded") << false;
}

void TestForms::containersPlaceTheirChildren()
{
    QFETCH(bool, compiled);
    const QWidget &form = compiled ? *m_compiled : *m_loaded;
    const auto find
        = [&form](const char *name) { return form.findChild<QWidget *>(QLatin1String(name)); };
    QWidget *content = find("vexoVerticalScrollContent");
    QCOMPARE(form.findChild<VexoVerticalScrollArea *>()->widget(), content);
    QCOMPARE(content->layout()->count(), 3);
    QCOMPARE(content->layout()->itemAt(0)->widget(), find("vexoFunctionButton"));
    QCOMPARE(content->layout()->itemAt(1)->widget(), find("vexoRuler"));
    QCOMPARE(content->layout()->itemAt(2)->widget(), find("vexoLabel"));
    QVERIFY(find("vexoLabeledContainer")->layout()->indexOf(find("vexoLineEdit")) >= 0);
    QVERIFY(find("vexoSliderDecoration")->layout()->indexOf(find("vexoSlider_2")) >= 0);
    QCOMPARE(form.findChild<VideoCapturePanning *>()->widget(), find("videoArea"));
}

void TestForms::loadedSliderKnowsItsRealRange()
{
    QByteArray form = R"(<ui version="4.0"><class>Form</class><widget class="QWidget" name="Form">
        <widget class="vexo::hox::qt::ui::VexoSlider" name="slider">
        <property name="minimum"><number>10</number></property>
        <property name="maximum"><number>110</number></property>
        <property name="value"><number>60</number></property>
        <property name="tickInterval"><number>5</number></property></widget></widget></ui>)";
    QBuffer buffer(&form);
    const auto widget = loaded(&buffer);
    QVERIFY(widget);
    auto *slider = widget->findChild<VexoSlider *>();
    QCOMPARE(slider->maximum(), 20); // steps
    QCOMPARE(slider->value(), 10);
    QCOMPARE(slider->getRealSliderValue(20), 110);
    QCOMPARE(slider->property("maximum").toInt(), 110);
    QCOMPARE(slider->property("value").toInt(), 60);
    slider->setRawValue(11);
    QCOMPARE(slider->property("value").toInt(), 65);
}

QTEST_MAIN(TestForms)
#include "tst_forms.moc"
