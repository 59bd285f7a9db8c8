// SPDX-License-Identifier: MIT
#include "gallery/expose.h"
#include "gallery/pages/busyanimationpage.h"
#include "gallery/pages/updatewindowpage.h"
#include "gallery/pages/videopage.h"
#include "gallery/widgets/busysign.h"
#include "support/find.h"
#include "support/paintcounter.h"
#include "support/panelscale.h"
#include "support/touch.h"
#include "support/virtualclock.h"

#include <UpdateMainWindow>
#include <VexoColors>
#include <VideoCapturePanning>

#include <QWindow>

#include <unistd.h>

using namespace vexo::hox::qt::ui;

/// The pages with a camera picture, a busy animation and a running update.
class TestScreens : public VirtualTimeTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void fingerPansTheVideo();
    void doubleTapZooms();
    void playingRepaintsThePictureOnly();
    void signsTurnUntilThePageIsLeft();
    void updateWindowCoversItsWindow();

private:
    const PanelScale m_scale{ 8, 5 };
};

namespace {

// Until a press is none within 250 ms of the construction, which would be a tap.
void exposeVideo(VideoPage *page)
{
    expose(page);
    virtualclock::pass(255);
}

// Images are loaded in a thread, which takes a time of its own.
template <typename Condition>
bool happensSoon(Condition condition)
{
    for (int i = 0; i < 10000 && !condition(); ++i) {
        usleep(1000); // of the real time
        virtualclock::pass(5);
    }
    return condition();
}

QString valueOf(const QWidget &page, const char *signal)
{
    return page.findChild<QLabel *>(QLatin1String(signal))->text();
}

void click(const QWidget &page, const QString &text)
{
    auto *button = byText<QAbstractButton>(page, text);
    QVERIFY2(button, qPrintable(text));
    QTest::mouseClick(button, Qt::LeftButton);
}

// The colours in the corners of the picture as the page shows it, clockwise from the left top.
QVector<QColor> cornersOf(QWidget &page)
{
    const QWidget *output = page.findChild<VideoCapturePanning *>()->parentWidget();
    const QRect place(output->mapTo(&page, QPoint(0, 0)), output->size());
    const QImage picture = page.grab(place).toImage();
    const int right = picture.width() - 4;
    const int bottom = picture.height() - 4;
    return { picture.pixelColor(3, 3), picture.pixelColor(right, 3),
        picture.pixelColor(right, bottom), picture.pixelColor(3, bottom) };
}

const QVector<QColor> whole_picture{ VexoColors::C9, VexoColors::C7, VexoColors::C8,
    VexoColors::C10 };

} // namespace

void TestScreens::fingerPansTheVideo()
{
    VideoPage page;
    exposeVideo(&page);
    QWidget *viewport = page.findChild<VideoCapturePanning *>()->viewport();
    QCOMPARE(viewport->size(), QSize(512, 180)); // 64 x 36 mm
    QCOMPARE(cornersOf(page), whole_picture);
    QCOMPARE(valueOf(page, "crop"), "0, 0, 1280, 720");
    click(page, "Zoom in");
    click(page, "Zoom in");
    QCOMPARE(valueOf(page, "crop"), "320, 180, 640, 360");
    finger(viewport, QEvent::MouseButtonPress, QPoint(400, 150));
    const Way way{ { 300, 100 }, { 200, 50 }, { 100, 0 }, { 0, -50 } };
    for (const QPoint &at : way)
        finger(viewport, QEvent::MouseMove, at);
    virtualclock::pass(100);
    QCOMPARE(valueOf(page, "crop"), "640, 360, 640, 360");
    finger(viewport, QEvent::MouseButtonRelease, QPoint(0, -50));
    QCOMPARE(cornersOf(page).at(2), QColor(VexoColors::C8));
    QVERIFY(!cornersOf(page).contains(VexoColors::C9));
    click(page, "Zoom in"); // around the middle
    QCOMPARE(valueOf(page, "crop"), "704, 396, 512, 288");
    click(page, "Whole");
    QCOMPARE(cornersOf(page), whole_picture);
}

void TestScreens::doubleTapZooms()
{
    VideoPage page;
    exposeVideo(&page);
    const QWidget *panning = page.findChild<VideoCapturePanning *>();
    const QPoint tapped = panning->mapTo(&page, QPoint(100, 50));
    QTest::mouseDClick(page.windowHandle(), Qt::LeftButton, {}, tapped);
    virtualclock::pass(100);
    QCOMPARE(valueOf(page, "crop"), "320, 180, 640, 360");
    QCOMPARE(valueOf(page, "tap"), "1");
}

void TestScreens::playingRepaintsThePictureOnly()
{
    VideoPage page;
    expose(&page);
    PaintCounter paints;
    QWidget *output = page.findChild<VideoCapturePanning *>()->parentWidget();
    click(page, "Play");
    paints.take(&page);
    QWidgetList others = page.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    others.removeOne(output);
    others += &page;
    for (QWidget *widget : qAsConst(others))
        paints.watch(widget);
    paints.watch(output);
    int frames = 0;
    QVERIFY(happensSoon([&] { return (frames += paints.taken(output)) >= 3; }));
    for (QWidget *widget : qAsConst(others))
        QCOMPARE(paints.taken(widget), 0);
    page.hide();
    click(page, "Play"); // it had stopped
}

void TestScreens::signsTurnUntilThePageIsLeft()
{
    BusyAnimationPage page;
    expose(&page);
    const auto signs = page.findChildren<BusySign *>();
    QVector<QImage> resting;
    for (BusySign *sign : signs)
        resting += sign->grab().toImage();
    click(page, "Start");
    for (int i = 0; i < signs.size(); ++i)
        QVERIFY(happensSoon([&] { return signs.at(i)->grab().toImage() != resting.at(i); }));
    page.hide();
    for (int i = 0; i < signs.size(); ++i)
        QCOMPARE(signs.at(i)->grab().toImage(), resting.at(i));
    click(page, "Start");
}

void TestScreens::updateWindowCoversItsWindow()
{
    UpdateWindowPage page;
    expose(&page);
    click(page, "Open");
    const QPointer<UpdateMainWindow> window = page.findChild<UpdateMainWindow *>();
    QVERIFY(QTest::qWaitForWindowExposed(window));
    QCOMPARE(window->geometry(), page.geometry());
    touch(window->centralWidget());
    QVERIFY(happensSoon([&] { return !window; }));
    click(page, "Open"); // and goes with its page
}

QTEST_MAIN(TestScreens)
#include "tst_screens.moc"
