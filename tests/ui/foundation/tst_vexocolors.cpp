// SPDX-License-Identifier: MIT
#include "support/testcase.h"

#include <VexoColors>

#include <QPainter>

using vexo::hox::qt::ui::VexoColors;

class TestVexoColors : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void pensDrawOnePixelOfTheirColor();
};

void TestVexoColors::pensDrawOnePixelOfTheirColor()
{
    for (const bool is_inverse : { false, true }) {
        QImage image(8, 8, QImage::Format_RGB32);
        image.fill(Qt::magenta);
        QPainter painter(&image);
        painter.setPen(is_inverse ? VexoColors::inversePen : VexoColors::pen);
        painter.drawLine(0, 4, 7, 4);
        painter.end();
        const QColor ink = is_inverse ? QColor(255, 255, 255) : QColor(60, 60, 60);
        for (int y = 0; y < 8; ++y)
            QCOMPARE(image.pixelColor(3, y), y == 4 ? ink : QColor(Qt::magenta));
    }
}

QTEST_MAIN(TestVexoColors)
#include "tst_vexocolors.moc"
