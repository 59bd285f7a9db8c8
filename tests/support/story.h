#pragma once
// SPDX-License-Identifier: MIT

#include "support/onscreen.h"
#include "support/testcase.h"

#include <QRandomGenerator>

#include <functional>
#include <memory>
#include <vector>

/// A screen to which things happen at random.
class StoryScreen
{
public:
    explicit StoryScreen(quint32 seed)
        : m_random(seed)
    {
    }

protected:
    struct Change
    {
        const char *name;
        std::function<void()> make;
    };

    int number(int bound) { return int(m_random.bounded(quint32(bound))); }

    /// Makes one of \a changes and names it.
    QString makeOne(const std::vector<Change> &changes)
    {
        const Change &change = changes[size_t(number(int(changes.size())))];
        change.make();
        return QLatin1String(change.name);
    }

private:
    QRandomGenerator m_random;
};

/// Lets \a changes happen, or as many as the environment variable HOXQ_CHANGES says, to screens
/// that live for \a of_a_story each, sometimes more than one before the next paint. What \a Screen
/// finds with fault() fails the test.
template <typename Screen, typename Make>
void tellStories(int changes, int of_a_story, Make make)
{
    for (int done = 0; done < asked("HOXQ_CHANGES", changes); done += of_a_story) {
        const auto seed = quint32(done + 1);
        const std::unique_ptr<Screen> screen = make(seed);
        QRandomGenerator turns(seed);
        QStringList story;
        for (int i = 0; i < of_a_story; ++i) {
            story += screen->change();
            const QString fault = turns.bounded(3) == 0 ? QString() : screen->fault();
            const QString end = story.mid(qMax(0, story.size() - 8)).join(QLatin1String(", "));
            QVERIFY2(fault.isEmpty(),
                qPrintable(QStringLiteral("seed %1: %2 after %3").arg(seed).arg(fault, end)));
        }
    }
}
