// SPDX-License-Identifier: MIT
#include "support/iconfiles.h"
#include "support/panelscale.h"
#include "support/testcase.h"

#include <CachedVectorIcon>

#include <QDir>
#include <QProcess>
#include <QResource>

#include <stdexcept>

using vexo::hox::qt::ui::CachedVectorIcon;

namespace {

/// Never lets the px be derived from the mm.
class PinnedIcon : public CachedVectorIcon // clazy:exclude=copyable-polymorphic
{
public:
    using CachedVectorIcon::CachedVectorIcon;
    bool mustRelayout() override { return false; }
};

/// 40 x 20, the right half blue.
QByteArray svgOfTwoHalves(const QByteArray &left)
{
    return "<svg xmlns='http://www.w3.org/2000/svg' width='40' height='20' viewBox='0 0 40 20'>"
           "<path d='M0 0H20V20H0z' fill='"
        + left + "'/><path d='M20 0H40V20H20z' fill='blue'/></svg>";
}

/// The exception's text when there is one.
QString change(CachedVectorIcon *icon, const QString &by, const QSizeF &size)
{
    try {
        if (by == "width")
            icon->setMmWidth(float(size.width()));
        else if (by == "height")
            icon->setMmHeight(float(size.height()));
        else if (by == "px")
            icon->setPxSize(size.toSize());
        else if (by == "file")
            icon->setFilenameOfImageToCache(icon->filename(), size);
        else
            icon->setMmSize(size);
    } catch (const std::out_of_range &error) {
        return QString::fromLatin1(error.what());
    }
    return QString();
}

QSizeF mmOf(const CachedVectorIcon &icon)
{
    return QSizeF(double(icon.mmWidth()), double(icon.mmHeight()));
}

QColor leftOf(CachedVectorIcon *icon)
{
    return icon->toPixmap().toImage().pixelColor(1, 1);
}

} // namespace

class TestCachedVectorIcon : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void rendersAtItsSize_data();
    void rendersAtItsSize();
    void rendersOnlyWhatChanged_data();
    void rendersOnlyWhatChanged();
    void derivedWidthStaysWhenTheHeightChanges();
    void newFileIsShownOnceItCanBeRead();
    void newScaleIsUsedOnlyWhenLaidOutAgain();
    void copySharesRenderingsAndIsLaidOutAgain();
    void assignmentTakesFileAndSizeOnly();
    void iconsOfOneFileAndSizeShareTheRendering();
    void changedFileIsRenderedAnew();
    void replacedBundleIsRenderedAnew();
    void findsWhatTheToolkitFinds_data();
    void findsWhatTheToolkitFinds();
    void bitmapKeepsItsProportions();
    void vectorsStayCrispUnderAnyName();

private:
    const PanelScale m_scale{ 5, 20 };
    IconFiles m_files;
    const QString m_svg = m_files.write("halves.svg", svgOfTwoHalves("red"), 3600);
    const QString m_png = m_files.path("halves.png");
};

void TestCachedVectorIcon::rendersAtItsSize_data()
{
    QImage halves(2, 1, QImage::Format_RGB32);
    halves.setPixelColor(0, 0, Qt::red);
    halves.setPixelColor(1, 0, Qt::blue);
    const QString png_as_svg = m_files.path("bitmap.svg");
    for (const QString &file : { m_png, png_as_svg })
        QVERIFY(halves.scaled(40, 20).save(file, "PNG"));
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("by"); // on a panel of 5 x 20 px/mm
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<QSize>("px");
    QTest::addColumn<QSizeF>("mm");
    QTest::newRow("svg") << m_svg << "mm" << QSizeF(8, 3) << QSize(40, 60) << QSizeF(8, 3);
    const QSizeF halves_of_px(1.5, 1.375);
    QTest::newRow("cut") << m_svg << "mm" << halves_of_px << QSize(7, 27) << halves_of_px;
    QTest::newRow("height") << m_svg << "mm" << QSizeF(0, 5) << QSize(50, 100) << QSizeF(10, 5);
    QTest::newRow("width") << m_svg << "mm" << QSizeF(10, 0) << QSize(50, 100) << QSizeF(10, 5);
    QTest::newRow("px") << m_svg << "px" << QSizeF(100, 80) << QSize(100, 80) << QSizeF(20, 4);
    QTest::newRow("png") << m_png << "mm" << QSizeF(8, 3) << QSize(40, 60) << QSizeF(8, 3);
    QTest::newRow("png height") << m_png << "mm" << QSizeF(0, 5) << QSize(50, 100) << QSizeF(0, 5);
    QTest::newRow("png, svg by name")
        << png_as_svg << "mm" << QSizeF(10, 0) << QSize(50, 100) << QSizeF(10, 0);
}

void TestCachedVectorIcon::rendersAtItsSize()
{
    QFETCH(QString, file);
    QFETCH(QString, by);
    QFETCH(QSizeF, size);
    QFETCH(QSize, px);
    CachedVectorIcon icon(file);
    change(&icon, by, size);
    QCOMPARE(icon.toPixmap().size(), px);
    QTEST(mmOf(icon), "mm");
    const QImage image = icon.toPixmap().toImage();
    QCOMPARE(image.pixelColor(1, px.height() - 2), QColor(Qt::red));
    QCOMPARE(image.pixelColor(px.width() - 2, 1), QColor(Qt::blue));
}

void TestCachedVectorIcon::rendersOnlyWhatChanged_data()
{
    const QSizeF held(10, 5); // and 50 x 100 px
    QTest::addColumn<QString>("by");
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<QString>("outcome");
    QTest::addColumn<QSizeF>("mm");
    const auto row = [](const char *name, const char *by, const QSizeF &size, const char *outcome,
                         const QSizeF &mm) {
        QTest::newRow(name) << QString(by) << size << QString(outcome) << mm;
    };
    row("width", "width", { 4, 0 }, "rendered", { 4, 5 });
    row("height", "height", { 0, 4 }, "rendered", { 10, 4 });
    row("mm", "mm", { 10, 4 }, "rendered", { 10, 4 });
    row("px", "px", { 50, 80 }, "rendered", { 10, 4 });
    for (const char *by : { "width", "height", "mm", "file" })
        row(qPrintable(QString("held ") + by), by, held, "waiting", held);
    row("held px", "px", { 50, 100 }, "waiting", held);
    row("width 0", "width", { 0, 0 }, "waiting", { 0, 5 });
    row("height 0", "height", { 0, 0 }, "waiting", { 10, 0 });
    row("-width", "width", { -0.5, 1 }, "Negative width is impossible!", held);
    row("NaN", "height", { 1, qQNaN() }, "Negative height is impossible!", held);
    const char *const both = "Negative measurements are impossible!";
    row("-mm, width", "mm", { -1, 4 }, both, held);
    row("-mm, height", "mm", { 4, qQNaN() }, both, held);
    row("-px, width", "px", { -1, 4 }, both, held);
    row("-px, height", "px", { 4, -1 }, both, held);
}

void TestCachedVectorIcon::rendersOnlyWhatChanged()
{
    QFETCH(QString, by);
    QFETCH(QSizeF, size);
    QFETCH(QString, outcome);
    CachedVectorIcon icon(m_svg, QSizeF(10, 5));
    const qint64 key = icon.cacheKey();
    const QString refusal = change(&icon, by, size);
    QCOMPARE(refusal, outcome.startsWith("Negative") ? outcome : QString());
    QCOMPARE(icon.mustRelayout(), outcome == "waiting");
    const bool is_rendered = outcome == "rendered";
    QCOMPARE(icon.cacheKey() != key, is_rendered);
    QCOMPARE(QSizeF(icon.pxWidth(), icon.pxHeight()) != QSizeF(50, 100), is_rendered);
    QTEST(mmOf(icon), "mm");
}

void TestCachedVectorIcon::derivedWidthStaysWhenTheHeightChanges()
{
    CachedVectorIcon icon(m_svg);
    icon.updateSizeCalculations();
    QVERIFY(icon.toPixmap().isNull()); // without a size
    icon.setMmHeight(5);
    QCOMPARE(icon.toPixmap().size(), QSize(50, 100));
    icon.setMmHeight(10);
    QCOMPARE(icon.toPixmap().size(), QSize(50, 200));
    PinnedIcon pinned;
    pinned.setFilenameOfImageToCache(m_svg);
    pinned.setMmSize(QSizeF(10, 5));
    QVERIFY(pinned.toPixmap().isNull());
    pinned.setPxSize(QSize(30, 7));
    QCOMPARE(pinned.toPixmap().size(), QSize(30, 7));
}

void TestCachedVectorIcon::newFileIsShownOnceItCanBeRead()
{
    CachedVectorIcon icon(m_svg, QSizeF(10, 5));
    icon.setFilenameOfImageToCache(m_files.path("late.svg"));
    icon.updateSizeCalculations();
    QVERIFY(icon.mustRelayout());
    QCOMPARE(leftOf(&icon), QColor(Qt::red));
    m_files.write("late.svg", svgOfTwoHalves("lime"));
    icon.updateSizeCalculations();
    QCOMPARE(leftOf(&icon), QColor(Qt::green));
    QCOMPARE(icon.availableSizes(), QList<QSize>({ QSize(50, 100) }));
}

void TestCachedVectorIcon::newScaleIsUsedOnlyWhenLaidOutAgain()
{
    CachedVectorIcon vector(m_svg, QSizeF(10, 5));
    CachedVectorIcon bitmap(m_png, QSizeF(10, 5));
    const PanelScale scale(10, 30);
    vector.updateSizeCalculations();
    QCOMPARE(vector.toPixmap().size(), QSize(50, 100));
    QCOMPARE(bitmap.toPixmap().size(), QSize(50, 100));
    vector.setMmSize(QSizeF(10, 5));
    for (CachedVectorIcon *icon : { &vector, &bitmap }) {
        icon->updateSizeCalculations();
        QCOMPARE(icon->toPixmap().size(), QSize(100, 150));
    }
}

void TestCachedVectorIcon::copySharesRenderingsAndIsLaidOutAgain()
{
    const QString file = m_files.write("passing.svg", svgOfTwoHalves("red"));
    CachedVectorIcon icon(file, QSizeF(10, 5));
    {
        const PanelScale scale(10, 30);
        CachedVectorIcon copy(icon);
        QCOMPARE(copy.toPixmap().size(), QSize(100, 150));
        QVERIFY(copy.availableSizes().contains(QSize(50, 100)));
        QCOMPARE(icon.availableSizes(), QList<QSize>({ QSize(50, 100) }));
    }
    QFile::remove(file);
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
}

void TestCachedVectorIcon::iconsOfOneFileAndSizeShareTheRendering()
{
    for (const QString &file : { m_svg, QString(":/cb_checked") }) {
        CachedVectorIcon first(file, QSizeF(10, 5));
        CachedVectorIcon second(file, QSize(50, 100));
        CachedVectorIcon third(file, QSizeF(10, 4));
        QCOMPARE(second.toPixmap().cacheKey(), first.toPixmap().cacheKey());
        QVERIFY(third.toPixmap().cacheKey() != first.toPixmap().cacheKey());
    }
}

void TestCachedVectorIcon::changedFileIsRenderedAnew()
{
    const QString name = "changing.svg";
    const QList<QPair<int, int>> ages_s{ { 3600, 0 }, { 0, 0 }, { 3600, 3600 } };
    for (const auto &ages : ages_s) { // of the two versions, which are of the same size
        const QString file = m_files.write(name, svgOfTwoHalves("#ff0000"), ages.first);
        CachedVectorIcon before(file, QSizeF(10, 5));
        QCOMPARE(leftOf(&before), QColor(Qt::red));
        const QDateTime time = QFileInfo(file).lastModified();
        m_files.write(name, svgOfTwoHalves("#00ff00"), ages.second);
        QFile copy(file); // as a copy that keeps the time stamp
        if (ages.second != 0)
            QVERIFY(copy.open(QIODevice::ReadWrite)
                && copy.setFileTime(time, QFileDevice::FileModificationTime));
        CachedVectorIcon after(file, QSizeF(10, 5));
        QCOMPARE(leftOf(&after), QColor(Qt::green));
    }
}

/// Day and night, both of the same size and at the same address.
void TestCachedVectorIcon::replacedBundleIsRenderedAnew()
{
    const QByteArray list = "<RCC><qresource><file>look.svg</file></qresource></RCC>";
    const QString qrc = m_files.write("look.qrc", list);
    QByteArray bundle(10000, '\0');
    for (const char *color : { "#ff0000", "#00ff00" }) {
        m_files.write("look.svg", svgOfTwoHalves(color));
        QProcess rcc;
        rcc.start(QStringLiteral(HOXQ_RCC), { "--binary", "--no-compress", qrc });
        QVERIFY(rcc.waitForFinished());
        const QByteArray bytes = rcc.readAllStandardOutput();
        QVERIFY(bytes.startsWith("qres") && bytes.size() < bundle.size());
        bundle.replace(0, bytes.size(), bytes);
        const auto *address = reinterpret_cast<const uchar *>(bundle.constData());
        QVERIFY(QResource::registerResource(address));
        CachedVectorIcon icon(":/look.svg", QSizeF(10, 5));
        QCOMPARE(leftOf(&icon), QColor(QLatin1String(color)));
        QVERIFY(QResource::unregisterResource(address));
    }
}

void TestCachedVectorIcon::findsWhatTheToolkitFinds_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("svg in a search path") << "theme:halves.svg";
    QTest::newRow("bitmap in a search path") << "theme:stem.png";
    QTest::newRow("resource in a search path") << "theme:cb_checked";
    QTest::newRow("bitmap without suffix") << m_files.path("stem");
    QTest::newRow("both") << "theme:stem";
    QTest::newRow("vector without suffix") << m_files.path("halves");
    QTest::newRow("resource without slash") << ":cb_checked";
}

void TestCachedVectorIcon::findsWhatTheToolkitFinds()
{
    QFETCH(QString, file);
    QVERIFY(QImage(4, 2, QImage::Format_RGB32).save(m_files.path("stem.png")));
    QDir::setSearchPaths("theme", { m_files.path(QString()), ":/" });
    QVERIFY(!QPixmap(file).isNull());
    QCOMPARE(CachedVectorIcon(file, QSizeF(10, 5)).toPixmap().size(), QSize(50, 100));
    QDir::setSearchPaths("theme", {});
}

/// Divided by the inverse, 7 x 7 px would come out a pixel short.
void TestCachedVectorIcon::bitmapKeepsItsProportions()
{
    const PanelScale scale(10, 10);
    const QString file = m_files.path("proportions.png");
    for (const QSize &natural : { QSize(40, 20), QSize(3, 21), QSize(30, 44), QSize(49, 7) }) {
        QVERIFY(QImage(natural, QImage::Format_RGB32).save(file));
        for (int width = 1; width < 200; ++width) {
            CachedVectorIcon icon(file);
            icon.setMmWidth(float(width) / 10);
            const float whole
                = float(double(width) * double(float(natural.height()) / float(natural.width())));
            QCOMPARE(int(icon.pxHeight()), int(whole));
        }
    }
}

void TestCachedVectorIcon::vectorsStayCrispUnderAnyName()
{
    const PanelScale scale(20, 20);
    const QString enter = ":/VexoIconGeneralEnter";
    for (const char *suffix : { "", ".svg", ".png" }) {
        const QString file = m_files.path("enter" + QLatin1String(suffix));
        QVERIFY(QFile::copy(enter, file));
        const QImage image = CachedVectorIcon(file, QSizeF(0, 22)).toPixmap().toImage();
        QCOMPARE(image.size(), QSize(440, 440));
        // The key's stroke lies between 38 and 41 of 44 units: no grey edge at ten times that.
        for (const int x : { 378, 411 })
            QCOMPARE(image.pixelColor(x, 150).alpha(), 0);
        for (const int x : { 381, 408 })
            QCOMPARE(image.pixelColor(x, 150), QColor(60, 60, 60));
    }
}

QTEST_MAIN(TestCachedVectorIcon)
#include "tst_cachedvectoricon.moc"
