// SPDX-License-Identifier: MIT
#include "package/process.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class TestConfiguration : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void missingPackageIsNamedInOneLine_data();
    void missingPackageIsNamedInOneLine();
    void installedLibrariesHaveTheGivenRunPath();
};

void TestConfiguration::missingPackageIsNamedInOneLine_data()
{
    QTest::addColumn<QString>("message");
    QTest::newRow("HOXQ_FONT_LIGHT=/none.otf")
        << "font file /none.otf not found: install the package fonts-inter, or set HOXQ_FONT_LIGHT";
    QTest::newRow("CMAKE_DISABLE_FIND_PACKAGE_Qt5LinguistTools=ON")
        << "Qt5LinguistTools not found: install the package qttools5-dev";
    QTest::newRow("HOXQ_RSVG_CONVERT=OFF")
        << "rsvg-convert not found: install the package librsvg2-bin";
}

void TestConfiguration::missingPackageIsNamedInOneLine()
{
    QFETCH(QString, message);
    const QTemporaryDir folder;
    const Finished result = run(QStringLiteral(HOXQ_CMAKE),
        { QStringLiteral("-S" HOXQ_SOURCE), "-B", folder.path(),
            QStringLiteral("-G" HOXQ_GENERATOR),
            QStringLiteral("-DCMAKE_CXX_COMPILER=" HOXQ_COMPILER),
            "-D" + QLatin1String(QTest::currentDataTag()) });
    QVERIFY(result.exit_code != 0);
    const QString end_of_line = QLatin1Char(' ') + message + QLatin1Char('\n');
    QVERIFY2(result.output.contains(end_of_line), qPrintable(result.output));
}

/// In which the toolkit lies on a panel.
void TestConfiguration::installedLibrariesHaveTheGivenRunPath()
{
    const QTemporaryDir folder;
    const Finished result = run(QStringLiteral(HOXQ_CMAKE),
        { QStringLiteral("-S" HOXQ_SOURCE), "-B", folder.path(),
            QStringLiteral("-G" HOXQ_GENERATOR),
            QStringLiteral("-DCMAKE_CXX_COMPILER=" HOXQ_COMPILER), "-DHOXQ_TESTS=OFF",
            "-DHOXQ_GALLERY=OFF", "-DHOXQ_DESIGNER=OFF", "-DHOXQ_TEST_KIT=OFF",
            "-DCMAKE_INSTALL_RPATH=/opt/toolkit/lib" });
    QVERIFY2(result.exit_code == 0, qPrintable(result.output));
    QFile script(folder.filePath("cmake_install.cmake"));
    QVERIFY(script.open(QIODevice::ReadOnly));
    const QByteArray text = script.readAll();
    QVERIFY(text.contains("\"\\$ORIGIN:/opt/toolkit/lib\"")); // libhoxqui
    QVERIFY(text.contains("\"/opt/toolkit/lib\"")); // libhoxqsystem
}

QTEST_APPLESS_MAIN(TestConfiguration)
#include "tst_configuration.moc"
