// SPDX-License-Identifier: MIT
#include "support/testcase.h"

#include <VexoLogging>

#include <QLoggingCategory>
#include <QThread>

#include <thread>

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

/// A second thread asks for a channel while the first one is still at making it.
void TestVexoLogging::channelIsMadeByOneThread()
{
    static int made = 0;
    static std::thread second;
    const auto notice = [](QLoggingCategory *category) {
        if (qstrcmp(category->categoryName(), "hoxq.shared") != 0 || made++ > 0)
            return;
        second = std::thread([] { VexoLogging("shared").isDebugging(); });
        QThread::msleep(100);
    };
    const auto former = QLoggingCategory::installFilter(notice);
    const VexoLogging first("shared");
    second.join();
    QLoggingCategory::installFilter(former);
    QCOMPARE(made, 1);
    Messages messages;
    first.Info("x");
    QCOMPARE(messages.lines(), QStringList("info hoxq.shared: x"));
}

QTEST_MAIN(TestVexoLogging)
#include "tst_vexologging.moc"
