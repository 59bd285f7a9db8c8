// SPDX-License-Identifier: MIT
#include "support/panelscale.h"
#include "support/virtualclock.h"

#include <VideoArea>
#include <VideoCapturePanning>

#include <QLoggingCategory>
#include <QPointer>
#include <QScrollBar>
#include <QWindow>

using namespace vexo::hox::qt::ui;

/// VideoArea and VideoCapturePanning.
class TestVideoArea : public VirtualTimeTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void tellsWhatIsVisible_data();
    void tellsWhatIsVisible();
    void tellsEachMoveAndResize();
    void logsTheCrop();
    void panningTellsItsPlace();
    void panningScrollsTheArea();
    void soonPressesAreTaps();
    void mayBeDeletedInTap();
};

namespace {

using Crop = QVector<qint64>;

Crop cropOf(const QSignalSpy &crops)
{
    const QList<QVariant> crop = crops.value(crops.size() - 1);
    return { crop.value(0).toInt(), crop.value(1).toInt(), crop.value(2).toUInt(),
        crop.value(3).toUInt() };
}

} // namespace

void TestVideoArea::tellsWhatIsVisible_data()
{
    QTest::addColumn<QSize>("video");
    QTest::addColumn<QRect>("area");
    QTest::addColumn<QSize>("opening");
    QTest::addColumn<Crop>("crop");
    const QSize hd(1280, 720);
    QTest::newRow("zoomed") << hd << QRect(-200, -100, 1600, 900) << QSize(800, 450)
                            << Crop{ 160, 80, 640, 360 };
    QTest::newRow("as large as the opening")
        << hd << QRect(0, 0, 800, 450) << QSize(800, 450) << Crop{ 0, 0, 1280, 720 };
    QTest::newRow("smaller than it")
        << hd << QRect(0, 0, 400, 225) << QSize(800, 450) << Crop{ 0, 0, 2560, 1440 };
    QTest::newRow("cut, not rounded")
        << QSize(999, 998) << QRect(-1, -2, 100, 70) << QSize(33, 44) << Crop{ 9, 28, 329, 627 };
    QTest::newRow("right of and below it")
        << hd << QRect(10, 20, 800, 450) << QSize(800, 450) << Crop{ 0, 0, 1280, 720 };
    QTest::newRow("no video") << QSize(0, 0) << QRect(-5, -5, 10, 10) << QSize(10, 10)
                              << Crop{ 0, 0, 0, 0 };
    QTest::newRow("no width") << hd << QRect(-5, -5, 0, 10) << QSize(10, 10)
                              << Crop{ 0, 360, 0, 720 };
    QTest::newRow("no opening") << hd << QRect(-5, 0, 10, 10) << QSize(0, 0)
                                << Crop{ 640, 0, 0, 0 };
    QTest::newRow("largest") << QSize(65535, 65535) << QRect(-65535, 0, 65535, 65535)
                             << QSize(65535, 65535) << Crop{ 65535, 0, 65535, 65535 };
}

void TestVideoArea::tellsWhatIsVisible()
{
    QFETCH(QSize, video);
    QFETCH(QRect, area);
    QFETCH(QSize, opening);
    QWidget parent;
    parent.resize(opening);
    VideoArea shown(&parent);
    shown.setVideoWidth(quint32(video.width()));
    shown.setVideoHeight(quint32(video.height()));
    shown.setGeometry(area);
    QSignalSpy crops(&shown, &VideoArea::crop);
    shown.transformGeometry();
    QTEST(cropOf(crops), "crop");
    shown.transformGeometryForCameraConfig();
    QCOMPARE(cropOf(crops), (Crop{ 0, 0, video.width(), video.height() }));
}

void TestVideoArea::tellsEachMoveAndResize()
{
    QWidget parent;
    VideoArea area(&parent);
    area.setVideoWidth(100);
    area.setVideoHeight(100);
    parent.resize(200, 200);
    area.resize(400, 400);
    parent.show();
    QSignalSpy crops(&area, &VideoArea::crop);
    area.move(-100, -40);
    QCOMPARE(cropOf(crops), (Crop{ 25, 10, 50, 50 }));
    area.resize(200, 100);
    QCOMPARE(cropOf(crops), (Crop{ 50, 40, 100, 200 }));
    QCOMPARE(crops.size(), 2);
    VideoArea alone;
    alone.setVideoWidth(8);
    QSignalSpy own(&alone, &VideoArea::crop);
    alone.transformGeometry(); // its own opening
    QCOMPARE(cropOf(own), (Crop{ 0, 0, 8, 0 }));
}

void TestVideoArea::logsTheCrop()
{
    QLoggingCategory::setFilterRules("hoxq.*.debug=true");
    const Messages messages;
    VideoArea area;
    area.setVideoWidth(70);
    area.setVideoHeight(80);
    area.transformGeometry();
    QLoggingCategory::setFilterRules(QString());
    QCOMPARE(messages.lines(), QStringList{ "debug hoxq.*: pos: 0x0, video_width: 70x80" });
}

void TestVideoArea::panningTellsItsPlace()
{
    const PanelScale scale(10, 20);
    QWidget window;
    VideoCapturePanning panning(&window);
    window.show();
    QSignalSpy places(&panning, &VideoCapturePanning::setViewportPos);
    QSignalSpy sizes(&panning, &VideoCapturePanning::setViewportSize);
    QSignalSpy ratios(&panning, &VideoCapturePanning::setAspectRatio);
    panning.resize(800, 480);
    QCOMPARE(sizes.value(0), (QVariantList{ 800U, 480U }));
    QCOMPARE(ratios.value(0), QVariantList{ 0.3 }); // 24 mm to 80 mm
    panning.move(30, 40);
    const QPoint seen = panning.mapToGlobal(QPoint(30, 40));
    QCOMPARE(places.value(0), (QVariantList{ uint(seen.x()), uint(seen.y()) }));
    panning.resize(0, 10);
    QCOMPARE(ratios.size(), 1); // of no width there is none
}

void TestVideoArea::panningScrollsTheArea()
{
    VideoCapturePanning panning;
    auto *area = new VideoArea;
    area->setVideoWidth(100);
    area->setVideoHeight(100);
    area->setMinimumSize(1000, 1000);
    panning.setWidget(area);
    panning.setFixedSize(500, 250);
    panning.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panning));
    QSignalSpy crops(area, &VideoArea::crop);
    panning.setPosition(QPoint(-50, 30));
    QCOMPARE(panning.horizontalScrollBar()->value(), 50);
    QCOMPARE(panning.verticalScrollBar()->value(), 30);
    QCOMPARE(cropOf(crops), (Crop{ 5, 3, 50, 25 }));
    panning.setPosition(QPoint(std::numeric_limits<int>::min(), 0));
    QCOMPARE(panning.horizontalScrollBar()->value(), 500);
}

void TestVideoArea::soonPressesAreTaps()
{
    VideoCapturePanning panning;
    panning.setWidget(new VideoArea);
    panning.show();
    QSignalSpy taps(&panning, &VideoCapturePanning::tap);
    QTest::mousePress(panning.viewport(), Qt::LeftButton); // within 250 ms of the construction
    QTest::mousePress(panning.viewport(), Qt::LeftButton);
    QCOMPARE(taps.size(), 2);
    virtualclock::pass(255);
    QTest::mousePress(panning.viewport(), Qt::LeftButton);
    QCOMPARE(taps.size(), 2);
    virtualclock::pass(255);
    // Through the window, as a finger's: the toolkit makes a double click of the second press.
    QTest::mouseDClick(panning.windowHandle(), Qt::LeftButton, {}, QPoint(20, 20));
    QCOMPARE(taps.size(), 3);
}

void TestVideoArea::mayBeDeletedInTap()
{
    QWidget window;
    const QPointer<VideoCapturePanning> panning = new VideoCapturePanning(&window);
    connect(panning, &VideoCapturePanning::tap, &window, [&] { delete panning; });
    QTest::mousePress(panning->viewport(), Qt::LeftButton);
    QVERIFY(!panning);
}

QTEST_MAIN(TestVideoArea)
#include "tst_videoarea.moc"
