// SPDX-License-Identifier: MIT
#include "support/iconfiles.h"
#include "support/panelscale.h"
#include "support/testcase.h"

#include <VexoLogoLabel>

using namespace vexo::hox::qt::ui;

class TestVexoLogoLabel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void imageFillsTheRectangleOfTheLogo();
    void fileIsReadAtEachPaint();
    void wildNumbersAreHarmless();

private:
    IconFiles m_files;
    const PanelScale m_scale{ 10, 20 };
};

namespace {

QImage picture(VexoLogoLabel *label)
{
    label->resize(100, 100);
    QImage image(100, 100, QImage::Format_RGB32);
    image.fill(Qt::blue);
    label->render(&image, QPoint(), QRegion(), {});
    return image;
}

} // namespace

void TestVexoLogoLabel::imageFillsTheRectangleOfTheLogo()
{
    const QString file = m_files.svg(Qt::red, QSize(60, 30));
    VexoLogoLabel label(nullptr, 3, 60, 30, QImage::Format_RGB32, file);
    QImage image = picture(&label); // 30 x 30 px, in the middle of 60 x 30
    QCOMPARE(boxOf(image, Qt::white), QRect(15, 0, 30, 30));
    QCOMPARE(boxOf(image, Qt::red), QRect(23, 0, 14, 30)); // and a column half of it
    label.setMmWidth(2);
    label.setImageWidth(40);
    label.setImageHeight(25);
    image = picture(&label);
    QCOMPARE(boxOf(image, Qt::white), QRect(20, 5, 20, 20));
    QCOMPARE(boxOf(image, Qt::red), QRect(30, 9, 10, 16));
}

void TestVexoLogoLabel::fileIsReadAtEachPaint()
{
    const QString file = m_files.svg(Qt::red);
    VexoLogoLabel label(nullptr, 1, 10, 20, QImage::Format_RGB32, file);
    int step = 0;
    for (const int age_s : { 0, 0, 3600, 7200 }) { // old files are not drawn anew
        const QColor color = ++step % 2 == 0 ? Qt::green : Qt::black;
        QFile source(m_files.svg(color));
        QVERIFY(source.open(QIODevice::ReadOnly));
        m_files.write(QFileInfo(file).fileName(), source.readAll(), age_s);
        for (int paint = 0; paint < 2; ++paint)
            QVERIFY(!boxOf(picture(&label), color).isEmpty());
    }
    QVERIFY(QFile::remove(file));
    QCOMPARE(boxOf(picture(&label), Qt::blue), QRect(0, 0, 100, 100));
}

void TestVexoLogoLabel::wildNumbersAreHarmless()
{
    VexoLogoLabel label;
    label.setMmWidth(1e9);
    picture(&label);
    for (const double wild : { 0.0, -1.0, qQNaN(), qInf() }) {
        label.setMmWidth(wild);
        QVERIFY(boxOf(picture(&label), Qt::white).isEmpty());
    }
    label.setMmWidth(5);
    QVERIFY(!boxOf(picture(&label), Qt::white).isEmpty());
    for (const int wild : { 0, -1, std::numeric_limits<int>::max() }) {
        label.setImageWidth(wild);
        QVERIFY(boxOf(picture(&label), Qt::white).isEmpty());
    }
}

QTEST_MAIN(TestVexoLogoLabel)
#include "tst_vexologolabel.moc"
