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
    void rowsComeBackInTheSavedOrder();
    void payloadComesBackToItsPlace();
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

QStringList namesIn(const QLayout *layout)
{
    QStringList names;
    for (int i = 0; i < layout->count(); ++i)
        names += layout->itemAt(i)->widget()->objectName();
    return names;
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

void TestDesigner::rowsComeBackInTheSavedOrder()
{
    Messages messages;
    m_designer->open(formText());
    const QLayout *rows = m_designer->find(QStringLiteral("vexoVerticalScrollContent"))->layout();
    const QStringList names = namesIn(rows);
    QCOMPARE(names.size(), 3);
    m_designer->select(m_designer->find(names.first()));
    m_designer->trigger(QDesignerFormWindowManagerInterface::DeleteAction);
    QCOMPARE(namesIn(rows), names.mid(1));
    m_designer->undo();
    QCOMPARE(namesIn(rows), names);
    QCOMPARE(m_designer->saved(), formText());
}

void TestDesigner::payloadComesBackToItsPlace()
{
    Messages messages;
    m_designer->open(formText());
    const QWidget *payload = m_designer->find(QStringLiteral("vexoLineEdit"));
    const QLayout *grid = payload->parentWidget()->layout();
    const QRect place = payload->geometry();
    m_designer->select(m_designer->find(QStringLiteral("vexoLineEdit")));
    m_designer->trigger(QDesignerFormWindowManagerInterface::DeleteAction);
    QCOMPARE(grid->indexOf(m_designer->find(QStringLiteral("vexoLineEdit"))), -1);
    m_designer->undo();
    QCOMPARE(m_designer->find(QStringLiteral("vexoLineEdit")), payload);
    QVERIFY(grid->indexOf(m_designer->find(QStringLiteral("vexoLineEdit"))) >= 0);
    QCOMPARE(payload->geometry(), place);
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
