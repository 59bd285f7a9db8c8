#include "support/iconfiles.h"
#include "support/panelscale.h"
#include "support/testcase.h"

#include <CachedVectorIcon>

#include <QBuffer>
#include <QDir>
#include <QLoggingCategory>
#include <QTest>

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

/// A fault shows as a failed allocation here and not on the whole machine.
void limitMemory()
{
    const rlimit limit = { rlim_t(3) << 30, rlim_t(3) << 30 };
    if (!IS_SANITIZED)
        setrlimit(RLIMIT_AS, &limit);
}

/// Of this process until now.
rusage usage()
{
    rusage used = {};
    getrusage(RUSAGE_SELF, &used);
    return used;
}

/// A black-and-white PNG, small whatever its size.
QByteArray png(int width, int height)
{
    QImage image(width, height, QImage::Format_Mono);
    image.fill(0);
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data();
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
    return svg(groups + "</g>", "");
}

} // namespace

class TestHostileImages : public TestCase
{
    Q_OBJECT

public:
    TestHostileImages();

private Q_SLOTS:
    void init();
    void cleanup();
    void unreadableFileGivesTheNamedLines_data();
    void unreadableFileGivesTheNamedLines();
    void flawedFileIsHarmless_data();
    void flawedFileIsHarmless();
    void sizeBeyondAPixmapGivesNone_data();
    void sizeBeyondAPixmapGivesNone();

private:
    void addDamaged();
    void addExploding();
    void addNoFiles();
    void addPacked(const char *name, const QByteArray &bytes);
    void addWritten(const char *name, const QByteArray &bytes);

    IconFiles m_files;
    const PanelScale m_scale{ 5, 20 };
    rusage m_before = {};
};

TestHostileImages::TestHostileImages()
{
    limitMemory();
    QLoggingCategory::setFilterRules(QStringLiteral("hoxq.CVI.debug=true"));
}

void TestHostileImages::init()
{
    TestCase::init();
    m_before = usage();
}

/// No file may take long or much memory; the largest allowed image takes 256 MB, twice for a
/// moment.
void TestHostileImages::cleanup()
{
    TestCase::cleanup();
    const rusage used = usage();
    const int cpu_s = int(used.ru_utime.tv_sec - m_before.ru_utime.tv_sec);
    QVERIFY2(cpu_s < 10, qPrintable(QString::number(cpu_s)));
    const int peak_mb = int(used.ru_maxrss / 1024);
    const bool is_higher = used.ru_maxrss > m_before.ru_maxrss && !IS_SANITIZED;
    QVERIFY2(peak_mb < 700 || !is_higher, qPrintable(QString::number(peak_mb)));
}

void TestHostileImages::addWritten(const char *name, const QByteArray &bytes)
{
    QTest::newRow(name) << m_files.write(QLatin1String(name), bytes);
}

void TestHostileImages::addPacked(const char *name, const QByteArray &bytes)
{
    const QString path = m_files.path(QLatin1String(name));
    QTest::newRow(name) << path;
    const gzFile file = gzopen(qPrintable(path), "wb1");
    if (gzwrite(file, bytes.constData(), uint(bytes.size())) != bytes.size())
        qFatal("cannot write %s", name);
    gzclose(file);
}

void TestHostileImages::unreadableFileGivesTheNamedLines_data()
{
    QTest::addColumn<QString>("file");
    addDamaged();
    addExploding();
    addNoFiles();
}

void TestHostileImages::addDamaged()
{
    addWritten("empty.svg", QByteArray());
    addWritten("truncated.svg", svg("<rect width='40' height='20'/>").chopped(9));
    addWritten("truncated.png", png(40, 20).left(40));
    addWritten("noise.SVG", QByteArray::fromHex("00ff8013").repeated(1000));
    addWritten("nothing behind a header of 10^9 pixels.png", "P5 1000000 1000 255\n");
}

void TestHostileImages::addExploding()
{
    const QByteArray huge = png(15000, 15000);
    const QByteArray link = embedded("png", huge);
    addWritten("15000 x 15000.png", huge);
    addWritten("15000 x 15000 in a vector.svg", image(link));
    addWritten("15000 x 15000 in a vector without suffix", image(link));
    addWritten("last of two.svg", image(embedded("png", png(1, 1)) + link));
    addPacked("15000 x 15000, packed twice.svgz", image(link));
    addPacked("unpacks to 70 MB.svg", svg(QByteArray(70000000, ' ')));
    addWritten("nested entities.svg", nestedEntities());
    addWritten("200000 open groups.svg", svg(QByteArray("<g>").repeated(200000)));
    addWritten("uses of uses.svg", usesOfUses());
    addWritten("uses of xml:id.svg", usesOfUses(30, "xml:id"));
    addWritten("uses of a large group.svg", usesOfUses(12, "id", 20000));
    addWritten("vector in a vector.svg", image(embedded("svg+xml", usesOfUses())));
}

/// What no file can be read from, as itself and as the picture in a vector.
void TestHostileImages::addNoFiles()
{
    const QByteArray pipe = QFile::encodeName(m_files.path(QStringLiteral("pipe.svg")));
    mkfifo(pipe.constData(), 0600);
    QTest::newRow("pipe without writer") << QFile::decodeName(pipe);
    addWritten("shows a pipe.svg", image(pipe));
    addWritten("shows a pipe, decoy.svg",
        image(pipe + "' real:href='data:image/png;base64,")
            .replace("xmlns:xlink", "xmlns:xlink='other' xmlns:real"));
    const QString folder = m_files.path(QStringLiteral("folder.svg"));
    QDir().mkdir(folder);
    QTest::newRow("folder") << folder;
    QTest::newRow("endless device") << QStringLiteral("/dev/zero");
    if (geteuid() == 0)
        return; // may read all
    addWritten("no permission.svg", svg("<rect/>"));
    QFile::setPermissions(
        m_files.path(QStringLiteral("no permission.svg")), QFileDevice::WriteOwner);
}

void TestHostileImages::unreadableFileGivesTheNamedLines()
{
    QFETCH(QString, file);
    QStringList expected(QStringLiteral("debug hoxq.CVI: Invalid pixmap"));
    if (file.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive))
        expected.prepend(QStringLiteral("debug hoxq.CVI: SVG renderer invalid."));
    const Messages messages;
    CachedVectorIcon icon(file, QSizeF(10, 5));
    QCOMPARE(messages.lines(), expected);
    QVERIFY(icon.toPixmap().isNull());
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
    CachedVectorIcon icon(file, QSizeF(10, 5));
    QVERIFY(icon.isNull() || icon.toPixmap().size() == QSize(50, 100));
}

void TestHostileImages::sizeBeyondAPixmapGivesNone_data()
{
    QTest::addColumn<QSizeF>("mm"); // on a panel of 5 x 20 px/mm
    QTest::newRow("nothing") << QSizeF(0, 0);
    QTest::newRow("side of 33000 px") << QSizeF(6600, 0.05);
    QTest::newRow("100 Mpx") << QSizeF(2000, 500);
    QTest::newRow("a kilometre, width") << QSizeF(1e6, 5);
    QTest::newRow("a kilometre, height") << QSizeF(5, 1e6);
    QTest::newRow("height derived from a kilometre") << QSizeF(1e6, 0);
    QTest::newRow("beyond float") << QSizeF(1e300, 1e300);
    QTest::newRow("height derived from infinity") << QSizeF(qInf(), 0);
}

void TestHostileImages::sizeBeyondAPixmapGivesNone()
{
    QFETCH(QSizeF, mm);
    for (const QString &file : { QStringLiteral(":/XSvg"), QStringLiteral(":/cb_checked") }) {
        const Messages messages;
        CachedVectorIcon icon(file, mm);
        QVERIFY(icon.toPixmap().isNull() && icon.isNull());
        QCOMPARE(messages.lines(), QStringList());
    }
}

QTEST_MAIN(TestHostileImages)
#include "tst_hostileimages.moc"
