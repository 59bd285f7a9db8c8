// SPDX-License-Identifier: MIT
#include "package/process.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

/// What the scripts tell whoever mistypes, in a tree of their own with a blank in its path. There
/// is nothing to build: cmake does nothing, and the gallery is that of this build.
class TestScripts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void helpIsTheirComment_data();
    void helpIsTheirComment();
    void badArgumentsGetOneLine_data();
    void badArgumentsGetOneLine();
    void unknownTestIsNamed();
    void treeThatCannotBeWrittenIsNamed();
    void galleryRefusesAsTheProgramDoes();
    void galleryNamesThePicturesOfThePanel();

private:
    QString path(const QString &name) const { return m_dir->filePath("a tree/" + name); }
    Finished call(const QString &line) const;
    void write(const QString &name, const QByteArray &text) const;

    std::unique_ptr<QTemporaryDir> m_dir;
};

namespace {

const QStringList SCRIPTS{ "benchmark", "docs", "fuzz", "gallery", "lint", "panel", "style",
    "test" };

QString lastLine(const QString &output)
{
    return output.section('\n', -2, -2);
}

} // namespace

void TestScripts::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    const QString programs = path("build/gallery/gallery");
    for (const QString &folder :
        { path("scripts"), path("benchmarks"), path("build/release"), path("bin"), programs })
        QVERIFY(QDir().mkpath(folder));
    QVERIFY(QFile::copy(HOXQ_SOURCE "/benchmarks/rows.txt", path("benchmarks/rows.txt")));
    const QDir scripts(HOXQ_SOURCE "/scripts");
    for (const QString &file : scripts.entryList(QDir::Files))
        QVERIFY(QFile::copy(scripts.filePath(file), path("scripts/" + file)));
    QVERIFY(QFile::link(HOXQ_GALLERY, programs + "/hoxqgallery"));
    write("bin/cmake", "#!/bin/sh\n");
    write("bin/dpkg-query", "#!/bin/sh\necho installed\n");
    write("build/release/CTestTestfile.cmake", "add_test(tst_pixels true)\n");
}

Finished TestScripts::call(const QString &line) const
{
    QStringList words = line.split(' ');
    const QString script = path("scripts/" + words.takeFirst());
    return run(script, words, m_dir->path(),
        { "PATH=" + path("bin:") + qEnvironmentVariable("PATH"), "DISPLAY=", "WAYLAND_DISPLAY=" });
}

void TestScripts::write(const QString &name, const QByteArray &text) const
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void TestScripts::helpIsTheirComment_data()
{
    QTest::addColumn<QString>("script");
    for (const QString &script : SCRIPTS) {
        for (const char *option : { " -h", " --help" })
            QTest::newRow(qPrintable(script + option)) << script;
    }
}

void TestScripts::helpIsTheirComment()
{
    QFETCH(QString, script);
    const Finished result = call(QTest::currentDataTag());
    QVERIFY2(result.output.startsWith("scripts/" + script), qPrintable(result.output));
    QVERIFY2(result.output.count('\n') > 3, qPrintable(result.output));
    QVERIFY(!result.output.contains("\n# "));
    QCOMPARE(result.exit_code, 0);
}

void TestScripts::badArgumentsGetOneLine_data()
{
    QTest::addColumn<QString>("line");
    for (const char *line : { "benchmark --bogus", "benchmark one", "benchmark settings --start",
             "benchmark --start one", "benchmark --start settings list", "docs --bogus",
             "docs --check --pictures", "fuzz", "fuzz --bogus", "fuzz svg 0", "fuzz bogus 1",
             "lint --bogus", "style --bogus", "test --bogus", "test x -y" })
        QTest::newRow(line) << QString(line);
}

void TestScripts::badArgumentsGetOneLine()
{
    QFETCH(QString, line);
    const Finished result = call(line);
    QVERIFY2(result.output.startsWith("scripts/" + line.section(' ', 0, 0) + ": "),
        qPrintable(result.output));
    QCOMPARE(result.output.count('\n'), 1);
    QCOMPARE(result.exit_code, 2);
}

void TestScripts::unknownTestIsNamed()
{
    const Finished result = call("test nosuchtest");
    QCOMPARE(lastLine(result.output), QString("scripts/test: no test matches nosuchtest"));
    QCOMPARE(result.exit_code, 1);
}

void TestScripts::treeThatCannotBeWrittenIsNamed()
{
    QVERIFY(QDir(path("build")).removeRecursively());
    write("build", {}); // also root cannot make a folder below it
    for (const char *script : { "benchmark", "gallery", "lint", "test" }) {
        const Finished result = call(script);
        QVERIFY2(result.output.contains("/build/") && result.output.contains("cannot be created"),
            qPrintable(result.output));
        QCOMPARE(result.output.count('\n'), 1);
        QCOMPARE(result.exit_code, 1);
    }
}

void TestScripts::galleryRefusesAsTheProgramDoes()
{
    const QStringList bad{ "--panel", "garbage" };
    const Finished program = run(HOXQ_GALLERY, bad);
    const Finished result = call("gallery " + bad.join(' '));
    QCOMPARE(result.exit_code, 2);
    QVERIFY2(result.output.endsWith('\n' + program.output), qPrintable(result.output));
    QCOMPARE(result.output.count("garbage"), 1);
}

void TestScripts::galleryNamesThePicturesOfThePanel()
{
    QVERIFY(QDir().mkpath(path("build/shots/5px")));
    const Finished result = call("gallery --page type --panel 640x400@160x80");
    QVERIFY2(result.exit_code == 0, qPrintable(result.output));
    QVERIFY(lastLine(result.output).endsWith(" in " + path("build/shots/panel")));
    QCOMPARE(QDir(path("build/shots")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
        QStringList("panel"));
    QCOMPARE(QDir(path("build/shots/panel")).entryList({ "*.png" }).size(), 1);
}

QTEST_APPLESS_MAIN(TestScripts)
#include "tst_scripts.moc"
