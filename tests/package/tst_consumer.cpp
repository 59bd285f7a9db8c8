// SPDX-License-Identifier: MIT
#include "package/process.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

/// Configures the application in \a folder with the \a version asked for.
Finished configure(const QString &folder, const char *version,
    const QString &source = QStringLiteral(HOXQ_CONSUMER))
{
    return run(QStringLiteral(HOXQ_CMAKE),
        { "-S", source, "-B", folder, QStringLiteral("-G" HOXQ_GENERATOR),
            QStringLiteral("-DCMAKE_PREFIX_PATH=" HOXQ_STAGE),
            QStringLiteral("-DCMAKE_CXX_COMPILER=" HOXQ_COMPILER),
            QStringLiteral("-DCMAKE_CXX_COMPILER_LAUNCHER=" HOXQ_LAUNCHER),
            QStringLiteral("-DCMAKE_CXX_FLAGS=" HOXQ_FLAGS),
            "-DHOXQ_VERSION=" + QLatin1String(version) });
}

/// Compiles as the library is compiled. A shell reads the words of pkg-config, as make's does.
Finished compile(const QStringList &arguments)
{
    const QString compiler = QStringLiteral(HOXQ_LAUNCHER ";" HOXQ_COMPILER);
    const QString flags
        = QStringLiteral("-std=c++17 -fPIC -Wall -Wextra -Wpedantic -Werror " HOXQ_FLAGS);
    const QString line = "eval '\"$@\"' $(pkg-config --cflags --libs hoxqui hoxquitest)";
    return run("sh",
        QStringList{ "-c", line, "sh" } + compiler.split(QLatin1Char(';'), Qt::SkipEmptyParts)
            + flags.split(QLatin1Char(' '), Qt::SkipEmptyParts) + arguments,
        QString(), { QStringLiteral("PKG_CONFIG_PATH=" HOXQ_STAGE "/" HOXQ_LIBDIR "/pkgconfig") });
}

/// Our libraries that \a program takes from anywhere but the installed tree; itself if from
/// nowhere.
QStringList librariesElsewhere(const QString &program)
{
    const QStringList lines = run("ldd", { program }).output.split('\n').filter("libhoxq");
    QStringList elsewhere;
    for (const QString &line : lines) {
        if (!line.contains("=> " HOXQ_STAGE "/"))
            elsewhere += line;
    }
    return lines.isEmpty() ? QStringList(program) : elsewhere;
}

} // namespace

class TestConsumer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qunsetenv("LD_LIBRARY_PATH"); }
    void findsThePackageWithCMake();
    void buildsTheExample();
    void picturesThePanelApplication();
    void saysItInTheLanguageOfTheLocale_data();
    void saysItInTheLanguageOfTheLocale();
    void catalogueIsFoundInAMovedTree();
    void testsItsScreenWithTheKit();
    void findsThePackageWithPkgConfig();
    void laterMajorVersionIsRefused();
    void everyClassHasAForwardingHeader();

private:
    void verifyBuilds(const QString &folder, const QString &source);
    void verifyRuns(const QString &program, const QStringList &environment = QStringList());
    /// Builds tests/consumer/texts first.
    Finished runTexts(const QStringList &arguments, const QStringList &environment);

    QTemporaryDir m_dir;
};

void TestConsumer::verifyRuns(const QString &program, const QStringList &environment)
{
    const Finished result = run(program, QStringList(), QString(), environment);
    const QString expected = "10 mm are 80 px\ntext of 19 px\n#bedc00\n"
                             "icon of 80 x 80 px\nscreen is drawn\nbeep\nclicked\n";
    QCOMPARE(QString(result.output).remove("hoxq.consumer: done\n"), expected);
    QVERIFY(result.output.contains("hoxq.consumer: done\n"));
    QCOMPARE(result.exit_code, 0);
}

Finished TestConsumer::runTexts(const QStringList &arguments, const QStringList &environment)
{
    const QString program = m_dir.filePath("texts/texts");
    if (!QFile::exists(program))
        verifyBuilds(m_dir.filePath("texts"), QStringLiteral(HOXQ_CONSUMER "/texts"));
    return run(program, arguments, QString(), environment);
}

void TestConsumer::verifyBuilds(const QString &folder, const QString &source)
{
    const Finished configured = configure(folder, "1", source);
    QVERIFY2(configured.exit_code == 0, qPrintable(configured.output));
    const Finished built = run(QStringLiteral(HOXQ_CMAKE), { "--build", folder });
    QVERIFY2(built.exit_code == 0, qPrintable(built.output));
}

void TestConsumer::findsThePackageWithCMake()
{
    const QString folder = m_dir.filePath("cmake");
    verifyBuilds(folder, QStringLiteral(HOXQ_CONSUMER));
    verifyRuns(folder + "/consumer");
}

void TestConsumer::buildsTheExample()
{
    verifyBuilds(m_dir.filePath("example"), QStringLiteral(HOXQ_SOURCE "/examples/first-panel"));
}

void TestConsumer::picturesThePanelApplication()
{
    const QString folder = m_dir.filePath("panel");
    verifyBuilds(folder, QStringLiteral(HOXQ_SOURCE "/examples/panel"));
    const QStringList panel{ "--panel", "640x400@160x80" };
    const QString shots = folder + "/shots";
    const Finished result = run(folder + "/panel", panel + QStringList{ "--shots", shots }, {},
        { "QT_LOGGING_RULES=hoxq.translations.debug=true" });
    QVERIFY2(result.exit_code == 0, qPrintable(result.output));
    QVERIFY2(
        result.output.contains("de_DE: " HOXQ_STAGE "/share/hoxqui/translations/hoxqui_de.qm\n"),
        qPrintable(result.output));
    QCOMPARE(librariesElsewhere(folder + "/panel"), QStringList());
    QVERIFY(QDir(shots).entryList({ "*.png" }).contains("27-update-de.png"));
    QCOMPARE(run(folder + "/panel", { "--panel", "640x400" }).exit_code, 2);
}

void TestConsumer::saysItInTheLanguageOfTheLocale_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("environment");
    QTest::addColumn<QString>("expected");
    const QString german = "de\nTastatur\nVerringern\n";
    const QString english = "en\nKeyboard\nDecrease\n";
    QTest::newRow("German") << "de_DE"
                            << "C" << german;
    QTest::newRow("English, in a German system") << "en_GB"
                                                 << "de_DE.UTF-8" << english;
    QTest::newRow("without a catalogue") << "th_TH"
                                         << "de_DE.UTF-8" << english;
    QTest::newRow("the system's") << ""
                                  << "de_AT.UTF-8" << german;
}

void TestConsumer::saysItInTheLanguageOfTheLocale()
{
    QFETCH(QString, locale);
    QFETCH(QString, environment);
    const Finished result = runTexts({ locale }, { "LANGUAGE=", "LC_ALL=" + environment });
    QCOMPARE(result.output.section('\n', 0, 0), QString(HOXQ_STAGE "/share/hoxqui/translations"));
    QTEST(result.output.section('\n', 1), "expected");
}

/// As the loader finds the library there, also by a link.
void TestConsumer::catalogueIsFoundInAMovedTree()
{
    const QString moved = m_dir.filePath("moved to");
    QCOMPARE(run("cp", { "-a", QStringLiteral(HOXQ_STAGE), moved }).exit_code, 0);
    const QString library = moved + "/" HOXQ_LIBDIR;
    const QString links = m_dir.filePath("links");
    QVERIFY(QDir().mkdir(links));
    for (const char *name : { "/libhoxqpanel.so.1", "/libhoxqui.so.1", "/libhoxqsystem.so.1" })
        QVERIFY(QFile::link(library + name, links + name));
    const QString german = moved + "/share/hoxqui/translations\nde\nTastatur\nVerringern\n";
    for (const QString &place : { library, links })
        QCOMPARE(runTexts({ "de" }, { "LD_LIBRARY_PATH=" + place }).output, german);
    QVERIFY(QDir(moved + "/share/hoxqui").removeRecursively());
    const Finished without = runTexts({ "de" }, { "LD_LIBRARY_PATH=" + library });
    QCOMPARE(without.output.section('\n', 1), QString("en\nKeyboard\nDecrease\n"));
}

void TestConsumer::testsItsScreenWithTheKit()
{
    const QString folder = m_dir.filePath("kit");
    verifyBuilds(folder, QStringLiteral(HOXQ_CONSUMER "/kit"));
    const Finished result = run(folder + "/consumertest", {});
    QVERIFY2(result.output.contains("5 passed, 0 failed"), qPrintable(result.output));
    QCOMPARE(result.exit_code, 0);
}

void TestConsumer::findsThePackageWithPkgConfig()
{
    const QString program = m_dir.filePath("consumer");
    const Finished built = compile({ QStringLiteral(HOXQ_CONSUMER "/main.cpp"), "-o", program });
    QVERIFY2(built.exit_code == 0, qPrintable(built.output));
    verifyRuns(program, { QStringLiteral("LD_LIBRARY_PATH=" HOXQ_STAGE "/" HOXQ_LIBDIR) });
}

void TestConsumer::laterMajorVersionIsRefused()
{
    const Finished result = configure(m_dir.filePath("later"), "2");
    QVERIFY(result.exit_code != 0);
    const QString refusal = "\"HoxqUi\" that is compatible with requested version \"2\"";
    QVERIFY2(result.output.simplified().contains(refusal), qPrintable(result.output));
}

void TestConsumer::everyClassHasAForwardingHeader()
{
    QStringList classes = QStringLiteral(HOXQ_SYSTEM_CLASSES " " HOXQ_CLASSES " " HOXQ_PANEL_CLASSES
                                                             " " HOXQ_KIT_CLASSES " Ui_UpdatePage")
                              .split(QLatin1Char(' '));
    classes.sort();
    QCOMPARE(QDir(QStringLiteral(HOXQ_STAGE "/include/hoxqui")).entryList(QDir::Files), classes);
    QFile source(m_dir.filePath("all.cpp"));
    QVERIFY(source.open(QIODevice::WriteOnly));
    for (const QString &name : classes)
        source.write(QString("#include <%1>\n").arg(name).toUtf8());
    source.close();
    const Finished result = compile({ "-fsyntax-only", source.fileName() });
    QVERIFY2(result.exit_code == 0, qPrintable(result.output));
}

QTEST_APPLESS_MAIN(TestConsumer)
#include "tst_consumer.moc"
