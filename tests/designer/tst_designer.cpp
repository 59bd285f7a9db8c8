// SPDX-License-Identifier: MIT
#include "designer/designerhost.h"
#include "support/testcase.h"

#include <QFile>

/// What a user of Qt Designer meets.
class TestDesigner : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_designer.reset(); }
    void newWidgetHasShortNameAndSize_data();
    void newWidgetHasShortNameAndSize();
    void savesWhatItOpened();
    void deletedPartComesBack();
    void impossibleSizeIsRefused();
    void sliderShowsItsRealRange();

private:
    std::unique_ptr<DesignerHost> m_designer;
};

namespace {

QString formText()
{
    QFile file(QStringLiteral(HOXQ_FORM));
    return file.open(QFile::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

void TestDesigner::initTestCase()
{
    TestCase::initTestCase();
    m_designer = std::make_unique<DesignerHost>();
}

void TestDesigner::newWidgetHasShortNameAndSize_data()
{
    QTest::addColumn<QString>("offered");
    const QStringList names = m_designer->offered();
    QVERIFY(!names.isEmpty());
    for (const QString &name : names)
        QTest::newRow(qPrintable(name)) << name;
}

void TestDesigner::newWidgetHasShortNameAndSize()
{
    QFETCH(QString, offered);
    Messages messages; // Designer says that it knows no float
    m_designer->openEmpty();
    const QWidget *widget = m_designer->add(offered);
    QVERIFY(widget);
    QCOMPARE(widget->objectName(), offered.left(1).toLower() + offered.mid(1));
    QVERIFY2(widget->width() >= 3 && widget->height() >= 2 && widget->width() <= 400,
        qPrintable(QStringLiteral("%1 x %2").arg(widget->width()).arg(widget->height())));
    QVERIFY(!m_designer->saved().contains(QLatin1String("<string>vexo")));
}

void TestDesigner::savesWhatItOpened()
{
    Messages messages;
    m_designer->open(formText());
    QVERIFY(formText().size() > 1000);
    QCOMPARE(m_designer->saved(), formText());
}

// Rows of a list in their order, a payload to its place.
void TestDesigner::deletedPartComesBack()
{
    Messages messages;
    for (const QString &name :
        { QStringLiteral("vexoFunctionButton"), QStringLiteral("vexoLineEdit") }) {
        m_designer->open(formText());
        QWidget *part = m_designer->find(name);
        const QLayout *layout = part->parentWidget()->layout();
        const int index = layout->indexOf(part);
        QVERIFY(index >= 0);
        const QRect place = part->geometry();
        m_designer->select(part);
        m_designer->trigger(QDesignerFormWindowManagerInterface::DeleteAction);
        QCOMPARE(layout->indexOf(part), -1);
        m_designer->undo();
        QCOMPARE(m_designer->find(name), part);
        QCOMPARE(layout->indexOf(part), index);
        QCOMPARE(part->geometry(), place);
        QCOMPARE(m_designer->saved(), formText());
    }
}

void TestDesigner::impossibleSizeIsRefused()
{
    Messages messages;
    m_designer->openEmpty();
    QWidget *button = m_designer->add(QStringLiteral("ActiveVectorButton"));
    m_designer->set(button, QStringLiteral("mm_icon_width"), -5.0);
    QCOMPARE(button->property("mm_icon_width").toDouble(), 10.0);
    QVERIFY(messages.lines().join(QLatin1Char('\n')).contains(QLatin1String("impossible")));
}

void TestDesigner::sliderShowsItsRealRange()
{
    m_designer->openEmpty();
    QWidget *decoration = m_designer->add(QStringLiteral("VexoSliderDecoration"));
    QWidget *slider = m_designer->find(QStringLiteral("vexoSlider"));
    QVERIFY(m_designer->set(slider, QStringLiteral("tickInterval"), 5));
    QVERIFY(m_designer->set(decoration, QStringLiteral("m_style"), 1));
    QCOMPARE(slider->property("maximum").toInt(), 100); // not the number of steps
    QVERIFY(m_designer->saved().contains(QLatin1String("<number>100</number>")));
}

QTEST_MAIN(TestDesigner)
#include "tst_designer.moc"
