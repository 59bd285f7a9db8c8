// SPDX-License-Identifier: MIT
#include "support/effort.h"
#include "support/propertywalk.h"
#include "support/testcase.h"

#include <QAbstractButton>
#include <QColor>
#include <QDate>
#include <QFont>
#include <QIcon>
#include <QMetaProperty>
#include <QPixmap>
#include <QPointF>
#include <QRandomGenerator>

#include <limits>
#include <stdexcept>

/// Writes random, extreme and wrong values to the properties of each class and shows it after each.
/// HOXQ_FUZZ_STEPS sets how many, HOXQ_FUZZ_SEED which.
class TestPropertyFuzz : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void noValueHurts_data() { addWalkedClasses(); }
    void noValueHurts();

private:
    QVariant extreme(const QMetaProperty &property);
    QVariant wrong();
    double number();
    int whole();
    QString text();
    template <typename T>
    T oneOf(const QVector<T> &values)
    {
        return values.at(m_random.bounded(values.size()));
    }

    QRandomGenerator m_random;
};

namespace {

/// Those that the library's classes declare, and what an application sets on each widget.
QVector<QMetaProperty> propertiesOf(const QWidget *widget)
{
    QVector<QMetaProperty> properties;
    const QMetaObject *meta = widget->metaObject();
    for (int i = 0; i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        const bool is_ours
            = QByteArray(property.enclosingMetaObject()->className()).startsWith("vexo");
        const QByteArray name = property.name();
        const bool is_common = name == "enabled" || name == "text" || name == "checkable"
            || name == "checked" || name == "down" || name == "layoutDirection" || name == "value"
            || name == "maximum" || name == "echoMode" || name == "alignment";
        if (property.isWritable() && (is_ours || is_common))
            properties += property;
    }
    return properties;
}

/// What the headers of the classes name.
const char *exceptionOf(QWidget *widget, const QMetaProperty &property, const QVariant &value)
{
    try {
        property.write(widget, value);
    } catch (const std::out_of_range &error) {
        const QByteArray text = error.what();
        return text.startsWith("Negative ") ? "" : "std::out_of_range";
    } catch (const std::exception &) {
        return "std::exception";
    }
    return "";
}

} // namespace

double TestPropertyFuzz::number()
{
    const double infinity = std::numeric_limits<double>::infinity();
    return oneOf<double>({ 0, -0.0, 1e-300, 0.01, 1, 5, -1, -5, m_random.bounded(50.0), 1e3, 1e4,
        1e6, -1e6, 1e9, -1e9, 1e38, -1e38, 1e300, -1e300, infinity, -infinity, qQNaN() });
}

int TestPropertyFuzz::whole()
{
    const int least = std::numeric_limits<int>::min();
    const int most = std::numeric_limits<int>::max();
    return oneOf<int>({ 0, 1, -1, 2, 3, 99, -99, 255, 1000, 32767, 32768, 16777215, 1 << 24, most,
        most - 1, least, least + 1, m_random.bounded(100), int(m_random.generate()) });
}

QString TestPropertyFuzz::text()
{
    const QString markup = QString("<b>x</b><img src='/dev/zero'>");
    return oneOf<QString>({ QString(), QString("a"), QString("two words"),
        QString("line\nline\r\t"), QString(2000, QLatin1Char('W')), QString("ab ").repeated(1000),
        markup, QString(5, QChar(0)), QString(3, QChar(0xd800)),
        QString::fromUtf8("\u05d0\u05d1 \u4e2d e\u0301\u0323"), "%1 %2 &x &&",
        QString(300, QChar(0x301)) });
}

QVariant TestPropertyFuzz::wrong()
{
    return oneOf<QVariant>({ QVariant(), QDate(2000, 1, 1), text(), whole(), number(),
        QVariantList{ 1, 2 }, QRect(1, 2, 3, 4), QByteArray("x"), QColor(), true });
}

QVariant TestPropertyFuzz::extreme(const QMetaProperty &property)
{
    if (property.isEnumType())
        return whole();
    switch (property.userType()) {
    case QMetaType::Bool:
        return m_random.bounded(2) == 1;
    case QMetaType::Int:
    case QMetaType::UInt:
        return whole();
    case QMetaType::Double:
    case QMetaType::Float:
        return number();
    case QMetaType::QString:
        return text();
    case QMetaType::QColor:
        return QColor::fromRgba(m_random.generate());
    case QMetaType::QSizeF:
        return QSizeF(number(), number());
    case QMetaType::QSize:
        return QSize(whole(), whole());
    case QMetaType::QPointF:
        return QPointF(number(), number());
    case QMetaType::QPixmap:
        return QPixmap(m_random.bounded(2000), m_random.bounded(2000));
    case QMetaType::QIcon:
        return QIcon(QPixmap(m_random.bounded(2000), m_random.bounded(2000)));
    default:
        return wrong();
    }
}

void TestPropertyFuzz::noValueHurts()
{
    QFETCH(const WalkedClass *, walked);
    m_random.seed(quint32(asked("HOXQ_FUZZ_SEED", 1)));
    QWidget window;
    window.setFixedSize(1024, 600);
    QWidget *widget = walked->make(&window);
    window.show();
    const QVector<QMetaProperty> properties = propertiesOf(widget);
    if (properties.isEmpty())
        return;
    QString steps; // until here
    for (int i = asked("HOXQ_FUZZ_STEPS", 100); i > 0; --i) {
        const QMetaProperty property = oneOf(properties);
        const QVariant value = m_random.bounded(8) == 0 ? wrong() : extreme(property);
        QString shown;
        QDebug(&shown).nospace() << property.name() << " = " << value;
        steps = steps.right(2000) + QLatin1Char('\n') + shown.left(200);
        const Effort effort;
        QCOMPARE(exceptionOf(widget, property, value), "");
        widget->sizeHint();
        widget->resize(m_random.bounded(1024), widget->height());
        window.grab();
        QVERIFY2(effort.isSmall(), qPrintable(effort.text() + steps));
    }
}

QTEST_MAIN(TestPropertyFuzz)
#include "tst_propertyfuzz.moc"
