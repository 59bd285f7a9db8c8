// SPDX-License-Identifier: MIT
#include "support/testcase.h"
#include "ui/painting/roundedframe_p.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QTest>

#include <algorithm>
#include <array>
#include <functional>

using namespace vexo::hox::qt::ui;

class TestRoundedFrame : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void looksAsItsPathOnEachDevice_data();
    void looksAsItsPathOnEachDevice();
    void followsEachChangeOfItsLook();
};

namespace {

struct Look
{
    QPointF line{ 3.52, 1.76 };
    QPointF radius{ 30, 60 };
    QColor color = Qt::darkBlue;
    QColor ground = Qt::yellow;
};

RoundedFrame frameOf(const Look &look)
{
    RoundedFrame frame;
    frame.setLineColor(look.color);
    frame.setLine(look.line);
    frame.setRadius(look.radius);
    frame.setGround(look.ground);
    return frame;
}

// The whole frame at once, without anything kept.
void drawPath(QPainter *painter, const Look &look, const QSize &size)
{
    QPen pen(look.color);
    pen.setWidthF(look.line.y());
    painter->setPen(pen);
    painter->setBrush(look.ground);
    const QRectF rect(look.line / 2, QPointF(size.width(), size.height()) - look.line / 2);
    QPainterPath path;
    path.addRoundedRect(rect, look.radius.x(), look.radius.y(), Qt::AbsoluteSize);
    painter->drawPath(path);
}

// The lower one of two fields at places as a layout gives them, which are no whole device pixels.
template <typename Draw>
QImage drawn(double ratio, QImage::Format format, Draw draw)
{
    QImage image(QSize(900, 200) * ratio, format);
    image.setDevicePixelRatio(ratio);
    image.fill(format == QImage::Format_RGB32 ? QColor(Qt::gray) : QColor(Qt::transparent));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(7, 3);
    draw(&painter);
    painter.translate(2, 67);
    draw(&painter);
    return image;
}

int largestDifference(const QImage &a, const QImage &b)
{
    int largest = 0;
    for (int y = 0; y < a.height(); ++y) {
        const uchar *const left = a.constScanLine(y);
        const uchar *const right = b.constScanLine(y);
        for (int i = 0; i < a.bytesPerLine(); ++i)
            largest = std::max(largest, std::abs(left[i] - right[i]));
    }
    return largest;
}

} // namespace

void TestRoundedFrame::looksAsItsPathOnEachDevice_data()
{
    QTest::addColumn<double>("ratio");
    for (const double ratio : { 1.0, 1.25, 1.5, 2.0 })
        QTest::addRow("%.2f", ratio) << ratio;
}

void TestRoundedFrame::looksAsItsPathOnEachDevice()
{
    QFETCH(double, ratio);
    const std::array<Look, 5> looks{ Look(), Look{ { 1, 1 }, { 30, 30 } },
        Look{ { 1, 1 }, { 12.5, 30 } }, Look{ { 14, 14 }, { 3, 3 } },
        Look{ { 1.76, 1.76 }, { 30, 30 }, QColor(0, 90, 200, 99), QColor(250, 40, 7, 130) } };
    for (const Look &look : looks) {
        RoundedFrame frame = frameOf(look);
        for (const QSize size : { QSize(800, 61), QSize(403, 61), QSize(102, 61), QSize(70, 61),
                 QSize(20, 61), QSize(401, 60), QSize(401, 20) }) {
            const QImage exact = drawn(ratio, QImage::Format_ARGB32_Premultiplied,
                [&](QPainter *painter) { drawPath(painter, look, size); });
            const QImage kept = drawn(ratio, QImage::Format_ARGB32_Premultiplied,
                [&](QPainter *painter) { frame.draw(painter, size, QRect(QPoint(), size)); });
            // Line and ground are each rounded where they are blended.
            const int rounding = ratio == 1 ? 0 : 2;
            QVERIFY2(largestDifference(exact, kept) <= rounding,
                qPrintable(QStringLiteral("%1 x %2: %3")
                               .arg(size.width())
                               .arg(size.height())
                               .arg(largestDifference(exact, kept))));
        }
    }
}

void TestRoundedFrame::followsEachChangeOfItsLook()
{
    const QSize size(300, 61);
    const auto picture = [&](RoundedFrame *frame) {
        return drawn(1, QImage::Format_RGB32,
            [&](QPainter *painter) { frame->draw(painter, size, QRect(QPoint(), size)); });
    };
    RoundedFrame frame = frameOf(Look());
    Look look;
    const std::array<std::function<void()>, 4> changes{ [&] {
                                                           frame.setLineColor(look.color = Qt::red);
                                                       },
        [&] { frame.setLine(look.line = QPointF(4, 4)); },
        [&] { frame.setRadius(look.radius = QPointF(9, 9)); },
        [&] { frame.setGround(look.ground = Qt::green); } };
    for (const auto &change : changes) {
        const QImage before = picture(&frame);
        change();
        RoundedFrame fresh = frameOf(look);
        QVERIFY(picture(&frame) != before);
        QCOMPARE(picture(&frame), picture(&fresh));
    }
}

QTEST_MAIN(TestRoundedFrame)
#include "tst_roundedframe.moc"
