// SPDX-License-Identifier: MIT
#include "support/effort.h"
#include "support/iconfiles.h"
#include "support/panelscale.h"
#include "support/testcase.h"

#include <ActiveButton>
#include <CachedVectorIcon>
#include <VexoLogo>

#include <QBuffer>
#include <QDir>
#include <QImageWriter>
#include <QLoggingCategory>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#include <zlib.h>

using namespace vexo::hox::qt::ui;

namespace {

/// A fault shows as a failed allocation here and not on the whole machine.
void limitMemory()
{
    const rlimit limit = { rlim_t(3) << 30, rlim_t(3) << 30 };
    if (!Effort::IS_SANITIZED) // which reserves terabytes of addresses
        setrlimit(RLIMIT_AS, &limit);
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

/// \a count elements, each as \a one; %1 in it is the number of the element.
QByteArray many(int count, const QByteArray &one)
{
    QByteArray all;
    for (int i = 0; i < count; ++i)
        all += QByteArray(one).replace("%1", QByteArray::number(i));
    return all;
}

/// Circles across the whole picture, each with an outline and a gradient.
QByteArray circles(int count)
{
    return svg("<radialGradient id='a'><stop offset='0' stop-color='red'/></radialGradient>"
               "<g fill='url(#a)' stroke='red'>"
        + many(count, "<circle cx='20' cy='10' r='20'/>") + "</g>");
}

/// A JPEG whose picture is sent once more and once more.
QByteArray endlessJpeg()
{
    QImage image(3000, 2000, QImage::Format_Grayscale8);
    image.fill(0);
    QBuffer buffer;
    QImageWriter writer(&buffer, "jpeg");
    writer.setProgressiveScanWrite(true);
    writer.write(image);
    const QByteArray bytes = buffer.data();
    const QByteArray end = "\xff\xd9";
    const QByteArray last_scan = bytes.mid(bytes.lastIndexOf("\xff\xda")).chopped(2);
    return bytes.chopped(2) + last_scan.repeated(2000) + end;
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
    void drawsWhatTheRendererDraws_data();
    void drawsWhatTheRendererDraws();
    void unreadableFileGivesTheNamedLines_data();
    void unreadableFileGivesTheNamedLines();
    void flawedFileIsHarmless_data();
    void flawedFileIsHarmless();
    void plainButtonShowsNoHostileFile();
    void plainButtonOpensNothingInAPaint();
    void pictureThatTakesTooLongIsNotDrawn();
    void sizeBeyondAPixmapGivesNone_data();
    void sizeBeyondAPixmapGivesNone();

private:
    void addDamaged();
    void addExploding();
    void addMany();
    void addNoFiles();
    void addPacked(const char *name, const QByteArray &bytes);
    void addWritten(const char *name, const QByteArray &bytes);

    IconFiles m_files;
    const PanelScale m_scale{ 5, 20 };
    std::unique_ptr<Effort> m_effort; // of one row
};

TestHostileImages::TestHostileImages()
{
    limitMemory();
    QLoggingCategory::setFilterRules("hoxq.CVI.debug=true");
}

void TestHostileImages::init()
{
    TestCase::init();
    m_effort = std::make_unique<Effort>();
}

/// No file may take long or much memory.
void TestHostileImages::cleanup()
{
    TestCase::cleanup();
    QVERIFY2(m_effort->isSmall(), qPrintable(m_effort->text()));
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
    addMany();
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

void TestHostileImages::addMany()
{
    addWritten("900000 circles.svg", circles(900000));
    addWritten("200000 gradient stops.svg",
        svg("<linearGradient id='a'>" + many(200000, "<stop offset='.1'/>") + "</linearGradient>"));
    addWritten("60000 rules.svg",
        svg("<style>" + many(60000, ".a {fill: red}") + "</style>" + many(100, "<g class='a'/>")));
    addWritten("1000 rules for 1000 elements.svg",
        svg("<style>" + many(1000, ".a {fill: red}") + "</style>" + many(1000, "<g class='a'/>")));
    addWritten("selectors times declarations.svg",
        svg("<style>*" + many(1000, ",*") + "{" + many(1000, "fill:red;") + "}</style><g/>"));
    addWritten("faulty declarations.svg", svg("<style>*{" + many(40000, ":;") + "}</style><g/>"));
    addWritten("5000 uses in 20000 groups.svg",
        svg(many(20000, "<g>") + many(5000, "<use xlink:href='#x'/>") + many(20000, "</g>")));
    addWritten("50000 uses.svg", svg(many(50000, "<use xlink:href='#x'/>")));
    addWritten("uses by a plain href.svg", usesOfUses().replace("xlink:href", "href"));
    addWritten("100000 nested groups.svg", svg(many(100000, "<g>") + many(100000, "</g>")));
    addWritten("100000 attributes.svg", svg("<g" + many(100000, " a%1=''") + "/>"));
    addWritten("100000 letters.svg", svg("<text>" + many(100000, "a ") + "</text>"));
    addWritten("escapes.svg", svg("<g style='" + many(300000, "\\41 ") + "'/>"));
    addWritten("endless.jpeg", endlessJpeg());
    addWritten("small on a large canvas.gif",
        QByteArray::fromHex("474946383961 3075 3075 000000 2c 00000000 0200 0200 00 02 00 3b"));
    addWritten("large in a small icon.ico",
        QByteArray::fromHex("000001000100 02020000 0100 2000 00000100 16000000")
            + png(15000, 15000));
    addWritten("1.6 GB in a small icon.ico",
        QByteArray::fromHex("000001000100 02020000 0100 2000 4e78da63 16000000") + png(2, 2));
}

/// What no file can be read from, as itself and as the picture in a vector.
void TestHostileImages::addNoFiles()
{
    const QByteArray pipe = QFile::encodeName(m_files.path("pipe.svg"));
    mkfifo(pipe.constData(), 0600);
    QTest::newRow("pipe without writer") << QFile::decodeName(pipe);
    addWritten("shows a pipe.svg", image(pipe));
    addWritten("shows a pipe, decoy.svg",
        image(pipe + "' real:href='data:image/png;base64,")
            .replace("xmlns:xlink", "xmlns:xlink='other' xmlns:real"));
    addWritten("sheet from a pipe.svg",
        "<?xml-stylesheet type=\"text/css\" href=\"" + pipe + "\"?>" + svg("<rect/>"));
    const QString folder = m_files.path("folder.svg");
    QDir().mkdir(folder);
    QTest::newRow("folder") << folder;
    QTest::newRow("endless device") << "/dev/zero";
    if (geteuid() == 0)
        return; // may read all
    addWritten("no permission.svg", svg("<rect/>"));
    QFile::setPermissions(m_files.path("no permission.svg"), QFileDevice::WriteOwner);
}

void TestHostileImages::unreadableFileGivesTheNamedLines()
{
    QFETCH(QString, file);
    QStringList expected("debug hoxq.CVI: Invalid pixmap");
    if (file.endsWith(".svg", Qt::CaseInsensitive))
        expected.prepend("debug hoxq.CVI: SVG renderer invalid.");
    const Messages messages;
    CachedVectorIcon icon(file, QSizeF(10, 5));
    QVERIFY(icon.toPixmap().isNull());
    QCOMPARE(messages.lines(), expected);
}

void TestHostileImages::drawsWhatTheRendererDraws_data()
{
    QTest::addColumn<QString>("file");
    const QByteArray box = "width='40' height='20' fill='#00ff00'";
    const QByteArray rect = "<rect " + box + "/>";
    const QByteArray undeclared = "<svg viewBox='0 0 40 20'>";
    addWritten("editor's prefix without its xmlns.svg",
        undeclared + "<editor:view editor:zoom='2'/><g editor:label='x'>" + rect + "</g></svg>");
    addWritten("xlink without its xmlns.svg",
        undeclared + "<defs><rect id='a' " + box + "/></defs><use xlink:href='#a'/></svg>");
    addWritten("300 symbols of symbols.svg",
        svg("<defs>" + many(300, "<g id='s%1'>" + rect + "</g>")
            + many(300, "<g id='t%1'><use xlink:href='#s%1'/></g>") + "</defs>"
            + many(300, "<use xlink:href='#t%1'/>")));
    addWritten("50 rules for 500 shapes.svg",
        svg("<style>" + many(50, ".c%1 { fill: #00ff00; stroke: none }") + "</style>"
            + many(500, "<rect class='c%1' width='40' height='20'/>") + rect));
    addWritten("image within.svg",
        image(embedded("png", png(1500, 1000))).replace("</svg>", rect + "</svg>"));
    addWritten("100 groups deep.svg", svg(many(100, "<g>") + rect + many(100, "</g>")));
}

void TestHostileImages::drawsWhatTheRendererDraws()
{
    QFETCH(QString, file);
    CachedVectorIcon icon(file, QSizeF(10, 5));
    QCOMPARE(icon.toPixmap().size(), QSize(50, 100));
    QCOMPARE(icon.toPixmap().toImage().pixelColor(25, 50), QColor(Qt::green));
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

void TestHostileImages::plainButtonShowsNoHostileFile()
{
    const QString pipe = m_files.path("pipe.png");
    mkfifo(qPrintable(pipe), 0600);
    const QString exploding = m_files.write(QString("exploding.svg"), usesOfUses());
    for (const QString &file : { pipe, exploding, QString("/dev/zero") }) {
        ActiveButton button;
        button.addIcon(QLatin1String(ActiveButton::DEFAULT_STATE_NAME), file);
        QVERIFY(button.icon().isNull());
        button.grab();
    }
}

/// Sharp at each size, also that of a vector which bears no suffix.
void TestHostileImages::plainButtonOpensNothingInAPaint()
{
    const QByteArray halves = "<rect width='20' height='20' fill='#00ff00'/>";
    const QString vector = m_files.write("plain.svg", svg(halves));
    const QString plain = m_files.write("plain", svg(halves));
    const QString bitmap = m_files.write("plain.png", png(40, 20));
    for (const QString &file : { vector, plain, bitmap }) {
        ActiveButton button;
        button.addIcon(QLatin1String(ActiveButton::DEFAULT_STATE_NAME), file);
        QVERIFY(QFile::remove(file));
        const QImage image = button.icon().pixmap(400, 400).toImage();
        QCOMPARE(image.size(), file == bitmap ? QSize(40, 20) : QSize(400, 200));
        QCOMPARE(image.pixelColor(image.width() / 2 - 1, 9).alpha(), 255);
        if (file != bitmap)
            QCOMPARE(image.pixelColor(200, 9).alpha(), 0); // no grey edge
    }
}

void TestHostileImages::pictureThatTakesTooLongIsNotDrawn()
{
    const QByteArray strokes = svg("<path stroke='red' d='M0 0" + many(15000, "L40 3L0 9") + "'/>");
    for (const QByteArray &bytes : { circles(3000), strokes }) {
        const QString file = m_files.write("slow.svg", bytes);
        const Effort effort;
        CachedVectorIcon icon(file, QSizeF(400, 100));
        QVERIFY(icon.toPixmap().isNull());
        VexoLogo logo(2000, 2000, QImage::Format_RGB32, file);
        logo.paint(400);
        QCOMPARE(logo.image().pixelColor(1000, 1000), QColor(Qt::white));
        QVERIFY2(effort.isSmall(2), qPrintable(effort.text()));
    }
    CachedVectorIcon small(m_files.write("slow.svg", circles(300)), QSizeF(10, 5));
    QVERIFY(!small.toPixmap().isNull());
}

void TestHostileImages::sizeBeyondAPixmapGivesNone_data()
{
    QTest::addColumn<QSizeF>("mm"); // on a panel of 5 x 20 px/mm
    QTest::newRow("nothing") << QSizeF(0, 0);
    QTest::newRow("100 Mpx") << QSizeF(2000, 500);
    QTest::newRow("a kilometre, width") << QSizeF(1e6, 20);
    QTest::newRow("a kilometre, height") << QSizeF(60, 1e6);
    QTest::newRow("height derived from a kilometre") << QSizeF(1e6, 0);
    QTest::newRow("beyond float") << QSizeF(1e300, 1e300);
    QTest::newRow("height derived from infinity") << QSizeF(qInf(), 0);
}

void TestHostileImages::sizeBeyondAPixmapGivesNone()
{
    QFETCH(QSizeF, mm);
    for (const QString &file : { QString(":/XSvg"), QString(":/cb_checked") }) {
        const Messages messages;
        CachedVectorIcon icon(file, mm);
        QVERIFY(icon.toPixmap().isNull() && icon.isNull());
        QCOMPARE(messages.lines(), QStringList());
    }
}

QTEST_MAIN(TestHostileImages)
#include "tst_hostileimages.moc"
