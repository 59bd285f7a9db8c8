// SPDX-License-Identifier: MIT
#include "support/panelscale.h"
#include "support/pixels.h"
#include "support/testcase.h"

#include <PanelSheet>
#include <ScalingInfo>

#include <QTemporaryDir>
#include <QWidget>

using namespace vexo::hox::qt::uitest;
using vexo::hox::qt::ui::ScalingInfo;

namespace {

/// White, with a black square of 20 mm at 10 mm from the left and 5 mm from the top.
class Square : public QWidget
{
public:
    Square()
        : m_mm(ScalingInfo::inst()->mm2px(QSizeF(1, 1)))
    {
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), Qt::white);
        painter.scale(m_mm.width(), m_mm.height());
        painter.fillRect(QRectF(10, 5, 20, 20), Qt::black);
    }

private:
    const QSizeF m_mm;
};

QWidget *createSquare()
{
    return new Square;
}

QRect dark(const QImage &picture)
{
    return boxWhere(picture, [](QRgb pixel) { return qGray(pixel) < 100; });
}

} // namespace

class TestPanelSheet : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void showsEachPanelAtTheSameScale();
    void givesTheScaleBack();
    void saysWhatDiffers_data();
    void saysWhatDiffers();
};

void TestPanelSheet::showsEachPanelAtTheSameScale()
{
    const QVector<PanelKind> panels = { { "a", { 400, 200 }, { 80, 40 } },
        { "wide pixels", { 300, 600 }, { 60, 60 } }, { "no size", { 300, 0 }, { 60, 60 } } };
    const PanelSheet sheet(panels);
    QCOMPARE(sheet.panels().size(), 2);
    const QImage picture = sheet.sheet(createSquare, 3);
    QCOMPARE(picture.width(), 3 * (6 + 80 + 6 + 60 + 6));
    QCOMPARE(dark(picture.copy(3 * 6, 3 * 6, 3 * 80, 3 * 40)), QRect(30, 15, 60, 60));
    QCOMPARE(dark(picture.copy(3 * 92, 3 * 6, 3 * 60, 3 * 60)), QRect(30, 15, 60, 60));
    QCOMPARE(dark(PanelSheet::pictureOn(panels.at(1), createSquare)), QRect(50, 50, 100, 200));
    QCOMPARE(PanelSheet().panels().size(), 5);
}

void TestPanelSheet::givesTheScaleBack()
{
    const PanelScale scale(7, 8);
    const auto *info = ScalingInfo::inst();
    const PanelKind panel = { "a", { 400, 200 }, { 80, 40 } };
    PanelSheet::pictureOn(panel, [] { return nullptr; });
    PanelSheet::pictureOn(panel, nullptr);
    QVERIFY_EXCEPTION_THROWN(
        PanelSheet::pictureOn(panel, []() -> QWidget * { throw std::logic_error("no screen"); }),
        std::logic_error);
    QCOMPARE(ScalingInfo::inst(), info);
    QCOMPARE(info->mm2px_X(1), 7.0f);
}

void TestPanelSheet::saysWhatDiffers_data()
{
    QTest::addColumn<QRect>("change"); // px
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("is_accepted");
    QTest::addColumn<QString>("text");
    const QSize same(100, 100);
    QTest::newRow("nothing") << QRect() << QColor() << same << true << "nothing differs";
    QTest::newRow("too little to see")
        << QRect(0, 0, 100, 100) << QColor(250, 250, 250) << same << true << "nothing differs";
    QTest::newRow("few pixels") << QRect(3, 4, 5, 1) << QColor(Qt::red) << same << true
                                << "5 of 10000 px differ, between (3, 4) and (7, 4)";
    QTest::newRow("more pixels") << QRect(3, 4, 6, 1) << QColor(Qt::red) << same << false
                                 << "6 of 10000 px differ, between (3, 4) and (8, 4)";
    QTest::newRow("other size") << QRect() << QColor() << QSize(100, 99) << false
                                << "was 100 x 100 px, is 100 x 99 px";
}

void TestPanelSheet::saysWhatDiffers()
{
    QFETCH(QRect, change);
    QFETCH(QColor, color);
    QFETCH(QSize, size);
    QFETCH(bool, is_accepted);
    QFETCH(QString, text);
    QImage was(100, 100, QImage::Format_RGB32);
    was.fill(Qt::white);
    QImage is = was.copy(QRect(QPoint(), size));
    QPainter(&is).fillRect(change, color);
    const QTemporaryDir folder;
    const QString file = folder.filePath("was.png");
    QVERIFY(!PanelSheet::compare(file, is).is_accepted);
    QVERIFY(was.save(file));
    const PictureDifference difference = PanelSheet::compare(file, is);
    QCOMPARE(difference.is_accepted, is_accepted);
    QCOMPARE(difference.text, text);
    QCOMPARE(difference.picture.isNull(), text == "nothing differs");
    if (!change.isEmpty() && !difference.picture.isNull()) {
        const QPoint third(10 + 100 + 10 + 100 + 10, 10);
        QCOMPARE(difference.picture.pixelColor(third + change.topLeft()), QColor(Qt::red));
        QVERIFY(difference.picture.pixelColor(third) != QColor(Qt::red));
    }
}

QTEST_MAIN(TestPanelSheet)
#include "tst_panelsheet.moc"
