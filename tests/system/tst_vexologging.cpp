// SPDX-License-Identifier: MIT
#include "support/testcase.h"

#include <VexoLogging>

#include <QFile>
#include <QLoggingCategory>

#include <atomic>
#include <thread>

#include <sys/syscall.h>
#include <unistd.h>

using vexo::hox::qt::system::VexoLogging;

class TestVexoLogging : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void writesOneLineOnItsCategory();
    void debugIsOffUntilARuleSwitchesItOn();
    void channelIsMadeByOneThread();
};

namespace {

// Or gone.
bool isAsleep(long thread)
{
    QFile status(QString("/proc/self/task/%1/stat").arg(thread));
    return !status.open(QIODevice::ReadOnly) || !status.readAll().contains(") R");
}

} // namespace

void TestVexoLogging::cleanup()
{
    QLoggingCategory::setFilterRules(QString());
}

void TestVexoLogging::writesOneLineOnItsCategory()
{
    const VexoLogging buttons("B");
    const VexoLogging video("*");
    const VexoLogging nameless(nullptr);
    Messages messages;
    buttons.Info(u8"Grüße %s");
    video.Error("no picture");
    nameless.Info("x");
    const QStringList expected = { QString::fromUtf8("info hoxq.B: Grüße %s"),
        "critical hoxq.*: no picture", "info hoxq.: x" };
    QCOMPARE(messages.lines(), expected);
}

void TestVexoLogging::debugIsOffUntilARuleSwitchesItOn()
{
    const VexoLogging icon("CVI");
    const VexoLogging button("B");
    Messages messages;
    QVERIFY(!icon.isDebugging());
    icon.Debug("dropped");

    QLoggingCategory::setFilterRules("hoxq.CVI.debug=true");
    const VexoLogging later("CVI");
    QVERIFY(icon.isDebugging() && later.isDebugging());
    QVERIFY(!button.isDebugging());
    icon.Debug("kept");
    QCOMPARE(messages.lines(), QStringList("debug hoxq.CVI: kept"));
}

// A second thread asks for a channel while the first one is still at making it, until it has to
// wait for that or has made one itself.
void TestVexoLogging::channelIsMadeByOneThread()
{
    static std::atomic<int> made{ 0 };
    static std::thread second;
    const auto notice = [](QLoggingCategory *category) {
        if (qstrcmp(category->categoryName(), "hoxq.shared") != 0 || made++ > 0)
            return;
        std::atomic<long> id{ 0 };
        second = std::thread([&id] {
            id = syscall(SYS_gettid);
            VexoLogging("shared").isDebugging();
        });
        while (id == 0 || !isAsleep(id))
            std::this_thread::yield();
    };
    const auto former = QLoggingCategory::installFilter(notice);
    const VexoLogging first("shared");
    second.join();
    QLoggingCategory::installFilter(former);
    QCOMPARE(made.load(), 1);
    Messages messages;
    first.Info("x");
    QCOMPARE(messages.lines(), QStringList(QStringLiteral("info hoxq.shared: x")));
}

QTEST_MAIN(TestVexoLogging)
#include "tst_vexologging.moc"
