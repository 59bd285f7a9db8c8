// SPDX-License-Identifier: MIT
#include "support/onscreen.h"
#include "support/paintcounter.h"
#include "support/propertywalk.h"
#include "support/testcase.h"

#include <QColor>
#include <QTest>

#include <memory>

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
    void propertiesOfEveryClassHold_data() { addWalkedClasses(); }
    void propertiesOfEveryClassHold();
    void rep_data() { addWalkedClasses(); }
    void rep();
    void changeShowsAsOnANewOne_data() { addWalkedClasses(); }
    void changeShowsAsOnANewOne();
    void anyPartMayGo_data() { addWalkedClasses(); }
    void anyPartMayGo();
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

void TestProperties::propertiesOfEveryClassHold()
{
    QFETCH(const WalkedClass *, walked);
    QWidget window;
    QWidget *widget = walked->make(&window);
    QCOMPARE(widget->parentWidget(), &window);
    QCOMPARE(QByteArray(widget->metaObject()->className()),
        QByteArray("vexo::hox::qt::ui::") + walked->name);
    QCOMPARE(propertyFaults(widget).join(QLatin1Char('\n')), QString());
}

void TestProperties::rep()
{
    QFETCH(const WalkedClass *, walked);
    std::unique_ptr<QWidget> w(walked->make(nullptr));
    qInfo() << walked->name << propertiesWithoutOneRepaint(w.get());
}

// Nothing that a paint keeps outlives a change.
void TestProperties::changeShowsAsOnANewOne()
{
    QFETCH(const WalkedClass *, walked);
    const QMetaObject *meta = std::unique_ptr<QWidget>(walked->make(nullptr))->metaObject();
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        const std::unique_ptr<QWidget> painted(walked->make(nullptr));
        const std::unique_ptr<QWidget> unseen(walked->make(nullptr));
        const QVariant value = otherValue(property, property.read(unseen.get()), 3);
        for (QWidget *widget : { painted.get(), unseen.get() }) {
            widget->setProperty("text", "text");
            widget->resize(300, 200);
        }
        painted->grab();
        for (QWidget *widget : { painted.get(), unseen.get() })
            property.write(widget, value);
        QCOMPARE(painted->size(), unseen->size());
        if (painted->grab().toImage() != unseen->grab().toImage())
            qInfo() << "DIFF" << walked->name << property.name();
    }
}

void TestProperties::anyPartMayGo()
{
    QFETCH(const WalkedClass *, walked);
    for (int part = 0;; ++part) {
        QWidget window;
        window.resize(400, 300);
        QWidget *widget = walked->make(&window);
        widget->resize(300, 200);
        window.show();
        settle();
        const auto parts = widget->findChildren<QWidget *>();
        if (part >= parts.size())
            break;
        fprintf(stderr, "%s deletes %s %s\n", walked->name,
            parts.at(part)->metaObject()->className(), qPrintable(parts.at(part)->objectName()));
        delete parts.at(part);
        const QMetaObject *meta = widget->metaObject();
        for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
            const QMetaProperty property = meta->property(i);
            property.write(widget, otherValue(property, property.read(widget), 3));
        }
        widget->resize(200, 150);
        widget->setEnabled(false);
        widget->setEnabled(true);
        QTest::mouseClick(widget, Qt::LeftButton);
        widget->hide();
        widget->show();
        widget->setWindowFlags(Qt::Widget);
        settle();
        if (wrongPixels(window) != QRect())
            qInfo() << "WRONG" << wrongPixels(window);
    }
}

QTEST_MAIN(TestProperties)
#include "tst_properties.moc"
