// SPDX-License-Identifier: MIT
#include "support/testcase.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>

/// The plugin in an application that knows nothing of it: the gallery.
class TestAuditPlugin : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void writesEachFindingOnce();
    void logsWhatItFinds();
};

namespace {

void start(QProcess *gallery, const QString &plugin)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_GENERIC_PLUGINS", plugin);
    environment.insert("QT_PLUGIN_PATH", QStringLiteral(HOXQ_PLUGINS));
    gallery->setProcessEnvironment(environment);
    gallery->setProcessChannelMode(QProcess::MergedChannels);
    gallery->start(QStringLiteral(HOXQ_GALLERY),
        { "-platform", "offscreen", "--page", "stylesheets", "--panel", "800x480@152x91" });
}

QByteArray textOf(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

void TestAuditPlugin::writesEachFindingOnce()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("findings.json");
    QProcess gallery;
    start(&gallery, QString("hoxquiaudit:out=%1:frames=1").arg(file));
    QTRY_VERIFY_WITH_TIMEOUT(textOf(file).contains("accessible-name")
            || gallery.state() == QProcess::NotRunning || textOf(file).count('\n') > 3,
        60000);
    gallery.kill();
    gallery.waitForFinished();
    QSet<QByteArray> known;
    const QList<QByteArray> lines = textOf(file).trimmed().split('\n');
    bool has_check_box = false;
    for (const QByteArray &line : lines) {
        QVERIFY2(!known.contains(line), line.constData());
        known.insert(line);
        const QJsonObject finding = QJsonDocument::fromJson(line).object();
        QCOMPARE(finding.keys(), QStringList({ "mm", "rule", "severity", "text", "where" }));
        QCOMPARE(finding["mm"].toArray().size(), 4);
        has_check_box
            |= finding["where"].toString().contains("QCheckBox") && finding["rule"] == "touch-size";
    }
    QVERIFY2(has_check_box, lines.join('\n').constData());
}

void TestAuditPlugin::logsWhatItFinds()
{
    QProcess gallery;
    start(&gallery, "hoxquiaudit:nonsense=1");
    QByteArray output;
    QTRY_VERIFY_WITH_TIMEOUT(
        (output += gallery.readAll()).contains("hoxq.audit: error: touch-size"), 60000);
    gallery.kill();
    gallery.waitForFinished();
    QVERIFY2(output.contains("there is no option nonsense=1"), output.constData());
}

QTEST_MAIN(TestAuditPlugin)
#include "tst_auditplugin.moc"
