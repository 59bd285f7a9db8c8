// SPDX-License-Identifier: MIT
#include "support/paintcounter.h"
#include "support/panelscale.h"
#include "support/testcase.h"

#include <ScaleDisplayWidget>

#include <QHBoxLayout>

using namespace vexo::hox::qt::ui;

class TestScaleDisplayWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void marksLieAlongTheLength_data();
    void marksLieAlongTheLength();
    void settlesAfterOneLayout();

private:
    const PanelScale m_scale{ 10, 20 };
};

void TestScaleDisplayWidget::marksLieAlongTheLength_data()
{
    QTest::addColumn<bool>("level");
    QTest::addColumn<float>("mm");
    QTest::addColumn<int>("extent"); // px along the scale, on a panel of 10 x 20 px/mm
    QTest::addColumn<QVector<int>>("ticks");
    QTest::newRow("level") << true << 56.0F << 570 << QVector<int>{ 30, 280, 530 };
    QTest::newRow("upright") << false << 40.0F << 810 << QVector<int>{ 60, 740 };
    QTest::newRow("rounded sums") << true << 13.0F << 140 << QVector<int>{ 30, 53, 76, 100 };
    QTest::newRow("one") << true << 16.0F << 170 << QVector<int>{ 30 };
    QTest::newRow("no number") << true << float(qQNaN()) << 0 << QVector<int>();
}

void TestScaleDisplayWidget::marksLieAlongTheLength()
{
    QFETCH(bool, level);
    QFETCH(float, mm);
    QFETCH(int, extent);
    QFETCH(QVector<int>, ticks);
    ScaleDisplayWidget widget(level ? Qt::Horizontal : Qt::Vertical, mm);
    widget.setScaleText(QVector<QString>(ticks.size(), "0").toList());
    QImage image(900, 900, QImage::Format_RGB32);
    image.fill(Qt::white);
    widget.resize(image.size());
    widget.render(&image, QPoint(), QRegion(), {});
    QCOMPARE(level ? widget.maximumWidth() : widget.maximumHeight(), extent);
    const auto is_drawn = [&](int along) {
        return image.pixel(level ? QPoint(along, 50) : QPoint(100, along)) != 0xffffffff;
    };
    QVector<int> drawn;
    for (int i = 1; i < image.width(); ++i) {
        if (is_drawn(i - 1) && is_drawn(i)) // antialiased around its place
            drawn += i;
    }
    QCOMPARE(drawn, ticks);
}

void TestScaleDisplayWidget::settlesAfterOneLayout()
{
    QWidget window;
    window.resize(800, 200);
    ScaleDisplayWidget widget(Qt::Horizontal, 56);
    auto *layout = new QHBoxLayout(&window);
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    layout->addWidget(&widget, 0, Qt::AlignCenter);
    PaintCounter paints;
    paints.watch(&widget);
    window.show();
    const int first = paints.take(&widget);
    QVERIFY2(first >= 1 && first <= 3, qPrintable(QString::number(first)));
    QCOMPARE(widget.size(), QSize(570, 60)); // both with the density along the scale
    widget.setTextColor(Qt::red);
    widget.setScaleText({ QString(10000, QLatin1Char('x')) });
    QCOMPARE(paints.take(&widget), 0); // neither repaints by itself
    widget.update();
    QCOMPARE(paints.take(&widget), 1);
}

QTEST_MAIN(TestScaleDisplayWidget)
#include "tst_scaledisplaywidget.moc"
