#pragma once
// SPDX-License-Identifier: MIT

#include <QMetaMethod>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTimer>

#include <functional>
#include <memory>
#include <vector>

/// Counts what objects emit: the signals of this library, of buttons, sliders and actions.
class Emissions
{
public:
    void watch(QObject *object)
    {
        qRegisterMetaType<QMouseEvent *>("QMouseEvent*");
        for (const QMetaMethod &signal : signalsOf(object))
            m_spies.push_back(std::make_unique<QSignalSpy>(object, signal));
    }

    /// Calls \a function within each signal of that name, for as long as what it returns lives.
    static std::unique_ptr<QObject> onEach(
        const QObjectList &objects, const QByteArray &name, const std::function<void()> &function)
    {
        auto relay = std::make_unique<QTimer>(); // as an object with a signal
        const QMetaObject *meta = relay->metaObject();
        const QMetaMethod timeout = meta->method(meta->indexOfSignal("timeout()"));
        QObject::connect(relay.get(), &QTimer::timeout, function);
        for (const QObject *object : objects) {
            for (const QMetaMethod &signal : signalsOf(object)) {
                if (signal.name() == name)
                    QObject::connect(object, signal, relay.get(), timeout, Qt::UniqueConnection);
            }
        }
        return relay;
    }

    /// The names since the last call, in the order of the objects, "clicked 2" for two of them.
    QByteArray take()
    {
        QByteArrayList names;
        for (const auto &spy : m_spies) {
            const QByteArray signal = spy->signal();
            if (spy->count() > 0)
                names += signal.left(signal.indexOf('('))
                    + (spy->count() > 1 ? ' ' + QByteArray::number(spy->count()) : "");
            spy->clear();
        }
        return names.join("; ");
    }

private:
    // Each with default arguments once.
    static QVector<QMetaMethod> signalsOf(const QObject *object)
    {
        QVector<QMetaMethod> found;
        const QMetaObject *meta = object->metaObject();
        for (int i = 0; i < meta->methodCount(); ++i) {
            const QMetaMethod method = meta->method(i);
            const bool is_whole = !(method.attributes() & QMetaMethod::Cloned);
            if (method.methodType() == QMetaMethod::Signal && is_whole && isCounted(method))
                found += method;
        }
        return found;
    }

    static bool isCounted(const QMetaMethod &signal)
    {
        const QByteArray owner = signal.enclosingMetaObject()->className();
        const bool is_of_paint = owner.endsWith("::ActiveButton"); // states change with the look
        return (owner.startsWith("vexo::") && !is_of_paint) || owner == "QAbstractButton"
            || owner == "QAbstractSlider" || owner == "QAction";
    }

    std::vector<std::unique_ptr<QSignalSpy>> m_spies;
};
