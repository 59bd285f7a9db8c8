#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QResource>
#include <QSvgRenderer>
#include <QTest>
#include <QXmlStreamReader>

#include <algorithm>
#include <dlfcn.h>

// The installed library is loaded by hand: nothing here may depend on it.

namespace {

struct Registration
{
    int format_version;
    QStringList paths; // new with it
};

bool is_recording = false; // the toolkit's own bundles come in before anything here is constructed
QVector<Registration> registrations;

QStringList bundlePaths()
{
    QStringList paths;
    QDirIterator it(QStringLiteral(":/"), QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        if (!it.next().startsWith(QLatin1String(":/q"))) // those of the toolkit
            paths.append(it.filePath());
    }
    return paths;
}

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// "30 x 55" of an SVG's view box, which must begin at 0, 0, or of a bitmap's px.
QString sizeOf(const QString &path)
{
    QXmlStreamReader xml(read(path));
    const bool is_svg = xml.readNextStartElement();
    const QString box = xml.attributes().value(QLatin1String("viewBox")).toString();
    if (is_svg && box.startsWith(QLatin1String("0 0 ")))
        return box.mid(4).replace(QLatin1Char(' '), QLatin1String(" x "));
    const QImage image(path);
    return QStringLiteral("%1 x %2").arg(image.width()).arg(image.height());
}

QImage picture(const QString &path)
{
    const QImage bitmap(path);
    QSvgRenderer renderer(read(path));
    if (!renderer.isValid())
        return bitmap.convertToFormat(QImage::Format_ARGB32);
    QImage image(renderer.defaultSize() * 4, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}

/// The most frequent opaque colours, at most \a count, sorted by name.
QStringList mainColors(const QImage &image, int count)
{
    QMap<QRgb, int> pixels;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) == 255)
                ++pixels[image.pixel(x, y)];
        }
    }
    QList<QRgb> colors = pixels.keys();
    std::sort(colors.begin(), colors.end(),
        [&pixels](QRgb a, QRgb b) { return pixels.value(a) > pixels.value(b); });
    QStringList names;
    for (const QRgb color : colors.mid(0, count))
        names.append(QColor(color).name());
    names.sort();
    return names;
}

} // namespace

/// Stands before the toolkit's own function of this name and sees every bundle that comes in.
Q_DECL_EXPORT bool qRegisterResourceData(
    int version, const unsigned char *tree, const unsigned char *name, const unsigned char *data)
{
    using Function = decltype(&qRegisterResourceData);
    static const auto toolkits
        = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "_Z21qRegisterResourceDataiPKhS0_S0_"));
    const QStringList before = is_recording ? bundlePaths() : QStringList();
    const bool is_registered = toolkits(version, tree, name, data);
    if (!is_recording)
        return is_registered;
    QStringList paths = bundlePaths();
    for (const QString &path : before)
        paths.removeAll(path);
    if (!paths.isEmpty())
        registrations.append({ version, paths });
    return is_registered;
}

class TestBundles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void areRegisteredInOrder();
    void fontsAreThere_data();
    void fontsAreThere();
    void onlyStylesheetsAreCompressed_data();
    void onlyStylesheetsAreCompressed();
    void imagesHaveTheirSizeAndColors_data();
    void imagesHaveTheirSizeAndColors();
    void knobHasATranslucentShadow();
    void slashAfterTheColonMayBeLeftOut();
    void goWithTheLibrary();

private:
    void *m_library = nullptr;
};

void TestBundles::initTestCase()
{
    QVERIFY(!QCoreApplication::instance());
    QCOMPARE(bundlePaths(), QStringList());
    is_recording = true;
    m_library = dlopen(HOXQ_LIBRARY, RTLD_NOW);
    QVERIFY2(m_library, dlerror());
}

void TestBundles::areRegisteredInOrder()
{
    QStringList order;
    for (const Registration &registration : qAsConst(registrations)) {
        QCOMPARE(registration.format_version, 3);
        order.append(QStringLiteral("%1: %2")
                         .arg(registration.paths.size())
                         .arg(registration.paths.first().section(QLatin1Char('/'), 1, 1)));
    }
    QCOMPARE(order.size(), 3);
    QCOMPARE(order.at(0), QStringLiteral("5: fonts"));
    QCOMPARE(order.at(1), QStringLiteral("2: css"));
    QCOMPARE(order.at(2).section(QLatin1Char(':'), 0, 0), QStringLiteral("40"));
}

void TestBundles::fontsAreThere_data()
{
    QTest::addColumn<QString>("path");
    for (const char *name : { "UniversNextW1G-Light.otf", "UniversNextW1G-Regular.otf",
             "UniversNextW1G-Medium.otf", "UniversNextW1G-Bold.otf", "DroidSansFallback.ttf" })
        QTest::newRow(name) << QLatin1String(":/fonts/") + QLatin1String(name);
}

void TestBundles::fontsAreThere()
{
    QFETCH(QString, path);
    const QByteArray font = read(path);
    const QByteArray outlines = font.left(4); // how the file begins tells its kind
    QVERIFY(outlines == "OTTO" || outlines == QByteArray("\0\1\0\0", 4));
    QVERIFY(font.size() > 50000);
}

void TestBundles::onlyStylesheetsAreCompressed_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("compressed");
    for (const Registration &registration : qAsConst(registrations)) {
        for (const QString &path : registration.paths)
            QTest::newRow(qPrintable(path)) << path << path.startsWith(QLatin1String(":/css/"));
    }
}

void TestBundles::onlyStylesheetsAreCompressed()
{
    QFETCH(QString, path);
    QFETCH(bool, compressed);
    QCOMPARE(QResource(path).compressionAlgorithm(),
        compressed ? QResource::ZlibCompression : QResource::NoCompression);
}

void TestBundles::imagesHaveTheirSizeAndColors_data()
{
    QTest::addColumn<QString>("size");
    QTest::addColumn<QString>("colors");
    const auto row = [](const char *path, const char *size, const char *colors) {
        QTest::newRow(path) << QString::fromLatin1(size) << QString::fromLatin1(colors);
    };
    row(":/XSvg", "30 x 55", "#505050");
    row(":/VexoIconGeneralPlusSvg", "30 x 44", "#3c3c3c");
    row(":/VexoIconGeneralEnter", "44 x 44", "#3c3c3c");
    row(":/VexoIconGeneralEnterC0", "44 x 44", "#ffffff");
    row(":/VexoIconGeneralShift", "40 x 44", "#3c3c3c");
    row(":/VexoIconGeneralShiftC0", "40 x 44", "#ffffff");
    row(":/VexoIconGeneralReset", "36 x 44", "#3c3c3c");
    row(":/VexoIconGeneralResetC0", "36 x 44", "#ffffff");
    row(":/VexoIconGeneralInfoSvg", "8 x 44", "#3c3c3c");
    row(":/VexoIconGeneralTickSvg", "30 x 44", "#3c3c3c");
    row(":/arrowListLeftSvg", "20 x 44", "#3c3c3c");
    row(":/arrowListRightSvg", "20 x 44", "#3c3c3c");
    row(":/generalmenuSvg", "24 x 44", "#3c3c3c");
    row(":/cb_checked", "78 x 44", "#3c3c3c #ffffff");
    row(":/cb_unchecked", "78 x 44", "#3c3c3c #a0a0a0 #ffffff");
    row(":/rb_checked", "40 x 42", "#3c3c3c #ffffff");
    row(":/rb_unchecked", "40 x 42", "#3c3c3c #ffffff");
    row(":/knob_shadow", "72 x 72", "#ffffff");
    row(":/widgetimages/vexo.svg", "150 x 40", "#231f20");
    row(":/widgetimages/vexo-inverted.png", "183 x 51", "#ffffff");
    row(":/widgetimages/Boot/BootScreen.svg", "1024 x 600", "#3c3c3c #ffffff");
    row(":/widgetimages/Boot/UpdateScreen.svg", "1024 x 600", "#3c3c3c #ffffff");
    row(":/widgetimages/back.svg", "16 x 44", "#3c3c3c");
    row(":/widgetimages/forward.svg", "16 x 44", "#3c3c3c");
    row(":/widgetimages/Checkbox_Blank.svg", "17.008 x 17.008", "#3c3c3c");
    row(":/widgetimages/VexoIconEmpty.svg", "20 x 44", "");
    row(":/widgetimages/VexoIconGeneralArrowListRight_44px_C0.svg", "20 x 44", "#ffffff");
    row(":/widgetimages/VexoIconGeneralArrowListRight_44px_C3.svg", "20 x 44", "#3c3c3c");
    row(":/widgetimages/VexoIconGeneralArrowListRight_44px_RGB220.svg", "20 x 44", "#dcdcdc");
    for (const char *mark : { "", "Icons_Round_Small/" }) {
        const bool is_small = *mark;
        for (const char *sign : { is_small ? "Minus" : "Tick", is_small ? "Plus" : "X" }) {
            const QByteArray button
                = QByteArray(":/widgetimages/") + mark + "RoundButton_S_" + sign;
            row(button + "_Active.svg", "17.008 x 17.008", "#3c3c3c");
            if (*sign != 'X')
                row(button + "_Inactive.svg", "17.008 x 17.008", "#b4b4b4 #dcdcdc");
            row(button + "_Pressed.svg", "17.008 x 17.008", "#505050 #ffffff");
        }
    }
}

void TestBundles::imagesHaveTheirSizeAndColors()
{
    QFETCH(QString, colors);
    const QString path = QString::fromLatin1(QTest::currentDataTag());
    QTEST(sizeOf(path), "size");
    const QStringList names = colors.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QCOMPARE(mainColors(picture(path), qMax(1, names.size())), names);
}

void TestBundles::knobHasATranslucentShadow()
{
    const QImage knob = picture(QStringLiteral(":/knob_shadow"));
    QCOMPARE(knob.pixelColor(0, 0).alpha(), 0);
    QCOMPARE(knob.pixelColor(36, 36), QColor(Qt::white));
    const int below = knob.pixelColor(36, 62).alpha();
    QVERIFY2(below > 5 && below < 128, qPrintable(QString::number(below)));
}

void TestBundles::slashAfterTheColonMayBeLeftOut()
{
    const QByteArray back = read(QStringLiteral(":/widgetimages/back.svg"));
    QVERIFY(!back.isEmpty());
    QCOMPARE(read(QStringLiteral(":widgetimages/back.svg")), back);
    QCOMPARE(read(QStringLiteral(":css/hoxq.qs")), read(QStringLiteral(":/css/hoxq.qs")));
}

void TestBundles::goWithTheLibrary()
{
    QVERIFY(!QCoreApplication::instance());
    QCOMPARE(dlclose(m_library), 0);
    QCOMPARE(bundlePaths(), QStringList());
}

QTEST_APPLESS_MAIN(TestBundles)
#include "tst_bundles.moc"
