#pragma once
// SPDX-License-Identifier: MIT

#include <QCoreApplication>
#include <QEvent>
#include <QHash>
#include <QMetaProperty>
#include <QTest>
#include <QWidget>

/// Counts the paints of the widgets it watches.
class PaintCounter : public QObject
{
public:
    void watch(QWidget *widget) { widget->installEventFilter(this); }
    /// Lets the event loop run until nothing is due any more, and some more rounds. Returns how
    /// often \a widget was painted since the last call for it.
    int take(QWidget *widget)
    {
        const int rounds = 10;
        for (int i = 0; i < rounds; ++i) {
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents();
        }
        return m_paints.take(widget);
    }

    /// The same without the event loop, up to now.
    int taken(QWidget *widget) { return m_paints.take(widget); }
    /// How many widgets were painted since they were last taken.
    int painted() const { return m_paints.size(); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++m_paints[watched];
        return false;
    }

private:
    QHash<QObject *, int> m_paints;
};

/// Shows \a widget and writes each property of its own class anew, with the value it has: the names
/// of those that do not repaint exactly once.
inline QByteArrayList propertiesWithoutOneRepaint(QWidget *widget)
{
    PaintCounter paints;
    paints.watch(widget);
    widget->show();
    if (!QTest::qWaitForWindowExposed(widget) || paints.take(widget) == 0)
        return { "never shown" };
    QByteArrayList names;
    const QMetaObject *meta = widget->metaObject();
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        property.write(widget, property.read(widget));
        if (paints.take(widget) != 1)
            names += property.name();
    }
    return names;
}
