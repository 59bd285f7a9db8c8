// SPDX-License-Identifier: MIT
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QResource>
#include <QSvgRenderer>
#include <QTest>

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

/// "30 x 55" of an SVG's view box, another text unless it begins at 0, 0; or of a bitmap's px.
QString sizeOf(const QString &path)
{
    const QSvgRenderer svg(read(path));
    const QRectF box = svg.isValid() ? svg.viewBoxF() : QRectF(QPointF(), QImage(path).size());
    const QPointF end = box.bottomRight() + box.topLeft();
    return QStringLiteral("%1 x %2").arg(end.x()).arg(end.y());
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
    QStringList names;
    for (; count > 0 && !pixels.isEmpty(); --count) {
        const auto most = std::max_element(pixels.begin(), pixels.end());
        names.append(QColor(most.key()).name());
        pixels.erase(most);
    }
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
    QStringList paths = is_recording ? bundlePaths() : QStringList();
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
    void areRegisteredInOrderAndOnlyStylesheetsCompressed();
    void fontsAreThere();
    void imagesHaveTheirSizeAndColors_data();
    void imagesHaveTheirSizeAndColors();
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

void TestBundles::areRegisteredInOrderAndOnlyStylesheetsCompressed()
{
    QStringList order;
    for (const Registration &registration : qAsConst(registrations)) {
        QCOMPARE(registration.format_version, 3);
        const QString bundle = registration.paths.first().section(QLatin1Char('/'), 1, 1);
        const auto compression = bundle == QLatin1String("css") ? QResource::ZlibCompression
                                                                : QResource::NoCompression;
        for (const QString &path : registration.paths)
            QVERIFY2(QResource(path).compressionAlgorithm() == compression, qPrintable(path));
        order.append(QStringLiteral("%1: %2").arg(registration.paths.size()).arg(bundle));
    }
    QCOMPARE(
        order.mid(0, 2), QStringList({ QStringLiteral("5: fonts"), QStringLiteral("2: css") }));
    QCOMPARE(order.size(), 3);
    QCOMPARE(registrations.last().paths.size(), 40);
}

void TestBundles::fontsAreThere()
{
    for (const char *name : { "UniversNextW1G-Light.otf", "UniversNextW1G-Regular.otf",
             "UniversNextW1G-Medium.otf", "UniversNextW1G-Bold.otf", "DroidSansFallback.ttf" }) {
        const QByteArray font = read(QLatin1String(":/fonts/") + QLatin1String(name));
        const bool has_outlines = font.startsWith("OTTO") || font.startsWith({ "\0\1\0\0", 4 });
        QVERIFY2(has_outlines && font.size() > 50000, name);
    }
}

void TestBundles::imagesHaveTheirSizeAndColors_data()
{
    QTest::addColumn<QString>("size");
    QTest::addColumn<QString>("colors");
    const auto rows = [](const char *size, const char *colors, const char *names) {
        const QList<QByteArray> each = QByteArray(names).split(' ');
        for (const QByteArray &name : each)
            QTest::newRow(":/" + name) << size << colors;
    };
    rows("30 x 55", "#505050", "XSvg");
    rows("30 x 44", "#3c3c3c", "VexoIconGeneralPlusSvg VexoIconGeneralTickSvg");
    rows("44 x 44", "#3c3c3c", "VexoIconGeneralEnter");
    rows("44 x 44", "#ffffff", "VexoIconGeneralEnterC0");
    rows("40 x 44", "#3c3c3c", "VexoIconGeneralShift");
    rows("40 x 44", "#ffffff", "VexoIconGeneralShiftC0");
    rows("36 x 44", "#3c3c3c", "VexoIconGeneralReset");
    rows("36 x 44", "#ffffff", "VexoIconGeneralResetC0");
    rows("8 x 44", "#3c3c3c", "VexoIconGeneralInfoSvg");
    rows("20 x 44", "#3c3c3c", "arrowListLeftSvg arrowListRightSvg");
    rows("24 x 44", "#3c3c3c", "generalmenuSvg");
    rows("78 x 44", "#3c3c3c #ffffff", "cb_checked");
    rows("78 x 44", "#3c3c3c #a0a0a0 #ffffff", "cb_unchecked");
    rows("40 x 42", "#3c3c3c #ffffff", "rb_checked rb_unchecked");
    rows("72 x 72", "#ffffff", "knob_shadow");
    const QByteArray folder("widgetimages/");
    rows("150 x 40", "#231f20", folder + "vexo.svg");
    rows("183 x 51", "#ffffff", folder + "vexo-inverted.png");
    for (const char *screen : { "Boot", "Update" })
        rows("1024 x 600", "#3c3c3c #ffffff", folder + "Boot/" + screen + "Screen.svg");
    for (const char *arrow : { "back.svg", "forward.svg" })
        rows("16 x 44", "#3c3c3c", folder + arrow);
    rows("17.008 x 17.008", "#3c3c3c", folder + "Checkbox_Blank.svg");
    rows("20 x 44", "", folder + "VexoIconEmpty.svg");
    const QByteArray list_arrow = folder + "VexoIconGeneralArrowListRight_44px_";
    rows("20 x 44", "#ffffff", list_arrow + "C0.svg");
    rows("20 x 44", "#3c3c3c", list_arrow + "C3.svg");
    rows("20 x 44", "#dcdcdc", list_arrow + "RGB220.svg");
    for (const char *button : { "RoundButton_S_Tick", "RoundButton_S_X",
             "Icons_Round_Small/RoundButton_S_Minus", "Icons_Round_Small/RoundButton_S_Plus" }) {
        rows("17.008 x 17.008", "#3c3c3c", folder + button + "_Active.svg");
        if (!QByteArray(button).endsWith('X'))
            rows("17.008 x 17.008", "#b4b4b4 #dcdcdc", folder + button + "_Inactive.svg");
        rows("17.008 x 17.008", "#505050 #ffffff", folder + button + "_Pressed.svg");
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

void TestBundles::goWithTheLibrary()
{
    QVERIFY(!QCoreApplication::instance());
    QCOMPARE(dlclose(m_library), 0);
    QCOMPARE(bundlePaths(), QStringList());
}

QTEST_APPLESS_MAIN(TestBundles)
#include "tst_bundles.moc"
