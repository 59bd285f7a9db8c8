// SPDX-License-Identifier: MIT
#include "support/iconfiles.h"
#include "support/panelscale.h"
#include "support/testcase.h"

#include <VexoImageHeadline>

#include <stdexcept>

using namespace vexo::hox::qt::ui;

class TestVexoImageHeadline : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isMeasuredInMillimetres();
    void negativeIconSizeChangesNothing();

private:
    IconFiles m_files;
};

void TestVexoImageHeadline::isMeasuredInMillimetres()
{
    const PanelScale scale(10, 20);
    VexoImageHeadline headline(m_files.svg(Qt::red), QSizeF(4, 3), "Camera");
    const auto *icon = headline.findChild<QLabel *>("vexoImageHeadlineIconLabel");
    const auto *text = headline.findChild<QLabel *>("vexoImageHeadlineTextLabel");
    const auto gap = [&] {
        headline.layout()->activate();
        return text->x() - icon->geometry().right() - 1;
    };
    QCOMPARE(headline.size(), QSize(700, 200));
    QCOMPARE(boxOf(headline.grab().toImage(), Qt::red).size(), QSize(40, 60));
    QCOMPARE(icon->width(), 90);
    QCOMPARE(gap(), 10);
    QCOMPARE(text->font().pixelSize(), 70); // 10 pt = 70.6 px
    QCOMPARE(text->font().weight(), 57);
    headline.setSpacerSizeInMm(2.09);
    headline.setImageCanvasWidthMM(5.09);
    headline.setHeightMM(12.04);
    headline.setWidthMM(50.09);
    QCOMPARE(headline.size(), QSize(500, 240));
    QCOMPARE(gap(), 20);
    QCOMPARE(icon->width(), 50);
}

void TestVexoImageHeadline::negativeIconSizeChangesNothing()
{
    VexoImageHeadline headline(m_files.svg(Qt::red), QSizeF(4, 3), QString());
    const QImage before = headline.grab().toImage();
    QVERIFY_EXCEPTION_THROWN(headline.setSvgImage(QString(), QSizeF(-1, 3)), std::out_of_range);
    QCOMPARE(headline.grab().toImage(), before);
    headline.setSvgImage(m_files.path("missing.svg"), QSizeF(4, 3));
    QVERIFY(boxOf(headline.grab().toImage(), Qt::red).isEmpty());
}

QTEST_MAIN(TestVexoImageHeadline)
#include "tst_vexoimageheadline.moc"
