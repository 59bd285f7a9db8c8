#include "support/testcase.h"

#include <QTest>

namespace {

QtMessageHandler the_toolkits_handler = nullptr;
Messages *recorder = nullptr;
QStringList unexpected;

QString lineOf(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    static const char *const names[] = { "debug", "warning", "critical", "fatal", "info" };
    return QStringLiteral("%1 %2: %3")
        .arg(QLatin1String(names[type]), QLatin1String(context.category), text);
}

void handle(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    const QString line = lineOf(type, context, text);
    if (recorder) {
        recorder->append(line);
        return;
    }
    if (type == QtWarningMsg || type == QtCriticalMsg)
        unexpected.append(line);
    the_toolkits_handler(type, context, text);
}

} // namespace

void TestCase::initTestCase()
{
    the_toolkits_handler = qInstallMessageHandler(handle);
}

void TestCase::init()
{
    unexpected.clear();
}

void TestCase::cleanup()
{
    QVERIFY2(unexpected.isEmpty(), qPrintable(unexpected.join(QLatin1Char('\n'))));
}

Messages::Messages()
{
    recorder = this;
}

Messages::~Messages()
{
    recorder = nullptr;
}
