// SPDX-License-Identifier: MIT
#include "support/panelscale.h"
#include "support/testcase.h"

#include <MmStylesheet>
#include <Panel>
#include <PanelTranslations>
#include <ScaleDisplayWidget>
#include <ScalingInfo>
#include <TapDistance>
#include <VexoCheckBox>
#include <VexoColors>
#include <VexoSlider>
#include <VexoSliderDecoration>

#include <QScreen>
#include <QStackedWidget>
#include <QStyleFactory>
#include <QStyleOptionSlider>
#include <QTemporaryDir>
#include <qpa/qwindowsysteminterface.h>

#include <cmath>
#include <stdexcept>

using namespace vexo::hox::qt::panel;
using namespace vexo::hox::qt::ui;

namespace {

const QColor FILLED(0xb4, 0xc8, 0x00);
const QColor EMPTY(0xc8, 0xc8, 0xc8);

PanelOptions none()
{
    PanelOptions options;
    options.use_style = options.use_palette = options.use_fonts = options.use_translations = false;
    options.sheets.clear();
    options.tap_mm = 0;
    return options;
}

/// A stylesheet hides the style, but not what it takes from it.
bool isFusion()
{
    const std::unique_ptr<QStyle> fusion(QStyleFactory::create("fusion"));
    return QApplication::style()->standardPalette() == fusion->standardPalette();
}

/// What setUp() can change, but for the scale.
QByteArray looks()
{
    const QString sheet = qApp->styleSheet();
    const bool has_sheets = sheet.contains("VexoAlerMessageFrame")
        && sheet.indexOf("VexoAlerMessageFrame") < sheet.indexOf("VexoCenteredVectorButton")
        && sheet.indexOf("VexoCenteredVectorButton") < sheet.indexOf("QFrame:window");
    QByteArray found;
    found += isFusion() ? "style " : "";
    found += QApplication::palette() == MmStylesheet::palette(MmStylesheet::Day) ? "palette " : "";
    found += QApplication::font().weight() == QFont::Light ? "font " : "";
    found += has_sheets ? "sheets " : "";
    found += TapDistance::mm() == 5 ? "tap " : "";
    found += PanelTranslations::language() == "de" ? "texts " : "";
    return found;
}

/// The screen with other pixels, as long as it lives, and no scale yet.
class ScreenOf
{
public:
    explicit ScreenOf(const QSize &px)
        : m_scaling(std::move(ScalingInfo::instance))
    {
        setPixels(px);
    }

    ~ScreenOf()
    {
        setPixels(m_px);
        ScalingInfo::instance = std::move(m_scaling);
    }
    ScreenOf(const ScreenOf &) = delete;
    ScreenOf &operator=(const ScreenOf &) = delete;

private:
    static void setPixels(const QSize &px)
    {
        const QRect area(QPoint(), px);
        QWindowSystemInterface::handleScreenGeometryChange(
            QGuiApplication::primaryScreen(), area, area);
        QCoreApplication::processEvents();
    }

    const QSize m_px = QGuiApplication::primaryScreen()->size();
    std::unique_ptr<ScalingInfo> m_scaling;
};

/// A shown decoration with a slider from 0 to 10.
struct Scaled
{
    explicit Scaled(VexoSliderDecoration::SliderDecorationStyle style)
        : slider(new VexoSlider(
            style <= VexoSliderDecoration::HorizontalWithScale ? Qt::Horizontal : Qt::Vertical))
    {
        slider->setMaximum(10);
        auto *decoration = new VexoSliderDecoration(&window, style, slider);
        decoration->setScaleText({ "0", "1", "2" });
        window.setPalette(Qt::white);
        window.show();
        for (int round = 0; round < 2; ++round) { // a scale takes its length at its first paint
            decoration->resize(decoration->sizeHint());
            window.resize(decoration->size());
            window.grab();
            QCoreApplication::sendPostedEvents();
        }
    }

    bool isLevel() const { return slider->orientation() == Qt::Horizontal; }

    /// In the window, px.
    QRect handle(int value) const
    {
        slider->setValue(value);
        QStyleOptionSlider option;
        option.initFrom(slider);
        option.orientation = slider->orientation();
        option.maximum = 10;
        option.sliderPosition = value;
        option.upsideDown = !isLevel();
        if (isLevel())
            option.state |= QStyle::State_Horizontal;
        const QRect handle = slider->style()->subControlRect(
            QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, slider);
        return handle.translated(slider->mapTo(&window, QPoint()));
    }

    /// The marks of the scale along the window, px.
    QVector<int> marks()
    {
        const auto *scale = window.findChild<ScaleDisplayWidget *>();
        const QRect area(scale->mapTo(&window, QPoint()), scale->size());
        const ScalingInfo &scaling = *ScalingInfo::inst();
        const QImage image = window.grab().toImage();
        const auto isDrawn = [&](int along) { // in the middle of the marks, 5 mm off
            const QPoint at = isLevel() ? QPoint(along, area.top() + int(scaling.mm2px_X(5)))
                                        : QPoint(area.left() + int(scaling.mm2px_Y(5)), along);
            return image.pixelColor(at) != QColor(Qt::white);
        };
        QVector<int> found;
        for (int i = 1; i < (isLevel() ? image.width() : image.height()); ++i) {
            if (isDrawn(i - 1) && isDrawn(i)) // antialiased around its place
                found += i;
        }
        return found;
    }

    QWidget window;
    VexoSlider *slider;
};

} // namespace

Q_DECLARE_METATYPE(PanelOptions)

class TestPanel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void doesWhatItIsAskedFor_data();
    void doesWhatItIsAskedFor();
    void takesTheGivenSize();
    void refusesSizesThatAreNone();
    void namesAnUnlikelyScale_data();
    void namesAnUnlikelyScale();
    void givenScaleIsNotExamined();
    void sheetsFollowTheScale();
    void faultySheetsAreNamedAndTheOthersApply();
    void framesThatAreWindowsHaveAGround();
    void handleStandsAtItsMark_data();
    void handleStandsAtItsMark();
    void slidersAreFilledFromTheirMinimum_data();
    void slidersAreFilledFromTheirMinimum();
    void indicatorsHaveTheirSize();

private:
    QString written(const char *name, const QByteArray &rules) const;

    const QTemporaryDir m_dir;
    const QFont m_font = QApplication::font();
};

void TestPanel::cleanup()
{
    Panel::setUp(*qApp, none());
    qApp->setStyleSheet(QString());
    QApplication::setStyle("windows");
    QApplication::setPalette(QPalette());
    QApplication::setFont(m_font);
    PanelTranslations::setLocale(QLocale(QLocale::English));
    QApplication::setLayoutDirection(Qt::LeftToRight);
    TestCase::cleanup();
}

void TestPanel::doesWhatItIsAskedFor_data()
{
    QTest::addColumn<PanelOptions>("options");
    QTest::addColumn<QByteArray>("expected");
    const auto row = [](const char *name, const QByteArray &expected, auto change) {
        PanelOptions options;
        change(options);
        QTest::newRow(name) << options << expected;
    };
    using Options = PanelOptions;
    row("all", "style palette font sheets tap texts ", [](Options &) {});
    row("no style", "palette font sheets tap texts ", [](Options &o) { o.use_style = false; });
    row("no palette", "style font sheets tap texts ", [](Options &o) { o.use_palette = false; });
    row("no fonts", "style palette sheets tap texts ", [](Options &o) { o.use_fonts = false; });
    row("no sheets", "style palette font tap texts ", [](Options &o) { o.sheets.clear(); });
    row("no distance", "style palette font sheets texts ", [](Options &o) { o.tap_mm = -1; });
    row("no texts", "style palette font sheets tap ",
        [](Options &o) { o.use_translations = false; });
    row("nothing", "", [](Options &o) { o = none(); });
}

void TestPanel::doesWhatItIsAskedFor()
{
    QFETCH(PanelOptions, options);
    QFETCH(QByteArray, expected);
    QApplication::setStyle("windows");
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    Panel::setUp(*qApp, options);
    QLocale::setDefault(before);
    QCOMPARE(looks(), expected);
}

void TestPanel::takesTheGivenSize()
{
    const PanelScale keep(4, 4);
    ScalingInfo *const before = ScalingInfo::inst();
    PanelOptions options = none();
    options.px = QSize(1280, 800);
    options.mm = QSizeF(160, 50);
    options.use_fonts = true;
    Panel::setUp(*qApp, options);
    QCOMPARE(ScalingInfo::inst(), before); // widgets keep its address
    QCOMPARE(before->mm2px(QSizeF(1, 1)), QSizeF(8, 16));
    QCOMPARE(QApplication::font().pixelSize(), 39); // 7 pt
    QCOMPARE(QApplication::font().stretch(), 200);
    options.px.reset(); // those of the screen
    Panel::setUp(*qApp, options);
    QCOMPARE(before->m_pixels, QGuiApplication::primaryScreen()->size());
}

void TestPanel::refusesSizesThatAreNone()
{
    const PanelScale scale(10, 20);
    const QByteArray before = looks();
    const QSize pixels = ScalingInfo::inst()->m_pixels;
    for (const QSizeF &mm : { QSizeF(10, 0), QSizeF(qQNaN(), 10) }) {
        PanelOptions options;
        options.px = QSize(100, 100);
        options.mm = mm;
        QVERIFY_EXCEPTION_THROWN(Panel::setUp(*qApp, options), std::range_error);
        QCOMPARE(looks(), before);
        QCOMPARE(ScalingInfo::inst()->m_pixels, pixels);
        QCOMPARE(ScalingInfo::inst()->mm2px(QSizeF(1, 1)), QSizeF(10, 20));
    }
}

void TestPanel::namesAnUnlikelyScale_data()
{
    QTest::addColumn<QSize>("px"); // on 203.2 x 152.4 mm
    QTest::addColumn<QString>("figures");
    QTest::newRow("likely") << QSize(2032, 1585) << QString();
    QTest::newRow("made up, and may be right") << QSize(800, 600) << QString();
    QTest::newRow("coarse") << QSize(203, 152) << "203.2 x 152.4 mm, 0.999 x 0.997 px/mm";
    QTest::newRow("fine") << QSize(5283, 3962) << "26 x 26 px/mm";
    QTest::newRow("not square") << QSize(2032, 1829) << "10 x 12 px/mm";
}

void TestPanel::namesAnUnlikelyScale()
{
    QFETCH(QSize, px);
    QFETCH(QString, figures);
    const ScreenOf screen(px);
    const Messages messages;
    Panel::setUp(*qApp, none());
    QCOMPARE(ScalingInfo::inst()->m_pixels, px); // all the same
    QCOMPARE(messages.lines().size(), figures.isEmpty() ? 0 : 1);
    const QString line = messages.lines().value(0);
    QVERIFY2(line.contains(figures), qPrintable(line));
    QCOMPARE(line.count("PanelOptions::mm"), messages.lines().size()); // what mends it
}

void TestPanel::givenScaleIsNotExamined()
{
    const PanelScale scale(1, 1);
    Panel::setUp(*qApp, none()); // no warning: the screen does not tell this
    PanelOptions options = none();
    options.px = QSize(100, 100);
    options.mm = QSizeF(100, 100);
    Panel::setUp(*qApp, options);
}

QString TestPanel::written(const char *name, const QByteArray &rules) const
{
    QFile file(m_dir.filePath(name));
    file.open(QIODevice::WriteOnly);
    file.write(rules);
    return file.fileName();
}

void TestPanel::sheetsFollowTheScale()
{
    const PanelScale scale(10, 10);
    PanelOptions options = none();
    options.sheets = QStringList(written("1.qs", "A { width: 1mm }"));
    Panel::setUp(*qApp, options);
    options.sheets = QStringList(written("2.qs", "A { width: 2mm }")); // in its place
    Panel::setUp(*qApp, options);
    Panel::setUp(*qApp, none()); // leaves them alone
    QCOMPARE(qApp->styleSheet().simplified(), "A { width: 20px; }");
    QCOMPARE(qApp->findChildren<MmStylesheet *>().size(), 1);
    {
        const PanelScale another(7, 10);
        QTRY_COMPARE(qApp->styleSheet().simplified(), "A { width: 14px; }");
    }
    QTRY_COMPARE(qApp->styleSheet().simplified(), "A { width: 20px; }");
}

void TestPanel::faultySheetsAreNamedAndTheOthersApply()
{
    PanelOptions options = none();
    options.sheets = QStringList{ "none.qs", m_dir.path(), written("open.qs", "A { color: red\n"),
        written("good.qs", "QLabel { color: blue }") };
    {
        const Messages messages;
        Panel::setUp(*qApp, options);
        QCOMPARE(messages.lines().size(), 3);
        QVERIFY(messages.lines().at(0).contains("none.qs: does not exist"));
        QVERIFY(messages.lines().at(1).contains(m_dir.path()));
        QVERIFY(messages.lines().at(2).contains("open.qs:1: the rule of 'A' has no }"));
    }
    QCOMPARE(qApp->styleSheet().simplified(), "QLabel { color: blue; }");
    QLabel label;
    label.ensurePolished(); // the toolkit has nothing to complain about
    QCOMPARE(label.palette().color(QPalette::WindowText), QColor(Qt::blue));
}

// The panel's sheet makes every frame transparent, and what lies behind a window is black.
void TestPanel::framesThatAreWindowsHaveAGround()
{
    Panel::setUp(*qApp);
    QStackedWidget window;
    auto *child = new QFrame(&window);
    QCOMPARE(window.grab().toImage().pixelColor(1, 1), VexoColors::C0);
    QCOMPARE(child->palette().color(QPalette::WindowText), VexoColors::C3);
    QImage behind(child->size(), QImage::Format_ARGB32_Premultiplied);
    behind.fill(Qt::magenta);
    child->render(&behind, QPoint(), QRegion(), QWidget::DrawChildren);
    QCOMPARE(behind.pixelColor(1, 1), QColor(Qt::magenta));
}

void TestPanel::handleStandsAtItsMark_data()
{
    QTest::addColumn<bool>("is_level");
    QTest::addColumn<QSizeF>("px_per_mm");
    for (const bool is_level : { true, false }) {
        for (const double density : { 4.0, 5.0, 7.3, 8.0, 11.0, 12.5, 20.0 }) {
            const QSizeF px_per_mm(density, density == 5 ? (is_level ? 8 : 3) : density);
            QTest::addRow("%s, %g px/mm", is_level ? "level" : "upright", density)
                << is_level << px_per_mm;
        }
    }
}

void TestPanel::handleStandsAtItsMark()
{
    QFETCH(bool, is_level);
    QFETCH(QSizeF, px_per_mm);
    const PanelScale scale(px_per_mm.width(), px_per_mm.height());
    PanelOptions options = none();
    options.sheets = QStringList(":/sheets/controls.qs");
    Panel::setUp(*qApp, options);
    Scaled scaled(is_level ? VexoSliderDecoration::HorizontalWithScale
                           : VexoSliderDecoration::VerticalWithScale);
    const QVector<int> marks = scaled.marks();
    QCOMPARE(marks.size(), 3);
    for (int i = 0; i < 3; ++i) {
        const QRect handle = scaled.handle(is_level ? 5 * i : 10 - 5 * i);
        const QPointF middle = QRectF(handle).center();
        QVERIFY(std::abs((is_level ? middle.x() : middle.y()) - marks.at(i)) <= 1);
        QVERIFY(scaled.window.rect().contains(handle)); // and none of it is cut off
    }
}

void TestPanel::slidersAreFilledFromTheirMinimum_data()
{
    using Decoration = VexoSliderDecoration;
    QTest::addColumn<int>("style");
    QTest::addColumn<bool>("is_mirrored");
    QTest::newRow("level") << int(Decoration::HorizontalWithoutScale) << false;
    QTest::newRow("level with scale") << int(Decoration::HorizontalWithScale) << false;
    QTest::newRow("upright") << int(Decoration::VerticalWithoutScale) << false;
    QTest::newRow("from right to left") << int(Decoration::HorizontalWithoutScale) << true;
    QTest::newRow("from right to left with scale") << int(Decoration::HorizontalWithScale) << true;
}

void TestPanel::slidersAreFilledFromTheirMinimum()
{
    QFETCH(int, style);
    QFETCH(bool, is_mirrored);
    const PanelScale scale(5, 6);
    QApplication::setLayoutDirection(is_mirrored ? Qt::RightToLeft : Qt::LeftToRight);
    Panel::setUp(*qApp); // against the rules of the panel's sheet
    Scaled scaled{ VexoSliderDecoration::SliderDecorationStyle(style) };
    const bool is_level = scaled.isLevel();
    scaled.slider->setValue(4);
    const QPoint middle = scaled.slider->rect().center();
    const QImage image = scaled.slider->grab().toImage();
    const auto colorAt = [&](int along) {
        return image.pixelColor(is_level ? QPoint(along, middle.y()) : QPoint(middle.x(), along));
    };
    const int length = is_level ? image.width() : image.height();
    const bool is_low_first = is_level && !is_mirrored;
    QCOMPARE(colorAt(length / 8), is_low_first ? FILLED : EMPTY);
    QCOMPARE(colorAt(length * 7 / 8), is_low_first ? EMPTY : FILLED);
    scaled.slider->setEnabled(false);
    QVERIFY(scaled.slider->grab().toImage().pixelColor(middle) != FILLED);
}

void TestPanel::indicatorsHaveTheirSize()
{
    const PanelScale scale(20, 10);
    Panel::setUp(*qApp);
    VexoCheckBox box;
    box.setChecked(true);
    box.ensurePolished();
    QCOMPARE(box.style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, &box), 142);
    QCOMPARE(box.style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, &box), 40);
    box.resize(box.sizeHint());
    const QImage image = box.grab().toImage(); // not only 44 px of its 78 x 44
    QVERIFY(image.pixelColor(70, box.height() / 2 - 15) == VexoColors::C3);
    QVERIFY(image.pixelColor(70, box.height() / 2 + 15) == VexoColors::C3);
}

QTEST_MAIN(TestPanel)
#include "tst_panel.moc"
