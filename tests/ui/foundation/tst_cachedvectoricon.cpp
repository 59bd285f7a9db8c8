#include "support/panelscale.h"
#include "support/testcase.h"

#include <CachedVectorIcon>
#include <ScalingInfo>

#include <QDateTime>
#include <QFile>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <stdexcept>

using vexo::hox::qt::ui::CachedVectorIcon;

namespace {

using Change = std::function<void(CachedVectorIcon &)>;

/// Never lets the px be derived from the mm.
class PinnedIcon : public CachedVectorIcon
{
public:
    using CachedVectorIcon::CachedVectorIcon;
    bool mustRelayout() override { return false; }
};

QImage twoHalves(const QColor &left, const QColor &right)
{
    QImage image(40, 20, QImage::Format_RGB32);
    image.fill(left);
    for (int x = 20; x < 40; ++x) {
        for (int y = 0; y < 20; ++y)
            image.setPixelColor(x, y, right);
    }
    return image;
}

QByteArray svgOfTwoHalves(const QByteArray &left, const QByteArray &right)
{
    return "<svg xmlns='http://www.w3.org/2000/svg' width='40' height='20' viewBox='0 0 40 20'>"
           "<rect width='20' height='20' fill='"
        + left + "'/><rect x='20' width='20' height='20' fill='" + right + "'/></svg>";
}

} // namespace

Q_DECLARE_METATYPE(Change)

class TestCachedVectorIcon : public TestCase
{
    Q_OBJECT

public:
    TestCachedVectorIcon();

private Q_SLOTS:
    void isABitmapUnlessItEndsWithSvg();
    void rendersAtTheSizeInMm_data();
    void rendersAtTheSizeInMm();
    void rendersAtTheSizeInPx();
    void isNullWithoutASize();
    void wrongSizesThrowAndChangeNothing_data();
    void wrongSizesThrowAndChangeNothing();
    void rendersOnlyWhatChanged_data();
    void rendersOnlyWhatChanged();
    void derivedWidthStaysWhenTheHeightChanges();
    void showsTheNewFileAtTheSameSize();
    void unreadableFileKeepsTheRendering();
    void imageInAnSvgNameIsReadAsBitmap();
    void newScaleIsUsedOnlyWhenLaidOutAgain();
    void subclassCanKeepThePx();
    void copySharesRenderingsAndIsLaidOutAgain();
    void assignmentTakesFileAndSizeOnly();
    void iconsOfOneFileAndSizeShareTheRendering();
    void changedFileIsRenderedAnew_data();
    void changedFileIsRenderedAnew();
    void bitmapsAreScaledSmoothly();
    void vectorsStayCrisp_data();
    void vectorsStayCrisp();

private:
    QString write(const QString &name, const QByteArray &bytes, int age_s = 3600);
    QString write(const QString &name, const QImage &image);

    QTemporaryDir m_dir;
    QString m_svg; // 40 x 20, left half red, right half blue
    QString m_png; // the same
    const PanelScale m_scale{ 5, 20 };
};

TestCachedVectorIcon::TestCachedVectorIcon()
{
    QLoggingCategory::setFilterRules(QStringLiteral("hoxq.CVI.debug=true"));
    m_svg = write(QStringLiteral("halves.svg"), svgOfTwoHalves("red", "blue"));
    m_png = write(QStringLiteral("halves.png"), twoHalves(Qt::red, Qt::blue));
}

QString TestCachedVectorIcon::write(const QString &name, const QByteArray &bytes, int age_s)
{
    QFile file(m_dir.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(file.fileName()));
    file.flush();
    const QDateTime time = QDateTime::currentDateTime().addSecs(-age_s);
    file.setFileTime(time, QFileDevice::FileModificationTime);
    return file.fileName();
}

QString TestCachedVectorIcon::write(const QString &name, const QImage &image)
{
    if (!image.save(m_dir.filePath(name)))
        qFatal("cannot write %s", qPrintable(name));
    return m_dir.filePath(name);
}

void TestCachedVectorIcon::isABitmapUnlessItEndsWithSvg()
{
    const CachedVectorIcon icon;
    for (const char *name : { "a.svg", "a.SVG", ".Svg" })
        QVERIFY2(!icon.isBitmap(QLatin1String(name)), name);
    for (const char *name : { "a.png", "a.svgz", "svg", "a.svg/b", "" })
        QVERIFY2(icon.isBitmap(QLatin1String(name)), name);
}

void TestCachedVectorIcon::rendersAtTheSizeInMm_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QSizeF>("mm");
    QTest::addColumn<QSize>("px"); // on a panel of 5 x 20 px/mm
    QTest::addColumn<QSizeF>("held_mm");
    QTest::newRow("svg, both") << m_svg << QSizeF(8, 3) << QSize(40, 60) << QSizeF(8, 3);
    QTest::newRow("svg, cut") << m_svg << QSizeF(1.375, 1.375) << QSize(6, 27)
                              << QSizeF(1.375, 1.375);
    QTest::newRow("svg, height") << m_svg << QSizeF(0, 5) << QSize(50, 100) << QSizeF(10, 5);
    QTest::newRow("svg, width") << m_svg << QSizeF(10, 0) << QSize(50, 100) << QSizeF(10, 5);
    QTest::newRow("png, both") << m_png << QSizeF(8, 3) << QSize(40, 60) << QSizeF(8, 3);
    QTest::newRow("png, height") << m_png << QSizeF(0, 5) << QSize(50, 100) << QSizeF(0, 5);
    QTest::newRow("png, width") << m_png << QSizeF(10, 0) << QSize(50, 100) << QSizeF(10, 0);
}

void TestCachedVectorIcon::rendersAtTheSizeInMm()
{
    QFETCH(QString, file);
    QFETCH(QSizeF, mm);
    QFETCH(QSize, px);
    const Messages messages;
    CachedVectorIcon icon(file, mm);
    QCOMPARE(icon.toPixmap().size(), px);
    QTEST(QSizeF(double(icon.mmWidth()), double(icon.mmHeight())), "held_mm");
    const QImage image = icon.toPixmap().toImage();
    QCOMPARE(image.pixelColor(1, px.height() - 2), QColor(Qt::red));
    QCOMPARE(image.pixelColor(px.width() - 2, 1), QColor(Qt::blue));
    QCOMPARE(messages.lines(), QStringList());
}

void TestCachedVectorIcon::rendersAtTheSizeInPx()
{
    CachedVectorIcon icon(m_svg, QSize(100, 80));
    QCOMPARE(icon.toPixmap().size(), QSize(100, 80));
    QCOMPARE(QSizeF(double(icon.mmWidth()), double(icon.mmHeight())), QSizeF(20, 4));
}

void TestCachedVectorIcon::isNullWithoutASize()
{
    const Messages messages;
    CachedVectorIcon fresh;
    QVERIFY(fresh.toPixmap().isNull());
    CachedVectorIcon unsized(m_svg);
    unsized.updateSizeCalculations();
    QVERIFY(unsized.toPixmap().isNull());
    CachedVectorIcon flat(m_png, QSizeF(0, 0));
    QVERIFY(flat.toPixmap().isNull() && flat.isNull());
    QCOMPARE(messages.lines(), QStringList());
}

void TestCachedVectorIcon::wrongSizesThrowAndChangeNothing_data()
{
    const double nan = qQNaN();
    const QString width = QStringLiteral("Negative width is impossible!");
    const QString height = QStringLiteral("Negative height is impossible!");
    const QString both = QStringLiteral("Negative measurements are impossible!");
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("what");
    const auto row = [](const char *name, const Change &change, const QString &what) {
        QTest::newRow(name) << change << what;
    };
    row(
        "width", [](auto &icon) { icon.setMmWidth(-0.5f); }, width);
    row(
        "width NaN", [nan](auto &icon) { icon.setMmWidth(float(nan)); }, width);
    row(
        "height", [](auto &icon) { icon.setMmHeight(-0.5f); }, height);
    row(
        "height NaN", [nan](auto &icon) { icon.setMmHeight(float(nan)); }, height);
    row(
        "size, width", [](auto &icon) { icon.setMmSize(QSizeF(-1, 4)); }, both);
    row(
        "size, height", [](auto &icon) { icon.setMmSize(QSizeF(4, -1)); }, both);
    row(
        "size NaN", [nan](auto &icon) { icon.setMmSize(QSizeF(4, nan)); }, both);
    row(
        "px, width", [](auto &icon) { icon.setPxSize(QSize(-1, 4)); }, both);
    row(
        "px, height", [](auto &icon) { icon.setPxSize(QSize(4, -1)); }, both);
}

void TestCachedVectorIcon::wrongSizesThrowAndChangeNothing()
{
    QFETCH(Change, change);
    CachedVectorIcon icon(m_svg, QSizeF(10, 5));
    const qint64 key = icon.cacheKey();
    QString what;
    try {
        change(icon);
    } catch (const std::out_of_range &error) {
        what = QString::fromLatin1(error.what());
    }
    QTEST(what, "what");
    QVERIFY(!icon.mustRelayout());
    QCOMPARE(icon.cacheKey(), key);
    QCOMPARE(QSizeF(double(icon.mmWidth()), double(icon.mmHeight())), QSizeF(10, 5));
    QCOMPARE(QSizeF(icon.pxWidth(), icon.pxHeight()), QSizeF(50, 100));
}

void TestCachedVectorIcon::rendersOnlyWhatChanged_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<bool>("renders");
    QTest::addColumn<QSizeF>("held_mm");
    const auto row = [](const char *name, const Change &change, bool renders, const QSizeF &mm) {
        QTest::newRow(name) << change << renders << mm;
    };
    const QString file = m_svg;
    const QSizeF held(10, 5);
    row(
        "held width", [](auto &icon) { icon.setMmWidth(10); }, false, held);
    row(
        "held height", [](auto &icon) { icon.setMmHeight(5); }, false, held);
    row(
        "held size", [](auto &icon) { icon.setMmSize(QSizeF(10, 5)); }, false, held);
    row(
        "held px", [](auto &icon) { icon.setPxSize(QSize(50, 100)); }, false, held);
    row(
        "file", [file](auto &icon) { icon.setFilenameOfImageToCache(file); }, false, held);
    const auto with_file
        = [file](auto &icon) { icon.setFilenameOfImageToCache(file, QSizeF(10, 5)); };
    row("file, held size", with_file, false, held);
    row(
        "width 0", [](auto &icon) { icon.setMmWidth(0); }, false, QSizeF(0, 5));
    row(
        "height 0", [](auto &icon) { icon.setMmHeight(0); }, false, QSizeF(10, 0));
    row(
        "width", [](auto &icon) { icon.setMmWidth(4); }, true, QSizeF(4, 5));
    row(
        "height", [](auto &icon) { icon.setMmHeight(4); }, true, QSizeF(10, 4));
    row(
        "size", [](auto &icon) { icon.setMmSize(QSizeF(10, 4)); }, true, QSizeF(10, 4));
    row(
        "px", [](auto &icon) { icon.setPxSize(QSize(50, 80)); }, true, QSizeF(10, 4));
}

void TestCachedVectorIcon::rendersOnlyWhatChanged()
{
    QFETCH(Change, change);
    QFETCH(bool, renders);
    CachedVectorIcon icon(m_svg, QSizeF(10, 5));
    const qint64 key = icon.cacheKey();
    change(icon);
    QCOMPARE(icon.cacheKey() != key, renders);
    QCOMPARE(icon.mustRelayout(), !renders);
    QTEST(QSizeF(double(icon.mmWidth()), double(icon.mmHeight())), "held_mm");
}

void TestCachedVectorIcon::derivedWidthStaysWhenTheHeightChanges()
{
    CachedVectorIcon icon(m_svg);
    icon.setMmHeight(5);
    QCOMPARE(icon.toPixmap().size(), QSize(50, 100));
    icon.setMmHeight(10);
    QCOMPARE(icon.toPixmap().size(), QSize(50, 200));
}

void TestCachedVectorIcon::showsTheNewFileAtTheSameSize()
{
    CachedVectorIcon icon(m_svg, QSizeF(10, 5));
    icon.setFilenameOfImageToCache(
        write(QStringLiteral("green.svg"), svgOfTwoHalves("lime", "lime")));
    icon.updateSizeCalculations();
    QCOMPARE(icon.toPixmap().toImage().pixelColor(1, 1), QColor(Qt::green));
    QCOMPARE(icon.availableSizes(), QList<QSize>({ QSize(50, 100) }));
}

void TestCachedVectorIcon::unreadableFileKeepsTheRendering()
{
    CachedVectorIcon icon(m_svg, QSizeF(10, 5));
    const Messages messages;
    icon.setFilenameOfImageToCache(m_dir.filePath(QStringLiteral("none.svg")));
    icon.updateSizeCalculations();
    const QStringList expected = { QStringLiteral("debug hoxq.CVI: SVG renderer invalid."),
        QStringLiteral("debug hoxq.CVI: Invalid pixmap") };
    QCOMPARE(messages.lines(), expected);
    QVERIFY(icon.mustRelayout());
    QCOMPARE(icon.toPixmap().toImage().pixelColor(1, 1), QColor(Qt::red));
}

void TestCachedVectorIcon::imageInAnSvgNameIsReadAsBitmap()
{
    QFile::copy(m_png, m_dir.filePath(QStringLiteral("bitmap.svg")));
    const Messages messages;
    CachedVectorIcon icon(m_dir.filePath(QStringLiteral("bitmap.svg")), QSizeF(10, 5));
    QCOMPARE(
        messages.lines(), QStringList(QStringLiteral("debug hoxq.CVI: SVG renderer invalid.")));
    QCOMPARE(icon.toPixmap().size(), QSize(50, 100));
}

void TestCachedVectorIcon::newScaleIsUsedOnlyWhenLaidOutAgain()
{
    CachedVectorIcon vector(m_svg, QSizeF(10, 5));
    CachedVectorIcon bitmap(m_png, QSizeF(10, 5));
    const PanelScale scale(10, 30);
    vector.updateSizeCalculations();
    QCOMPARE(vector.toPixmap().size(), QSize(50, 100));
    vector.setMmSize(QSizeF(10, 5));
    vector.updateSizeCalculations();
    QCOMPARE(vector.toPixmap().size(), QSize(100, 150));

    QCOMPARE(bitmap.toPixmap().size(), QSize(50, 100));
    bitmap.updateSizeCalculations();
    QCOMPARE(bitmap.toPixmap().size(), QSize(100, 150));
}

void TestCachedVectorIcon::subclassCanKeepThePx()
{
    PinnedIcon icon;
    icon.setFilenameOfImageToCache(m_svg);
    icon.setMmSize(QSizeF(10, 5));
    QCOMPARE(QSizeF(icon.pxWidth(), icon.pxHeight()), QSizeF(-1, -1));
    icon.setPxSize(QSize(30, 7));
    QCOMPARE(icon.toPixmap().size(), QSize(30, 7));
}

void TestCachedVectorIcon::copySharesRenderingsAndIsLaidOutAgain()
{
    const QString file = write(QStringLiteral("passing.svg"), svgOfTwoHalves("red", "blue"));
    CachedVectorIcon icon(file, QSizeF(10, 5));
    {
        const PanelScale scale(10, 30);
        CachedVectorIcon copy(icon);
        QCOMPARE(copy.toPixmap().size(), QSize(100, 150));
        QVERIFY(copy.availableSizes().contains(QSize(50, 100)));
        QCOMPARE(icon.availableSizes(), QList<QSize>({ QSize(50, 100) }));
    }
    QFile::remove(file);
    const Messages messages;
    CachedVectorIcon late(icon);
    QCOMPARE(late.toPixmap().cacheKey(), icon.toPixmap().cacheKey());
    QVERIFY(late.mustRelayout() && !icon.mustRelayout());
}

void TestCachedVectorIcon::assignmentTakesFileAndSizeOnly()
{
    CachedVectorIcon icon(m_svg, QSizeF(10, 5));
    icon.setMmSize(QSizeF(4, 4));
    CachedVectorIcon target(m_png, QSizeF(2, 2));
    target = icon;
    QCOMPARE(target.filename(), m_svg);
    QCOMPARE(target.toPixmap().size(), QSize(20, 80));
    QVERIFY(!target.availableSizes().contains(QSize(50, 100)));
    QVERIFY(target.availableSizes().contains(QSize(10, 40)));

    const qint64 key = target.cacheKey();
    const CachedVectorIcon &itself = target;
    target = itself;
    QCOMPARE(target.cacheKey(), key);
    QVERIFY(!target.mustRelayout());
}

void TestCachedVectorIcon::iconsOfOneFileAndSizeShareTheRendering()
{
    for (const QString &file : { m_svg, QStringLiteral(":/cb_checked") }) {
        CachedVectorIcon first(file, QSizeF(10, 5));
        CachedVectorIcon second(file, QSize(50, 100));
        CachedVectorIcon third(file, QSizeF(10, 4));
        QCOMPARE(second.toPixmap().cacheKey(), first.toPixmap().cacheKey());
        QVERIFY(third.toPixmap().cacheKey() != first.toPixmap().cacheKey());
    }
}

void TestCachedVectorIcon::changedFileIsRenderedAnew_data()
{
    QTest::addColumn<int>("age_s"); // of the first version
    QTest::newRow("long after") << 3600;
    QTest::newRow("at once, same size and time") << 0;
}

void TestCachedVectorIcon::changedFileIsRenderedAnew()
{
    QFETCH(int, age_s);
    const QString file
        = write(QStringLiteral("changing.svg"), svgOfTwoHalves("#ff0000", "blue"), age_s);
    CachedVectorIcon before(file, QSizeF(10, 5));
    QCOMPARE(before.toPixmap().toImage().pixelColor(1, 1), QColor(Qt::red));
    write(QStringLiteral("changing.svg"), svgOfTwoHalves("#00ff00", "blue"), 0);
    CachedVectorIcon after(file, QSizeF(10, 5));
    QCOMPARE(after.toPixmap().toImage().pixelColor(1, 1), QColor(Qt::green));
}

void TestCachedVectorIcon::bitmapsAreScaledSmoothly()
{
    QImage stripes(40, 20, QImage::Format_RGB32);
    for (int x = 0; x < 40; ++x) {
        for (int y = 0; y < 20; ++y)
            stripes.setPixelColor(x, y, x % 2 ? Qt::white : Qt::black);
    }
    CachedVectorIcon icon(write(QStringLiteral("stripes.png"), stripes), QSize(20, 20));
    const QImage image = icon.toPixmap().toImage();
    for (int x = 2; x < 18; ++x)
        QVERIFY(qAbs(image.pixelColor(x, 10).red() - 127) <= 2);
}

void TestCachedVectorIcon::vectorsStayCrisp_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("without suffix") << QStringLiteral(":/VexoIconGeneralEnter");
    QFile source(QStringLiteral(":/VexoIconGeneralEnter"));
    QVERIFY(source.open(QIODevice::ReadOnly));
    const QByteArray svg = source.readAll();
    QTest::newRow("with suffix") << write(QStringLiteral("enter.svg"), svg);
    QTest::newRow("in a bitmap name") << write(QStringLiteral("enter.png"), svg);
}

void TestCachedVectorIcon::vectorsStayCrisp()
{
    QFETCH(QString, file);
    const PanelScale scale(20, 20);
    CachedVectorIcon icon(file, QSizeF(0, 22));
    const QImage image = icon.toPixmap().toImage();
    QCOMPARE(image.size(), QSize(440, 440));
    // The key's vertical stroke lies between 38 and 41 of 44 units: no grey edge at ten times that.
    for (const int x : { 378, 411 })
        QCOMPARE(image.pixelColor(x, 150).alpha(), 0);
    for (const int x : { 381, 408 })
        QCOMPARE(image.pixelColor(x, 150), QColor(60, 60, 60));
}

QTEST_MAIN(TestCachedVectorIcon)
#include "tst_cachedvectoricon.moc"
