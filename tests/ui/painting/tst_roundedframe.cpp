// SPDX-License-Identifier: MIT
#include "support/pixels.h"
#include "support/testcase.h"
#include "ui/painting/roundedframe_p.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QTest>

#include <algorithm>
#include <array>

using namespace vexo::hox::qt::ui;

class TestRoundedFrame : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void looksAsItsPathOnEachDevice_data();
    void looksAsItsPathOnEachDevice();
    void fillsNoMoreThanItself();
};

namespace {

struct Look
{
    QPointF line{ 3.52, 1.76 };
    QPointF radius{ 30, 60 };
    QColor color = Qt::darkBlue;
    QColor ground = Qt::yellow;
};

void apply(RoundedFrame *frame, const Look &look)
{
    frame->setLineColor(look.color);
    frame->setLineWidth(look.line.y());
    frame->setMargin(look.line / 2);
    frame->setRadius(look.radius);
    frame->setGround(look.ground);
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
QImage drawn(double ratio, Draw draw)
{
    QImage image(QSize(900, 200) * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
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
    // From each to the next something else changes.
    const std::array<Look, 8> looks{ Look(), Look{ { 3.52, 1.76 }, { 30, 60 }, Qt::red },
        Look{ { 3.52, 1.76 }, { 30, 60 }, Qt::red, Qt::green },
        Look{ { 1, 1 }, { 30, 60 }, Qt::red, Qt::green },
        Look{ { 1, 1 }, { 30, 30 }, Qt::red, Qt::green }, Look{ { 1, 1 }, { 12.5, 30 } },
        Look{ { 14, 14 }, { 3, 3 } },
        Look{ { 1.76, 1.76 }, { 30, 30 }, QColor(0, 90, 200, 99), QColor(250, 40, 7, 130) } };
    const int rounding
        = ratio == 1 ? 0 : 2; // line and ground are each rounded where they are blended
    RoundedFrame frame;
    for (const QSize size : { QSize(800, 61), QSize(403, 61), QSize(102, 61), QSize(70, 61),
             QSize(20, 61), QSize(401, 60), QSize(401, 20) }) {
        for (const Look &look : looks) {
            apply(&frame, look);
            const QImage exact
                = drawn(ratio, [&](QPainter *painter) { drawPath(painter, look, size); });
            const QImage kept = drawn(ratio,
                [&](QPainter *painter) { frame.draw(painter, size, QRect(QPoint(), size)); });
            QVERIFY2(largestDifference(exact, kept) <= rounding,
                qPrintable(QStringLiteral("%1 x %2: %3")
                               .arg(size.width())
                               .arg(size.height())
                               .arg(largestDifference(exact, kept))));
        }
    }
}

/// Narrower than its ends, and than its margins.
void TestRoundedFrame::fillsNoMoreThanItself()
{
    RoundedFrame pill;
    apply(&pill, { { 60, 60 }, { 30, 30 }, Qt::blue, Qt::blue });
    pill.setLineWidth(1);
    for (const int width_px : { 1, 30, 59, 60, 61, 80, 119, 120, 121, 200 }) {
        const QSize size(width_px, 120);
        QImage image(size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        pill.draw(&painter, size, QRect(QPoint(), size));
        const QRect filled = boxOf(image, Qt::blue);
        const QRect whole(30, 30, width_px - 60, 60);
        QVERIFY2(whole.adjusted(-1, -1, 1, 1).contains(filled) || filled.isEmpty(),
            QByteArray::number(width_px));
        QCOMPARE(filled.isEmpty(), width_px <= 60);
        QCOMPARE(
            pill.evenGround(size), width_px > 120 ? QRectF(60, 32, width_px - 120, 56) : QRectF());
    }
}

QTEST_MAIN(TestRoundedFrame)
#include "tst_roundedframe.moc"
