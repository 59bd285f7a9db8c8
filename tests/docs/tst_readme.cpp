// SPDX-License-Identifier: MIT
#include "package/process.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

/// What README tells to write into two files builds with the installed library.
class TestReadme : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void firstApplicationBuilds();

private:
    void writeBlock(const char *language, const char *file);

    QString m_readme;
    QTemporaryDir m_dir;
};

void TestReadme::initTestCase()
{
    QFile file(QStringLiteral(HOXQ_SOURCE "/README.md"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    m_readme = QString::fromUtf8(file.readAll());
}

// The first one of its language.
void TestReadme::writeBlock(const char *language, const char *file)
{
    const QRegularExpression block(QString("^```%1\n(.*?)^```$").arg(language),
        QRegularExpression::MultilineOption | QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = block.match(m_readme);
    QVERIFY(match.hasMatch());
    QFile written(m_dir.filePath(file));
    QVERIFY(written.open(QIODevice::WriteOnly));
    written.write(match.captured(1).toUtf8());
}

void TestReadme::firstApplicationBuilds()
{
    writeBlock("cpp", "main.cpp");
    writeBlock("cmake", "CMakeLists.txt");
    const QString build = m_dir.filePath("build");
    const Finished configured = run(QStringLiteral(HOXQ_CMAKE),
        { "-S", m_dir.path(), "-B", build, QStringLiteral("-G" HOXQ_GENERATOR),
            QStringLiteral("-DCMAKE_PREFIX_PATH=" HOXQ_STAGE),
            QStringLiteral("-DCMAKE_CXX_COMPILER=" HOXQ_COMPILER),
            QStringLiteral("-DCMAKE_CXX_FLAGS=" HOXQ_FLAGS) });
    QVERIFY2(configured.exit_code == 0, qPrintable(configured.output));
    const Finished built = run(QStringLiteral(HOXQ_CMAKE), { "--build", build });
    QVERIFY2(built.exit_code == 0, qPrintable(built.output));
    QVERIFY(QFile::exists(build + "/first-panel"));
}

QTEST_GUILESS_MAIN(TestReadme)
#include "tst_readme.moc"
