// SPDX-License-Identifier: MIT
#include "support/effort.h"
#include "support/panelscale.h"
#include "support/testcase.h"

#include <FontLoader>

#include <QDir>
#include <QFontDatabase>
#include <QFontInfo>
#include <QPainterPath>
#include <QProcess>
#include <QRawFont>
#include <QResource>
#include <QTemporaryDir>

#include <algorithm>

#include <sys/stat.h>

using namespace vexo::hox::qt::ui;

class TestFontLoader : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void unusableFileGivesNoFamily_data();
    void unusableFileGivesNoFamily();
    void facesAreRegisteredAndTheLightOneApplies();
    void hugeStretchIsLimited();
    void findsFontFiles_data();
    void findsFontFiles();
    void bundleThatGoesLeavesAFaceInUse_data();
    void bundleThatGoesLeavesAFaceInUse();
    void fallbackTakesNoCopyOfItsBytes();

private:
    QString copyOf(const char *font, const QString &name) const;
    QByteArray bundleOf(const QString &file, const QString &compression) const;

    const QTemporaryDir m_dir;
};

void TestFontLoader::unusableFileGivesNoFamily_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::newRow("no such file") << QByteArray(":/fonts/none.otf");
    QTest::newRow("not a font") << QByteArray(":/css/hoxq.qs");
    QTest::newRow("a directory") << QByteArray("/");
    mkfifo(qPrintable(m_dir.filePath("pipe")), 0600);
    QTest::newRow("a pipe") << m_dir.filePath("pipe").toUtf8();
    QTest::newRow("an endless device") << QByteArray("/dev/zero");
    QTest::newRow("empty path") << QByteArray("");
    QTest::newRow("null path") << QByteArray();
}

void TestFontLoader::unusableFileGivesNoFamily()
{
    QFETCH(QByteArray, path);
    QCOMPARE(FontLoader::loadFont(path.isNull() ? nullptr : path.constData()), QString());
}

void TestFontLoader::facesAreRegisteredAndTheLightOneApplies()
{
    const PanelScale scale(5, 6);
    FontLoader();
    const QFont font = QApplication::font();
    QCOMPARE(font.pixelSize(), 14); // 7 pt are 14.8 px at 6 px/mm
    QCOMPARE(font.weight(), int(QFont::Light));
    QCOMPARE(font.stretch(), 120);
    QVERIFY(!font.italic());
    QVERIFY(QFontInfo(font).exactMatch());
    QCOMPARE(QRawFont::fromFont(font).styleName(), "Light");
    QStringList styles = QFontDatabase().styles(font.family());
    styles.sort();
    QCOMPARE(styles, QStringList({ "Bold", "Light", "Medium", "Regular" }));
    QVERIFY(!QFontDatabase().families(QFontDatabase::SimplifiedChinese).isEmpty());
}

void TestFontLoader::hugeStretchIsLimited()
{
    const PanelScale scale(0.1, 10); // 10000 %, which the toolkit would refuse with a warning
    FontLoader();
    QCOMPARE(QApplication::font().stretch(), 4000);
}

QString TestFontLoader::copyOf(const char *font, const QString &name) const
{
    QFile::copy(QLatin1String(font), m_dir.filePath(name));
    return m_dir.filePath(name);
}

void TestFontLoader::findsFontFiles_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("px"); // another in each row: faces in use are kept
    QTest::newRow("absolute") << copyOf(":/fonts/UniversNextW1G-Bold.otf", "a.otf") << 40;
    QTest::newRow("relative") << "a.otf" << 41;
    QTest::newRow("in a search path") << "panelfonts:a.otf" << 42;
    QTest::newRow("resource in a search path") << "bundle:UniversNextW1G-Bold.otf" << 43;
}

/// The file of a face is opened when it is first drawn in, here from another folder.
void TestFontLoader::findsFontFiles()
{
    QFETCH(QString, path);
    QFETCH(int, px);
    QDir::setSearchPaths("panelfonts", { m_dir.path() });
    QDir::setSearchPaths("bundle", { ":/fonts" });
    const QString folder = QDir::currentPath();
    QDir::setCurrent(m_dir.path());
    QFont font(FontLoader::loadFont(qPrintable(path)));
    QDir::setCurrent(folder);
    font.setPixelSize(px);
    font.setWeight(QFont::Bold);
    QCOMPARE(QRawFont::fromFont(font).styleName(), "Bold");
}

/// A bundle with the one \a file, as bytes that may change or go.
QByteArray TestFontLoader::bundleOf(const QString &file, const QString &compression) const
{
    QFile list(m_dir.filePath("list.qrc"));
    list.open(QIODevice::WriteOnly);
    list.write("<RCC><qresource><file alias='font'>" + file.toUtf8() + "</file></qresource></RCC>");
    list.close();
    QProcess rcc;
    rcc.start(QStringLiteral(HOXQ_RCC), { "--binary", compression, list.fileName() });
    return rcc.waitForFinished() ? rcc.readAllStandardOutput() : QByteArray();
}

void TestFontLoader::bundleThatGoesLeavesAFaceInUse_data()
{
    QTest::addColumn<QString>("compression");
    QTest::addColumn<int>("px");
    QTest::newRow("as it is") << "--no-compress" << 50;
    QTest::newRow("compressed") << "--compress=9" << 51;
}

void TestFontLoader::bundleThatGoesLeavesAFaceInUse()
{
    QFETCH(QString, compression);
    QFETCH(int, px);
    QByteArray bundle
        = bundleOf(copyOf(":/fonts/UniversNextW1G-Medium.otf", "medium.otf"), compression);
    const auto *address = reinterpret_cast<const uchar *>(bundle.constData());
    QVERIFY(QResource::registerResource(address));
    QFont font(FontLoader::loadFont(":/font"));
    QVERIFY(QResource(":/font").isValid());
    font.setPixelSize(px);
    font.setWeight(QFont::Medium);
    const QRawFont face = QRawFont::fromFont(font);
    QCOMPARE(face.styleName(), "Medium");
    QVERIFY(QResource::unregisterResource(address));
    std::fill(bundle.begin(), bundle.end(), '\0');
    const QVector<quint32> glyph = face.glyphIndexesForString("H");
    QVERIFY(!face.pathForGlyph(glyph.value(0)).isEmpty());
}

/// Of the memory that no other process shares, a face in use and the database's entry are allowed.
void TestFontLoader::fallbackTakesNoCopyOfItsBytes()
{
    FontLoader(); // what the toolkit takes once
    const qint64 before = Effort::statusKib("RssAnon:");
    const int a_quarter_of_a_font_kib = 3451744 / 1024 / 4;
    for (int i = 0; i < 4; ++i) {
        const QString family = FontLoader::loadFont(":/fonts/DroidSansFallback.ttf");
        QVERIFY(QRawFont::fromFont(QFont(family)).supportsCharacter(QChar(0x4e00)));
    }
    QVERIFY2(Effort::statusKib("RssAnon:") - before < 4 * a_quarter_of_a_font_kib,
        QByteArray::number(Effort::statusKib("RssAnon:") - before));
}

QTEST_MAIN(TestFontLoader)
#include "tst_fontloader.moc"
