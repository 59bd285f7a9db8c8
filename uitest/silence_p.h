#pragma once
// SPDX-License-Identifier: MIT

#include <QPair>
#include <QPointer>
#include <QVector>
#include <QWidget>

namespace vexo::hox::qt::uitest {

/// While it lives, no object in a window emits a signal: the application hears nothing of what an
/// audit tries out.
class Silence
{
public:
    explicit Silence(QWidget *window);
    ~Silence();
    Silence(const Silence &) = delete;
    Silence &operator=(const Silence &) = delete;

private:
    void add(QObject *object);

    QVector<QPair<QPointer<QObject>, bool>> m_objects; // with what they did before
};

} // namespace vexo::hox::qt::uitest
