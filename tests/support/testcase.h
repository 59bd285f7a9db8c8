#pragma once
// SPDX-License-Identifier: MIT

// What most tests use; it is in their precompiled header.
#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>

#include <functional>
#include <memory>

/// Base of all tests: a warning that no Messages object waits for fails the test function.
class TestCase : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
};

/// What the environment variable \a name says, to make a random test longer or another one.
inline int asked(const char *name, int otherwise)
{
    bool is_number = false;
    const int value = qEnvironmentVariableIntValue(name, &is_number);
    return is_number ? value : otherwise;
}

/// Records what is printed while it lives, each line as "debug hoxq.CVI: text"; warnings do not
/// fail the test then.
class Messages
{
public:
    Messages();
    ~Messages();
    Messages(const Messages &) = delete;
    Messages &operator=(const Messages &) = delete;

    QStringList lines() const { return m_lines; }
    void append(const QString &line) { m_lines.append(line); }

private:
    QStringList m_lines;
};
