// SPDX-License-Identifier: MIT
#include "support/panelscale.h"
#include "support/testcase.h"

#include <FontLoader>

#include <QApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <QRawFont>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace vexo::hox::qt::ui;

class TestFontLoader : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void unusableFileGivesNoFamily_data();
    void unusableFileGivesNoFamily();
    void lightFaceBecomesTheApplicationsFont();
    void allWeightsAndTheFallbackAreRegistered();
    void hugeStretchIsLimited();

private:
    const QTemporaryDir m_dir;
};

void TestFontLoader::unusableFileGivesNoFamily_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::newRow("no such file") << QByteArray(":/fonts/none.otf");
    QTest::newRow("not a font") << QByteArray(":/css/hoxq.qs");
    QTest::newRow("a directory") << QByteArray("/");
    mkfifo(qPrintable(m_dir.filePath(QStringLiteral("pipe"))), 0600);
    QTest::newRow("a pipe") << m_dir.filePath(QStringLiteral("pipe")).toUtf8();
    QTest::newRow("an endless device") << QByteArray("/dev/zero");
    QTest::newRow("empty path") << QByteArray("");
    QTest::newRow("null path") << QByteArray();
}

void TestFontLoader::unusableFileGivesNoFamily()
{
    QFETCH(QByteArray, path);
    QCOMPARE(FontLoader::loadFont(path.isNull() ? nullptr : path.constData()), QString());
}

void TestFontLoader::lightFaceBecomesTheApplicationsFont()
{
    const PanelScale scale(5, 6);
    FontLoader();
    const QFont font = QApplication::font();
    QCOMPARE(font.pixelSize(), 14); // 7 pt are 14.8 px at 6 px/mm
    QCOMPARE(font.weight(), int(QFont::Light));
    QCOMPARE(font.stretch(), 120);
    QVERIFY(!font.italic());
    QVERIFY(QFontInfo(font).exactMatch());
    QCOMPARE(QRawFont::fromFont(font).styleName(), QStringLiteral("Light"));
}

void TestFontLoader::allWeightsAndTheFallbackAreRegistered()
{
    FontLoader();
    const QString family = QApplication::font().family();
    const QFontDatabase database;
    QStringList styles = database.styles(family);
    styles.sort();
    const QStringList expected = { QStringLiteral("Bold"), QStringLiteral("Light"),
        QStringLiteral("Medium"), QStringLiteral("Regular") };
    QCOMPARE(styles, expected);
    const QList<QFontDatabase::WritingSystem> chinese = { QFontDatabase::SimplifiedChinese };
    QVERIFY(!database.families(chinese.first()).isEmpty());
}

void TestFontLoader::hugeStretchIsLimited()
{
    const PanelScale scale(0.1, 10); // 10000 %, which the toolkit would refuse with a warning
    FontLoader();
    QCOMPARE(QApplication::font().stretch(), 4000);
}

QTEST_MAIN(TestFontLoader)
#include "tst_fontloader.moc"
