// SPDX-License-Identifier: MIT
#include "support/testcase.h"

#include <FontLoader>

#include <QApplication>
#include <QTest>

namespace {

QtMessageHandler the_toolkits_handler = nullptr;
Messages *recorder = nullptr;
QStringList unexpected;

QString lineOf(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    static const char *const names[] = { "debug", "warning", "critical", "fatal", "info" };
    return QString("%1 %2: %3")
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

// The library's own regular face, so that no test depends on the fonts of the machine.
void setUpFont()
{
    QFont font = QApplication::font();
    font.setFamily(vexo::hox::qt::ui::FontLoader::loadFont(":/fonts/UniversNextW1G-Regular.otf"));
    QApplication::setFont(font);
}

} // namespace

void TestCase::initTestCase()
{
    the_toolkits_handler = qInstallMessageHandler(handle);
    if (qobject_cast<QApplication *>(QCoreApplication::instance()))
        setUpFont();
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
