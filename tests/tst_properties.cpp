// SPDX-License-Identifier: MIT
#include "support/propertywalk.h"
#include "support/testcase.h"

#include <QColor>
#include <QTest>

/// One sound property of each kind and three faulty ones: shows that the walk finds faults.
class Sample : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(double width_in_mm MEMBER m_mm)
    Q_PROPERTY(QColor color MEMBER m_color)
    Q_PROPERTY(Style style MEMBER m_style)
    Q_PROPERTY(bool hidden_in_designer MEMBER m_flag DESIGNABLE false)
    Q_PROPERTY(QString deaf READ text WRITE setText)
    Q_PROPERTY(int clamped READ number WRITE setNumber)

public:
    enum Style { Plain, Round };
    Q_ENUM(Style)

    using QWidget::QWidget;
    QString text() const { return QString(); }
    void setText(const QString &) { }
    int number() const { return m_number; }
    void setNumber(int number) { m_number = qMin(number, 6); }

private:
    double m_mm = 0.2;
    QColor m_color;
    Style m_style = Plain;
    bool m_flag = false;
    int m_number = 2;
};

class TestProperties : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void walkFindsFaults();
    void propertiesOfEveryClassHold_data();
    void propertiesOfEveryClassHold();
};

void TestProperties::walkFindsFaults()
{
    Sample sample;
    const QStringList expected = {
        QStringLiteral("hidden_in_designer is not designable"),
        QStringLiteral("deaf does not keep a value written by name"),
        QStringLiteral("deaf does not take a value from a stylesheet"),
        QStringLiteral("clamped does not take a value from a stylesheet"),
    };
    QCOMPARE(propertyFaults(&sample).join(QLatin1Char('\n')), expected.join(QLatin1Char('\n')));
}

void TestProperties::propertiesOfEveryClassHold_data()
{
    QTest::addColumn<int>("index");
    const auto &classes = walkedClasses();
    for (size_t i = 0; i < classes.size(); ++i)
        QTest::newRow(classes[i].name) << int(i);
}

void TestProperties::propertiesOfEveryClassHold()
{
    QFETCH(int, index);
    const WalkedClass &walked = walkedClasses()[size_t(index)];
    QWidget window;
    QWidget *widget = walked.make(&window);
    QCOMPARE(widget->parentWidget(), &window);
    const QByteArray class_name = widget->metaObject()->className();
    QVERIFY(class_name.startsWith("vexo::hox::qt::"));
    QVERIFY(class_name.endsWith(QByteArray("::") + walked.name));
    QCOMPARE(propertyFaults(widget).join(QLatin1Char('\n')), QString());
}

QTEST_MAIN(TestProperties)
#include "tst_properties.moc"
