// SPDX-License-Identifier: MIT
#include "support/effort.h"
#include "support/testcase.h"

#include <VexoStylesheet>

#include <QDir>
#include <QTemporaryDir>

#include <sys/stat.h>

using vexo::hox::qt::ui::VexoStylesheet;

namespace {

const QString PRODUCT_SHEET = ":/css/vexo-AAL.qs";
const QString WIDGET_SHEET = ":/css/hoxq.qs";

QString written(const QTemporaryDir &dir, const char *name, const QByteArray &text)
{
    QFile file(dir.filePath(QLatin1String(name)));
    file.open(QIODevice::WriteOnly);
    file.write(text);
    return file.fileName();
}

} // namespace

class TestVexoStylesheet : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void withoutApplyNothingIsShown();
    void filesAreJoinedInListOrder();
    void missingFileIsNamedAndTheOthersApply();
    void hostileFileAddsNothing_data();
    void hostileFileAddsNothing();
    void bundledSheetsParse();
};

void TestVexoStylesheet::init()
{
    TestCase::init();
    qApp->setStyleSheet(QString());
    QCoreApplication::setAttribute(Qt::AA_UseStyleSheetPropagationInWidgetStyles, false);
}

void TestVexoStylesheet::withoutApplyNothingIsShown()
{
    VexoStylesheet sheet(WIDGET_SHEET, false);
    QCOMPARE(qApp->styleSheet(), QString());
    QVERIFY(!QCoreApplication::testAttribute(Qt::AA_UseStyleSheetPropagationInWidgetStyles));
    sheet.set();
    QVERIFY(qApp->styleSheet().contains("VexoLineEdit"));
    QVERIFY(QCoreApplication::testAttribute(Qt::AA_UseStyleSheetPropagationInWidgetStyles));
}

void TestVexoStylesheet::filesAreJoinedInListOrder()
{
    const QTemporaryDir dir;
    QDir::setSearchPaths("theme", { dir.path() });
    written(dir, "1.qs", "QLabel { color: red }");
    const QString first = "theme:1.qs";
    const QString second = written(dir, "2.qs", "QLabel { color: blue }");
    VexoStylesheet sheet(QStringList{ first, second });
    QCOMPARE(qApp->styleSheet(), "QLabel { color: red }QLabel { color: blue }");
    sheet.setStylesheet(first);
    QCOMPARE(qApp->styleSheet().size(), 43); // nothing is shown before set()
    sheet.set();
    QVERIFY(qApp->styleSheet().endsWith("blue }QLabel { color: red }"));
    QDir::setSearchPaths("theme", {});
}

void TestVexoStylesheet::missingFileIsNamedAndTheOthersApply()
{
    Messages messages;
    const VexoStylesheet sheet(QStringList{ ":/css/none.qs", WIDGET_SHEET });
    QCOMPARE(messages.lines(),
        QStringList("warning default: Stylesheet  \":/css/none.qs\"  does not exist!"));
    QCOMPARE(qApp->styleSheet().count("VexoLineEdit"), 1);
}

void TestVexoStylesheet::hostileFileAddsNothing_data()
{
    const QByteArray rule = "QWidget { color: red; }\n";
    const QByteArray stars = "*" + QByteArray(",*").repeated(400);
    const QByteArray words = QByteArray("color:red;").repeated(400);
    QTest::addColumn<QByteArray>("text"); // of a file, or the name of one
    QTest::newRow("pipe") << QByteArray();
    QTest::newRow("folder") << QByteArray("/");
    QTest::newRow("endless device") << QByteArray("/dev/zero");
    QTest::newRow("a megabyte") << rule + QByteArray(1 << 20, ' ');
    QTest::newRow("10000 selectors") << "*" + QByteArray(",*").repeated(10000) + "{color:red}";
    QTest::newRow("10000 selectors, escaped")
        << "*" + QByteArray("\\2c *").repeated(10000) + "{color:red}";
    QTest::newRow("selectors times declarations") << stars + "{" + words + "}";
    QTest::newRow("hidden behind a comment") << stars + "{/*}*/" + words + "}";
    QTest::newRow("hidden behind a string") << stars + "{a:'}';" + words + "}";
    QTest::newRow("faulty declarations") << "*{" + QByteArray(":;").repeated(30000) + "}";
}

void TestVexoStylesheet::hostileFileAddsNothing()
{
    QFETCH(QByteArray, text);
    const QTemporaryDir dir;
    QString file = QString::fromLatin1(text);
    if (text.isEmpty()) {
        file = dir.filePath("pipe");
        mkfifo(qPrintable(file), 0600);
    } else if (!text.startsWith('/')) {
        file = written(dir, "hostile.qs", text);
    }
    const Effort effort;
    const VexoStylesheet sheet(QStringList{ file, WIDGET_SHEET });
    QVERIFY2(effort.isSmall(), qPrintable(effort.text()));
    QVERIFY(qApp->styleSheet().startsWith("vexo--"));
}

void TestVexoStylesheet::bundledSheetsParse()
{
    // The toolkit prints a warning about a sheet that it cannot parse, which fails the test.
    const VexoStylesheet sheet(QStringList{ PRODUCT_SHEET, WIDGET_SHEET });
    QWidget widget;
    widget.ensurePolished();
    QVERIFY(qApp->styleSheet().indexOf("QSlider::groove:horizontal")
        < qApp->styleSheet().indexOf("VexoPushButton"));
}

QTEST_MAIN(TestVexoStylesheet)
#include "tst_vexostylesheet.moc"
