// SPDX-License-Identifier: MIT
#include "support/iconfiles.h"
#include "support/paintcounter.h"
#include "support/panelscale.h"
#include "support/testcase.h"

#include <ScaleDisplayWidget>
#include <VexoSlider>
#include <VexoSliderDecoration>

#include <QGridLayout>

#include <stdexcept>

using namespace vexo::hox::qt::ui;

namespace {

using Deco = VexoSliderDecoration;

/// A decoration with everything, shown on a panel of 10 x 20 px/mm that is 50 mm high.
struct Shown
{
    explicit Shown(int style)
        : deco(&window, Deco::SliderDecorationStyle(style), slider)
    {
        deco.setScaleText({ "0", "9" });
        deco.setMinImage(files.svg(Qt::red), 3, 3);
        deco.setMaxImage(files.svg(Qt::blue), 4, 2);
        window.resize(1000, 1000);
        window.show();
        settle();
    }
    void settle()
    {
        PaintCounter().take(nullptr);
        deco.resize(deco.sizeHint());
        PaintCounter().take(nullptr);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    /// Row and column of what \a widget is in, as "12 "; "- " when there is none.
    QByteArray cellOf(QWidget *widget) const
    {
        auto *grid = static_cast<QGridLayout *>(deco.layout());
        while (widget && grid->indexOf(widget) < 0)
            widget = widget->parentWidget();
        int cell[4];
        if (widget)
            grid->getItemPosition(grid->indexOf(widget), &cell[0], &cell[1], &cell[2], &cell[3]);
        return widget ? QByteArray::number(10 * cell[0] + cell[1]) + ' ' : "- ";
    }
    QLabel *label(const char *part) const
    {
        const QString name = "vexoSliderDecoration%1Label";
        return deco.findChild<QLabel *>(name.arg(QLatin1String(part)));
    }
    QSize minImage() const { return label("MinIcon")->pixmap(Qt::ReturnByValue).size(); }

    const PanelScale scale{ 10, 20 };
    const IconFiles files;
    QWidget window;
    VexoSlider *slider = new VexoSlider(Qt::Horizontal);
    Deco deco;
};

} // namespace

class TestVexoSliderDecoration : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void partsHaveTheirCells();
    void imagesStayAtTheSlider_data();
    void imagesStayAtTheSlider();
    void gapAndShiftFollowTheMinimumImage_data();
    void gapAndShiftFollowTheMinimumImage();
    void imageIsRenderedAtItsMeasures();
    void changesLeaveNothingBehind();
    void stylesheetMayRebuildIt();
    void sliderMayGo();
};

void TestVexoSliderDecoration::partsHaveTheirCells()
{
    // By style, the last one unknown: slider, scale, minimum image, maximum image, unit.
    const QByteArrayList cells{ "1 - 0 2 2 ", "11 1 10 12 12 ", "10 - 20 0 0 ", "11 10 21 1 1 ",
        "0 - - - 0 " };
    for (int style = 0; style < cells.size(); ++style) {
        Shown shown(style);
        shown.deco.setSliderUnit("%");
        shown.settle();
        QCOMPARE(shown.cellOf(shown.slider)
                + shown.cellOf(shown.deco.findChild<ScaleDisplayWidget *>())
                + shown.cellOf(shown.label("MinIcon")) + shown.cellOf(shown.label("MaxIcon"))
                + shown.cellOf(shown.label("Unit")),
            cells[style]);
        QCOMPARE(shown.label("Unit")->font().pixelSize(), 63); // 9 pt = 63.5 px
        if (style < 4)
            QCOMPARE(shown.slider->size(), style < 2 ? QSize(560, 130) : QSize(65, 260));
    }
}

void TestVexoSliderDecoration::imagesStayAtTheSlider_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<QSize>("more"); // than it asks for, px
    QTest::newRow("level, wide") << int(Deco::HorizontalWithoutScale) << QSize(500, 0);
    QTest::newRow("level with scale, wide") << int(Deco::HorizontalWithScale) << QSize(500, 0);
    QTest::newRow("upright, high") << int(Deco::VerticalWithoutScale) << QSize(0, 500);
    QTest::newRow("upright with scale, high") << int(Deco::VerticalWithScale) << QSize(0, 500);
}

void TestVexoSliderDecoration::imagesStayAtTheSlider()
{
    QFETCH(int, style);
    QFETCH(QSize, more);
    Shown shown(style);
    shown.deco.setSliderUnit("%");
    shown.settle();
    const auto places = [&shown] {
        QVector<QPoint> found;
        for (const QWidget *part :
            { shown.label("MinIcon"), shown.label("MaxIcon"), shown.label("Unit") })
            found += part->mapTo(&shown.deco, QPoint()) - shown.slider->pos();
        return found;
    };
    const QVector<QPoint> tight = places();
    shown.deco.resize(shown.deco.sizeHint() + more);
    PaintCounter().take(nullptr);
    QCOMPARE(places(), tight);
}

void TestVexoSliderDecoration::gapAndShiftFollowTheMinimumImage_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<QVector<double>>("mm"); // heights of both images
    QTest::addColumn<int>("gap"); // px, on a panel of 10 x 20 px/mm
    QTest::addColumn<int>("shift");
    QTest::newRow("level") << 0 << QVector<double>{ 3, 2 } << 3 << 0;
    QTest::newRow("level, wide") << 0 << QVector<double>{ 4.7, 2 } << 43 << -14; // half of -28
    QTest::newRow("upright, wide") << 2 << QVector<double>{ 4.7, 2 } << 43 << -14;
    QTest::newRow("high maximum") << 0 << QVector<double>{ 4.7, 14.7 } << 43 << 17; // half of 35
}

void TestVexoSliderDecoration::gapAndShiftFollowTheMinimumImage()
{
    QFETCH(int, style);
    QFETCH(QVector<double>, mm);
    QFETCH(int, gap);
    QFETCH(int, shift);
    Shown shown(style);
    shown.deco.setMaxImage(shown.files.svg(Qt::blue), 4, mm[1]);
    shown.deco.setMinImage(shown.files.svg(Qt::red), 4, mm[0]); // also moves the other one
    shown.settle();
    const QRect slider = shown.slider->geometry();
    for (const char *end : { "MinIcon", "MaxIcon" }) {
        const QLabel *label = shown.label(end);
        QCOMPARE(label->size(), label->pixmap(Qt::ReturnByValue).size()); // not cut
        const QRect image(label->mapTo(&shown.deco, QPoint()), label->size());
        const QPoint way = image.center() - slider.center();
        const int free = style == 0 ? qAbs(way.x()) - (image.width() + slider.width()) / 2
                                    : qAbs(way.y()) - (image.height() + slider.height()) / 2;
        QVERIFY2(qAbs(free - gap) <= 1, qPrintable(QString::number(free)));
        const int shifted = style == 0 ? way.y() : way.x();
        QVERIFY2(qAbs(shifted - shift) <= 1, qPrintable(QString::number(shifted)));
    }
}

void TestVexoSliderDecoration::imageIsRenderedAtItsMeasures()
{
    Shown shown(Deco::HorizontalWithoutScale);
    QCOMPARE(shown.minImage(), QSize(30, 60));
    shown.deco.setMinImageWidthMM(5); // with the height that is held
    QCOMPARE(shown.minImage(), QSize(50, 60));
    shown.deco.setMinImageHeightMM(0); // the image is square
    QCOMPARE(shown.minImage(), QSize(50, 100));
    shown.deco.setMinImageWidthMM(0);
    QCOMPARE(shown.minImage(), QSize(0, 0));
    QVERIFY_EXCEPTION_THROWN(shown.deco.setMaxImageHeightMM(-1), std::out_of_range);
    QVERIFY_EXCEPTION_THROWN(shown.deco.setMaxImageWidthMM(qQNaN()), std::out_of_range);
    shown.deco.setMaxImage("/none.svg", qQNaN(), qInf());
    QCOMPARE(shown.deco.getMaxImageWidthMM(), 4.0);
}

void TestVexoSliderDecoration::changesLeaveNothingBehind()
{
    Shown shown(Deco::HorizontalWithScale);
    const auto children = [&](int changes) {
        for (int i = 1; i <= changes; ++i) {
            shown.deco.setDecoStyle(Deco::SliderDecorationStyle((changes - i) % 4 + 1));
            shown.deco.setMinImage(shown.files.svg(Qt::red), 2);
            shown.deco.setMaxImageHeightMM(2);
            shown.deco.setSliderUnit(QString::number(i));
            shown.deco.setSliderWidget(shown.slider);
        }
        return shown.deco.findChildren<QObject *>().size() * 100 + shown.deco.layout()->count();
    };
    QCOMPARE(children(100), children(1));
    shown.settle();
    PaintCounter paints;
    auto *scale = shown.deco.findChild<ScaleDisplayWidget *>();
    paints.watch(scale);
    QCOMPARE(paints.take(scale), 0);
    shown.deco.setScaleText({ "9" });
    QCOMPARE(paints.take(scale), 1);
}

// The toolkit sets the properties while it walks over all widgets.
void TestVexoSliderDecoration::stylesheetMayRebuildIt()
{
    const Shown shown(Deco::HorizontalWithScale);
    for (const char *style : { "HorizontalWithoutScale", "VerticalWithScale" })
        qApp->setStyleSheet(QString("vexo--hox--qt--ui--VexoSliderDecoration {"
                                    " qproperty-m_max_image_file: ':/XSvg';"
                                    " qproperty-m_style: %1; }")
                                .arg(QLatin1String(style)));
    qApp->setStyleSheet(QString());
    QCOMPARE(shown.cellOf(shown.label("MaxIcon")), QByteArray("1 "));
}

void TestVexoSliderDecoration::sliderMayGo()
{
    Shown shown(Deco::HorizontalWithScale);
    shown.deco.setSliderUnit("%");
    QCOMPARE(shown.slider->accessibleDescription(), "%");
    auto *other = new VexoSlider;
    shown.deco.setSliderWidget(other);
    QVERIFY(shown.slider->isHidden());
    delete other;
    shown.deco.setDecoStyle(Deco::VerticalWithScale); // without a slider there is no scale
    QVERIFY(!shown.deco.findChild<ScaleDisplayWidget *>());
    shown.slider->QSlider::setMaximum(50);
    shown.slider->setRawValue(50);
    connect(shown.slider, &VexoSlider::valueChanged, shown.slider, [&] { delete shown.slider; });
    shown.deco.setSliderWidget(shown.slider);
    shown.deco.setScaleText({ "0" });
}

QTEST_MAIN(TestVexoSliderDecoration)
#include "tst_vexosliderdecoration.moc"
