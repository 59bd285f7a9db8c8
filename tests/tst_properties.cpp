// SPDX-License-Identifier: MIT
#include "support/onscreen.h"
#include "support/paintcounter.h"
#include "support/propertywalk.h"
#include "support/testcase.h"

#include <QColor>

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
    void changeRepaintsOnce_data();
    void changeRepaintsOnce();
    void changeShowsAsOnANewOne_data() { addWalkedClasses(); }
    void changeShowsAsOnANewOne();
};

void TestProperties::walkFindsFaults()
{
    Sample sample;
    const QStringList expected = {
        "hidden_in_designer is not designable",
        "deaf does not keep a value written by name",
        "deaf does not take a value from a stylesheet",
        "clamped does not take a value from a stylesheet",
    };
    QCOMPARE(propertyFaults(&sample).join(QLatin1Char('\n')), expected.join(QLatin1Char('\n')));
}

void TestProperties::propertiesOfEveryClassHold()
{
    QFETCH(const WalkedClass *, walked);
    QWidget window;
    QWidget *widget = walked->make(&window);
    QCOMPARE(widget->parentWidget(), &window);
    const QByteArray name = widget->metaObject()->className();
    QVERIFY2(name.startsWith("vexo::hox::qt::"), name);
    QCOMPARE(name.mid(name.lastIndexOf(':') + 1), QByteArray(walked->name));
    QCOMPARE(propertyFaults(widget).join(QLatin1Char('\n')), QString());
}

void TestProperties::changeRepaintsOnce_data()
{
    QTest::addColumn<const WalkedClass *>("walked");
    QTest::addColumn<QByteArrayList>("others"); // which change nothing, or more than this widget
    const QHash<QByteArray, QByteArrayList> all_others{
        { "VexoDesignVectorButton", {} },
        { "VexoHorizontalTextIconButton",
            { "mm_height", "left_side_text_percent_width", "right_side_text_percent_width" } },
        { "VexoKeyboardButton", { "height_in_mm" } },
        { "VexoLabel", { "pt_font_size", "height_in_mm", "text_alignment" } },
        { "VexoLineSpacer", {} },
        { "VexoLogoLabel", {} },
        { "VexoRuler", { "m_first_line_color", "m_second_line_color" } }, // until the next style
        { "VexoSlider", {} },
    };
    for (const WalkedClass &walked : walkedClasses()) {
        if (all_others.contains(walked.name))
            QTest::newRow(walked.name) << &walked << all_others[walked.name];
    }
}

void TestProperties::changeRepaintsOnce()
{
    QFETCH(const WalkedClass *, walked);
    const std::unique_ptr<QWidget> widget(walked->make(nullptr));
    QTEST(propertiesWithoutOneRepaint(widget.get()), "others");
}

// Nothing that a paint keeps outlives a change.
void TestProperties::changeShowsAsOnANewOne()
{
    QFETCH(const WalkedClass *, walked);
    QWidget host; // without one a dialog or notice is nowhere
    const QMetaObject *meta = walked->make(&host)->metaObject();
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        QWidget screen;
        QWidget *const painted = walked->make(&screen);
        QWidget *const fresh = walked->make(&screen);
        const QVariant value = otherValue(property, property.read(fresh), 3);
        for (QWidget *widget : { painted, fresh }) {
            for (const char *name : { "text", "subtext" }) // an empty label keeps its size
                widget->setProperty(name, "text");
            widget->resize(300, 200);
        }
        painted->grab();
        for (QWidget *widget : { painted, fresh }) {
            property.write(widget, value);
            widget->grab();
            settle(); // lays out
        }
        QVERIFY2(painted->grab().toImage() == fresh->grab().toImage(), property.name());
    }
}

QTEST_MAIN(TestProperties)
#include "tst_properties.moc"
