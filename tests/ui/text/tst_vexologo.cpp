// SPDX-License-Identifier: MIT
#include "support/iconfiles.h"
#include "support/panelscale.h"
#include "support/testcase.h"

#include <VexoLogo>

#include <sys/stat.h>

#include <thread>

using namespace vexo::hox::qt::ui;

class TestVexoLogo : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isCentredAtItsWidth_data();
    void isCentredAtItsWidth();
    void unreadableFileLeavesWhite();
    void bufferIsWrittenInPlace();
    void emptyImageIsHarmless();

private:
    IconFiles m_files;
    const PanelScale m_scale{ 10, 20 };
};

void TestVexoLogo::isCentredAtItsWidth_data()
{
    QTest::addColumn<float>("mm");
    QTest::addColumn<QRect>("box"); // of an SVG of 20 x 10 in 200 x 100 px
    QTest::newRow("whole") << 4.0F << QRect(80, 30, 40, 40);
    QTest::newRow("cut") << 1e6F << QRect(0, 0, 200, 100);
    for (const float none : { 0.0F, -4.0F, float(qQNaN()), float(qInf()) })
        QTest::addRow("%g mm", double(none)) << none << QRect();
}

void TestVexoLogo::isCentredAtItsWidth()
{
    QFETCH(float, mm);
    VexoLogo logo(200, 100, QImage::Format_RGB32, m_files.svg(Qt::red, QSize(20, 10)));
    std::thread([&] { logo.paint(mm); }).join(); // any thread does
    QTEST(boxOf(logo.image(), Qt::red), "box");
    if (mm != 1e6F)
        QCOMPARE(boxOf(logo.image(), Qt::white), QRect(0, 0, 200, 100));
}

void TestVexoLogo::unreadableFileLeavesWhite()
{
    const QByteArray flat = "<svg xmlns='http://www.w3.org/2000/svg' width='0' height='9'/>";
    const QString pipe = m_files.path("pipe.svg"); // nobody writes into it
    mkfifo(qPrintable(pipe), 0600);
    for (const QString &file :
        { QString(), QString(":/widgetimages"), pipe, m_files.write(QString("flat.svg"), flat) }) {
        VexoLogo logo(20, 10, QImage::Format_RGB32, file);
        logo.paint(1);
        QImage white(20, 10, QImage::Format_RGB32);
        white.fill(Qt::white);
        QVERIFY2(logo.image() == white, qPrintable(file));
    }
}

/// Also after the caller has kept a copy, and never beside it.
void TestVexoLogo::bufferIsWrittenInPlace()
{
    const unsigned int guard = 0x12345678;
    QVector<unsigned int> memory(7 * 3 + 2, guard);
    const QString file = m_files.svg(Qt::red);
    VexoLogo logo(7, 3, memory.data() + 1, file);
    logo.paint(0.3F);
    const QImage kept = logo.image();
    QCOMPARE(boxOf(kept, Qt::red), QRect(2, 0, 3, 3));
    QFile::remove(file); // it is read at each paint
    logo.paint(0.3F);
    QCOMPARE(memory.count(~0U), 7 * 3);
    QVERIFY(memory.first() == guard && memory.last() == guard);
}

void TestVexoLogo::emptyImageIsHarmless()
{
    const QString file = ":/XSvg";
    for (VexoLogo logo : { VexoLogo(0, 10, QImage::Format_RGB32, file),
             VexoLogo(10, 10, QImage::Format_Invalid, file), VexoLogo(10, 10, nullptr, file),
             VexoLogo(1 << 20, 1 << 20, QImage::Format_RGB32, file) }) {
        logo.paint(5);
        QVERIFY(logo.image().isNull());
    }
}

QTEST_MAIN(TestVexoLogo)
#include "tst_vexologo.moc"
