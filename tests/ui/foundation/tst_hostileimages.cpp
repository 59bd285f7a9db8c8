#include "support/panelscale.h"
#include "support/testcase.h"

#include <CachedVectorIcon>

#include <QFile>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include <ctime>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#include <zlib.h>

using vexo::hox::qt::ui::CachedVectorIcon;

namespace {

// The sanitizer reserves terabytes of addresses and keeps freed memory for a while.
#ifdef __SANITIZE_ADDRESS__
const bool IS_SANITIZED = true;
#else
const bool IS_SANITIZED = false;
#endif

// The largest allowed image takes 256 MB, twice for a moment.
const int MEMORY_LIMIT_MB = 700;

QByteArray bigEndian(quint32 number)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

QByteArray chunk(const QByteArray &name, const QByteArray &data)
{
    const QByteArray named = name + data;
    const auto *bytes = reinterpret_cast<const Bytef *>(named.constData());
    const quint32 checksum = quint32(crc32(0, bytes, uInt(named.size())));
    return bigEndian(quint32(data.size())) + named + bigEndian(checksum);
}

/// A black-and-white PNG of this size whose pixels are \a packed.
QByteArray png(quint32 width, quint32 height, const QByteArray &packed)
{
    const QByteArray form("\x01\x00\x00\x00\x00", 5); // one bit of grey
    return "\x89PNG\r\n\x1a\n" + chunk("IHDR", bigEndian(width) + bigEndian(height) + form)
        + chunk("IDAT", packed) + chunk("IEND", QByteArray());
}

/// 30000 x 30000 px, complete; 490 kB.
QByteArray hugePng()
{
    const int side = 30000;
    const QByteArray black(side * (side / 8 + 1), '\0');
    return png(side, side, qCompress(black, 1).mid(4));
}

QByteArray svg(const QByteArray &content, const QByteArray &box = "viewBox='0 0 40 20'")
{
    return "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' "
        + box + ">" + content + "</svg>";
}

QByteArray image(const QByteArray &href)
{
    return svg("<image width='40' height='20' xlink:href='" + href + "'/>");
}

QByteArray embedded(const QByteArray &type, const QByteArray &bytes)
{
    return "data:image/" + type + ";base64," + bytes.toBase64();
}

/// Each entity is ten of the one before: 10^12 letters.
QByteArray nestedEntities()
{
    QByteArray entities = "<!ENTITY e0 'aaaaaaaaaa'>";
    for (int i = 1; i < 12; ++i) {
        const QByteArray before = "&e" + QByteArray::number(i - 1) + ";";
        entities += "<!ENTITY e" + QByteArray::number(i) + " '" + before.repeated(10) + "'>";
    }
    return "<!DOCTYPE svg [" + entities + "]>" + svg("<text>&e11;</text>");
}

/// Each of \a count groups shows the one before twice: a shape is drawn 2^(count - 1) times.
QByteArray usesOfUses(int count = 30, const QByteArray &id = "id", int shapes = 1)
{
    const QByteArray group = "<g " + id + "='u";
    QByteArray groups = group + "0'>" + QByteArray("<rect width='9' height='9'/>").repeated(shapes);
    for (int i = 1; i < count; ++i) {
        const QByteArray use = "<use xlink:href='#u" + QByteArray::number(i - 1) + "'/>";
        groups += "</g>" + group + QByteArray::number(i) + "'>" + use + use;
    }
    return groups + "</g>";
}

void forgetMemoryPeak()
{
    QFile file(QStringLiteral("/proc/self/clear_refs"));
    if (file.open(QIODevice::WriteOnly))
        file.write("5");
}

int memoryPeakMb()
{
    QFile file(QStringLiteral("/proc/self/status"));
    if (IS_SANITIZED || !file.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith("VmHWM:"))
            return line.simplified().split(' ').value(1).toInt() / 1024;
    }
    return 0;
}

/// A fault shows as a failed allocation here and not on the whole machine.
void limitMemory()
{
    const rlimit limit = { rlim_t(3) << 30, rlim_t(3) << 30 };
    if (!IS_SANITIZED)
        setrlimit(RLIMIT_AS, &limit);
}

} // namespace

class TestHostileImages : public TestCase
{
    Q_OBJECT

public:
    TestHostileImages();

private Q_SLOTS:
    void unreadableFileGivesTheNamedLines_data();
    void unreadableFileGivesTheNamedLines();
    void flawedFileIsHarmless_data();
    void flawedFileIsHarmless();
    void sizeBeyondAPixmapGivesNone_data();
    void sizeBeyondAPixmapGivesNone();

private:
    QString path(const char *name) const { return m_dir.filePath(QLatin1String(name)); }
    QString write(const char *name, const QByteArray &bytes);
    void addBroken();
    void addHuge();
    void addExploding();
    void addNoFiles();
    void addPacked(const char *name, const QByteArray &bytes);
    void addWritten(const char *name, const QByteArray &bytes);
    void verifyBounded(std::clock_t start);

    QTemporaryDir m_dir;
    const PanelScale m_scale{ 5, 20 };
};

TestHostileImages::TestHostileImages()
{
    limitMemory();
    QLoggingCategory::setFilterRules(QStringLiteral("hoxq.CVI.debug=true"));
}

QString TestHostileImages::write(const char *name, const QByteArray &bytes)
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", name);
    return file.fileName();
}

void TestHostileImages::addWritten(const char *name, const QByteArray &bytes)
{
    QTest::newRow(name) << write(name, bytes);
}

void TestHostileImages::addPacked(const char *name, const QByteArray &bytes)
{
    QTest::newRow(name) << path(name);
    const gzFile file = gzopen(qPrintable(path(name)), "wb1");
    if (gzwrite(file, bytes.constData(), uint(bytes.size())) != bytes.size())
        qFatal("cannot write %s", name);
    gzclose(file);
}

void TestHostileImages::verifyBounded(std::clock_t start)
{
    const int cpu_s = int((std::clock() - start) / CLOCKS_PER_SEC);
    QVERIFY2(cpu_s < 10, qPrintable(QString::number(cpu_s)));
    const int peak_mb = memoryPeakMb();
    QVERIFY2(peak_mb < MEMORY_LIMIT_MB, qPrintable(QString::number(peak_mb)));
}

void TestHostileImages::unreadableFileGivesTheNamedLines_data()
{
    QTest::addColumn<QString>("file");
    addBroken();
    addHuge();
    addExploding();
    addNoFiles();
}

void TestHostileImages::addBroken()
{
    addWritten("empty.svg", QByteArray());
    addWritten("empty.png", QByteArray());
    addWritten("truncated.svg", svg("<rect width='40' height='20'/>").chopped(9));
    addWritten("truncated.png", png(40, 20, QByteArray()).left(40));
    addWritten("noise.svg", QByteArray::fromHex("00ff8013").repeated(1000));
    addWritten("noise.png", QByteArray::fromHex("00ff8013").repeated(1000));
}

void TestHostileImages::addHuge()
{
    const QByteArray huge = hugePng();
    const QByteArray link = embedded("png", huge);
    addWritten("a header of 10^9 pixels.png", png(1000000, 1000, qCompress("", 9).mid(4)));
    addWritten("30000 x 30000.png", huge);
    addWritten("30000 x 30000 in a vector.svg", image(link));
    addWritten("30000 x 30000 in a vector", image(link));
    addWritten(
        "last of two.svg", image(embedded("png", png(1, 1, qCompress("", 9).mid(4))) + link));
    addPacked("30000 x 30000, packed twice.svgz", image(link));
    addPacked("unpacks to 70 MB.svg", svg(QByteArray(70000000, ' ')));
}

void TestHostileImages::addExploding()
{
    addWritten("nested entities.svg", nestedEntities());
    addWritten("200000 open groups.svg", svg(QByteArray("<g>").repeated(200000)));
    addWritten("uses of uses.svg", svg(usesOfUses(), ""));
    addWritten("uses of uses", svg(usesOfUses(), ""));
    addWritten("uses of xml:id.svg", svg(usesOfUses(30, "xml:id"), ""));
    addWritten("uses of a large group.svg", svg(usesOfUses(12, "id", 20000), ""));
    addWritten("vector in a vector.svg", image(embedded("svg+xml", svg(usesOfUses(), ""))));
}

/// What no file can be read from, as itself and as the picture in a vector.
void TestHostileImages::addNoFiles()
{
    const QByteArray pipe = QFile::encodeName(path("pipe.svg"));
    mkfifo(pipe.constData(), 0600);
    QTest::newRow("pipe without writer") << path("pipe.svg");
    addWritten("shows a pipe.svg", image(pipe));
    addWritten("shows a pipe, decoy.svg",
        image(pipe + "' real:href='data:image/png;base64,")
            .replace("xmlns:xlink", "xmlns:xlink='other' xmlns:real"));
    addWritten("shows a huge file.svg", image(QFile::encodeName(path("30000 x 30000.png"))));
    QDir(m_dir.path()).mkdir(QStringLiteral("folder.svg"));
    QTest::newRow("folder") << path("folder.svg");
    QTest::newRow("endless device") << QStringLiteral("/dev/zero");
    if (geteuid() != 0) {
        QFile::setPermissions(write("secret.svg", svg("<rect/>")), QFileDevice::WriteOwner);
        QTest::newRow("no permission") << path("secret.svg");
    }
}

void TestHostileImages::unreadableFileGivesTheNamedLines()
{
    QFETCH(QString, file);
    QStringList expected(QStringLiteral("debug hoxq.CVI: Invalid pixmap"));
    if (file.endsWith(QLatin1String(".svg")))
        expected.prepend(QStringLiteral("debug hoxq.CVI: SVG renderer invalid."));
    const Messages messages;
    forgetMemoryPeak();
    const std::clock_t start = std::clock();
    CachedVectorIcon icon(file, QSizeF(10, 5));
    QCOMPARE(messages.lines(), expected);
    QVERIFY(icon.toPixmap().isNull());
    verifyBounded(start);
}

void TestHostileImages::flawedFileIsHarmless_data()
{
    QTest::addColumn<QString>("file");
    const QByteArray dashed = "<path d='M0 10 H1000000' stroke='red' stroke-dasharray='";
    addWritten("1000 nested groups.svg",
        svg(QByteArray("<g>").repeated(1000) + QByteArray("</g>").repeated(1000)));
    addWritten("use of itself.svg", svg("<g id='a'><use xlink:href='#a'/></g>"));
    addWritten("tiny dashes.svg", svg(dashed + "0.00001 0.00001'/>"));
    addWritten("many dashes.svg", svg(dashed + QByteArray("0.001 ").repeated(300000) + "'/>"));
    addWritten("gradients of each other.svg",
        svg("<linearGradient id='a' xlink:href='#b'/><linearGradient id='b' xlink:href='#a'/>"
            "<rect width='9' height='9' fill='url(#a)'/>"));
    addWritten("numbers out of range.svg",
        svg("<rect x='inf' width='nan' height='1e300'/><circle r='1e30'/>"
            "<path d='M0 0 A1e-300 1e300 0 1 1 1e30 1e-30'/><text font-size='1e9'>x</text>"));
    addWritten("box out of range.svg", svg("<rect/>", "viewBox='0 0 1e300 1e300'"));
    addWritten("negative size.svg", svg("<rect/>", "width='-40' height='-20'"));
}

void TestHostileImages::flawedFileIsHarmless()
{
    QFETCH(QString, file);
    const Messages messages; // the toolkit warns about flaws in a file that it reads all the same
    forgetMemoryPeak();
    const std::clock_t start = std::clock();
    CachedVectorIcon icon(file, QSizeF(10, 5));
    QVERIFY(icon.isNull() || icon.toPixmap().size() == QSize(50, 100));
    verifyBounded(start);
}

void TestHostileImages::sizeBeyondAPixmapGivesNone_data()
{
    const double infinity = qInf();
    QTest::addColumn<QSizeF>("mm"); // on a panel of 5 x 20 px/mm
    QTest::newRow("side of 33000 px") << QSizeF(6600, 0.05);
    QTest::newRow("100 Mpx") << QSizeF(2000, 500);
    QTest::newRow("a kilometre, width") << QSizeF(1e6, 5);
    QTest::newRow("a kilometre, height") << QSizeF(5, 1e6);
    QTest::newRow("height derived from a kilometre") << QSizeF(1e6, 0);
    QTest::newRow("beyond float") << QSizeF(1e300, 1e300);
    QTest::newRow("infinite") << QSizeF(infinity, infinity);
    QTest::newRow("height derived from infinity") << QSizeF(infinity, 0);
}

void TestHostileImages::sizeBeyondAPixmapGivesNone()
{
    QFETCH(QSizeF, mm);
    forgetMemoryPeak();
    const std::clock_t start = std::clock();
    for (const QString &file : { QStringLiteral(":/XSvg"), QStringLiteral(":/cb_checked"),
             QStringLiteral(":/widgetimages/back.svg") }) {
        const Messages messages;
        CachedVectorIcon icon(file, mm);
        QVERIFY(icon.toPixmap().isNull() && icon.isNull());
        QCOMPARE(messages.lines(), QStringList());
    }
    verifyBounded(start);
}

QTEST_MAIN(TestHostileImages)
#include "tst_hostileimages.moc"
