#pragma once
// SPDX-License-Identifier: MIT

#include <QObject>
#include <QStringList>

/// Base of all tests: a warning that no Messages object waits for fails the test function.
class TestCase : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
};

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
