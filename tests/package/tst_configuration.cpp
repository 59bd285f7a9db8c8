#include "package/process.h"

#include <QTemporaryDir>
#include <QTest>

class TestConfiguration : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void missingPackageIsNamedInOneLine_data();
    void missingPackageIsNamedInOneLine();
};

void TestConfiguration::missingPackageIsNamedInOneLine_data()
{
    QTest::addColumn<QString>("setting");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *setting, const char *message) {
        QTest::newRow(setting) << QString::fromLatin1(setting) << QString::fromLatin1(message);
    };
    row("HOXQ_FONT_LIGHT=/usr/share/fonts/opentype/inter/None.otf",
        "font file /usr/share/fonts/opentype/inter/None.otf not found: install the package "
        "fonts-inter, or set HOXQ_FONT_LIGHT");
    row("HOXQ_FONT_FALLBACK=/none.ttf",
        "font file /none.ttf not found: install the package fonts-droid-fallback, or set "
        "HOXQ_FONT_FALLBACK");
    row("HOXQ_RSVG_CONVERT=OFF", "rsvg-convert not found: install the package librsvg2-bin");
}

void TestConfiguration::missingPackageIsNamedInOneLine()
{
    QFETCH(QString, setting);
    QFETCH(QString, message);
    const QTemporaryDir folder;
    const Finished result = run(QStringLiteral(HOXQ_CMAKE),
        { QStringLiteral("-S" HOXQ_SOURCE), QStringLiteral("-B"), folder.path(),
            QStringLiteral("-G" HOXQ_GENERATOR),
            QStringLiteral("-DCMAKE_CXX_COMPILER=" HOXQ_COMPILER),
            QStringLiteral("-D") + setting });
    QVERIFY(result.exit_code != 0);
    QStringList lines = result.output.split(QLatin1Char('\n'));
    for (QString &line : lines)
        line = line.trimmed();
    QVERIFY2(lines.contains(message), qPrintable(result.output));
}

QTEST_APPLESS_MAIN(TestConfiguration)
#include "tst_configuration.moc"
