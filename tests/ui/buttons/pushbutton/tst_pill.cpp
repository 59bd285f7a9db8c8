// SPDX-License-Identifier: MIT
#include "support/iconfiles.h"
#include "support/testcase.h"
#include "ui/buttons/pushbutton/pill_p.h"

#include <QPainter>
#include <QTest>

using namespace vexo::hox::qt::ui;

namespace {

// As on a widget of that size.
QImage drawn(Pill *pill, const Pill::Look &look, const QSize &size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    pill->draw(&painter, size, look, QRect(QPoint(), size));
    return image;
}

} // namespace

class TestPill : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void fillsNoMoreThanItself();
    void followsEachChangeOfItsLook();
};

void TestPill::fillsNoMoreThanItself()
{
    const Pill::Look look{ { 30, 30 }, { 30, 30 }, Qt::blue, QPen(Qt::blue) };
    for (const int width_px : { 1, 30, 59, 60, 61, 80, 119, 120, 121, 200 }) {
        const QSize size(width_px, 120);
        Pill pill;
        const QRect filled = boxOf(drawn(&pill, look, size), Qt::blue);
        const QRect whole(30, 30, width_px - 60, 60);
        QVERIFY2(whole.adjusted(-1, -1, 1, 1).contains(filled) || filled.isEmpty(),
            QByteArray::number(width_px));
        QCOMPARE(filled.isEmpty(), width_px <= 60);
        QCOMPARE(
            look.evenArea(size), width_px > 120 ? QRectF(60, 32, width_px - 120, 56) : QRectF());
    }
}

/// And back: the two looks of a press.
void TestPill::followsEachChangeOfItsLook()
{
    const QSize size(300, 120);
    const Pill::Look up{ { 30, 20 }, { 20, 40 }, Qt::yellow, QPen(Qt::blue, 6) };
    Pill::Look looks[] = { up, up, up, up };
    looks[0].margin = QSizeF(30, 30);
    looks[1].radius = QSizeF(20, 20);
    looks[2].fill = Qt::green;
    looks[3].outline.setColor(Qt::red);
    Pill pill;
    const QImage before = drawn(&pill, up, size);
    for (const Pill::Look &down : looks) {
        QVERIFY(drawn(&pill, down, size) != before);
        QCOMPARE(drawn(&pill, up, size), before);
    }
}

QTEST_MAIN(TestPill)
#include "tst_pill.moc"
