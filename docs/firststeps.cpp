// SPDX-License-Identifier: MIT
#include "docs/firststeps.h"

#include <ScalingInfo>

#include <QApplication>
#include <QBasicTimer>
#include <QTimerEvent>
#include <QVector>
#include <QWidget>

#include <cstdio>
#include <cstdlib>

#include <sys/wait.h>
#include <unistd.h>

using vexo::hox::qt::ui::ScalingInfo;

// Each main(), under another name.
int firstStep1(int argc, char *argv[]);
int firstStep2(int argc, char *argv[]);
int firstStep3(int argc, char *argv[]);
int firstStep4(int argc, char *argv[]);
int firstStep5(int argc, char *argv[]);
int firstStep6(int argc, char *argv[]);
int firstStep7(int argc, char *argv[]);

namespace {

/// Waits in the program's event loop for its window.
class Visitor : public QObject
{
public:
    Visitor(const QSize &px, const std::function<int(QWidget *)> &use)
        : m_px(px)
        , m_use(use)
    {
        m_timer.start(0, this);
    }

protected:
    void timerEvent(QTimerEvent *) override
    {
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget *window : windows) {
            if (!window->isVisible())
                continue;
            m_timer.stop();
            QApplication::exit(visit(window));
            return;
        }
    }

private:
    // The screen offscreen has a size of its own.
    int visit(QWidget *window)
    {
        window->showNormal();
        window->resize(m_px);
        QApplication::setActiveWindow(window); // some grounds are those of an active window
        QApplication::processEvents();
        return m_use(window);
    }

    const QSize m_px;
    const std::function<int(QWidget *)> &m_use;
    QBasicTimer m_timer;
};

std::function<void()> at_start;

void startVisit()
{
    if (at_start)
        at_start();
}

int runMain(int number, const QSize &px, const QSizeF &mm, const std::function<int(QWidget *)> &use)
{
    static int (*const mains[first_steps])(int, char **)
        = { firstStep1, firstStep2, firstStep3, firstStep4, firstStep5, firstStep6, firstStep7 };
    const bool is_told = number == first_steps; // by its arguments, the others by the scale
    if (!is_told)
        ScalingInfo::instance = std::make_unique<ScalingInfo>(px, mm);
    std::unique_ptr<Visitor> visitor;
    at_start = [&] { visitor = std::make_unique<Visitor>(px, use); };
    QList<QByteArray> texts{ "step" };
    for (const double size : { double(px.width()), double(px.height()), mm.width(), mm.height() })
        texts += QByteArray::number(size);
    QVector<char *> arguments;
    for (QByteArray &text : texts)
        arguments += text.data();
    return mains[number - 1](is_told ? arguments.size() : 1, arguments.data());
}

} // namespace

int runFirstStep(
    int number, const QSize &px, const QSizeF &mm, const std::function<int(QWidget *)> &use)
{
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child < 0)
        return EXIT_FAILURE;
    if (child == 0) {
        const int result = runMain(number, px, mm, use);
        std::fflush(nullptr);
        _exit(result);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : EXIT_FAILURE;
}

Q_COREAPP_STARTUP_FUNCTION(startVisit)
