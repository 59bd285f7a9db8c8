#pragma once
// SPDX-License-Identifier: MIT

#include <QMetaMethod>
#include <QMouseEvent>
#include <QSignalSpy>

#include <memory>
#include <vector>

/// Counts what objects emit: the signals of this library, of buttons, sliders and actions.
class Emissions
{
public:
    void watch(QObject *object)
    {
        qRegisterMetaType<QMouseEvent *>("QMouseEvent*");
        const QMetaObject *meta = object->metaObject();
        for (int i = 0; i < meta->methodCount(); ++i) {
            const QMetaMethod method = meta->method(i);
            // Each signal with default arguments counts once.
            const bool is_whole = !(method.attributes() & QMetaMethod::Cloned);
            if (method.methodType() == QMetaMethod::Signal && is_whole && isCounted(method))
                m_spies.push_back(std::make_unique<QSignalSpy>(object, method));
        }
    }

    /// The names since the last call, in the order of the objects, "clicked 2" for two of them.
    QByteArray take()
    {
        QByteArrayList names;
        for (const auto &spy : m_spies) {
            if (spy->count() > 0)
                names += nameOf(*spy)
                    + (spy->count() > 1 ? ' ' + QByteArray::number(spy->count()) : "");
            spy->clear();
        }
        return names.join("; ");
    }

private:
    static bool isCounted(const QMetaMethod &signal)
    {
        const QByteArray owner = signal.enclosingMetaObject()->className();
        const bool is_of_paint = owner.endsWith("::ActiveButton"); // states change with the look
        return (owner.startsWith("vexo::") && !is_of_paint) || owner == "QAbstractButton"
            || owner == "QAbstractSlider" || owner == "QAction";
    }

    static QByteArray nameOf(const QSignalSpy &spy)
    {
        return spy.signal().left(spy.signal().indexOf('('));
    }

    std::vector<std::unique_ptr<QSignalSpy>> m_spies;
};
