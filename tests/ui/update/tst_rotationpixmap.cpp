// SPDX-License-Identifier: MIT
#include "support/iconfiles.h"
#include "support/panelscale.h"
#include "support/testcase.h"

#include <RotationPixmap>

#include <QTimer>

#include <sys/stat.h>

using namespace vexo::hox::qt::ui;

class TestRotationPixmap : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void flipsThroughItsFiles();
    void framesCoverWholeMillimetres_data();
    void framesCoverWholeMillimetres();
    void handsOutNullWithoutFrames();
    void mayBeDestroyedAtEachMoment();
    void hostileFilesHoldUpNothing();

private:
    QString image(const QColor &color, const QSize &px = QSize(40, 20))
    {
        QImage image(px, QImage::Format_RGB32);
        image.fill(color);
        QString path = m_files.path(color.name() + ".png");
        image.save(path);
        return path;
    }

    IconFiles m_files;
};

namespace {

QColor colorOf(const QPixmap &pixmap)
{
    return pixmap.isNull() ? QColor() : pixmap.toImage().pixelColor(0, 0);
}

} // namespace

void TestRotationPixmap::flipsThroughItsFiles()
{
    const QVector<QColor> colors{ Qt::red, Qt::green, Qt::blue };
    RotationPixmap rotation({ image(colors[0]), image(colors[1]), image(colors[2]) }, 2, 2);
    rotation.wait();
    auto *timer = rotation.findChild<QTimer *>();
    QVector<QColor> seen;
    connect(&rotation, &RotationPixmap::pixmapRotated, this,
        [&](const QPixmap &pixmap) { seen += colorOf(pixmap); });
    QVERIFY(!timer->isActive());
    rotation.startRotating();
    QCOMPARE(timer->interval(), 500);
    for (int i = 0; i < 4; ++i)
        QMetaObject::invokeMethod(timer, "timeout");
    QCOMPARE(seen, (QVector<QColor>{ colors[1], colors[2], colors[0], colors[1] }));
    rotation.stopRotating();
    QVERIFY(!timer->isActive());
    QCOMPARE(colorOf(rotation.rotate()), colors[1]);
}

void TestRotationPixmap::framesCoverWholeMillimetres_data()
{
    QTest::addColumn<QSizeF>("mm");
    QTest::addColumn<QSize>("px"); // of an image twice as wide as high
    QTest::newRow("wide") << QSizeF(12.9, 2.9) << QSize(120, 60); // 120 x 40 covered
    QTest::newRow("high") << QSizeF(2, 3) << QSize(120, 60); // 20 x 60 covered
    QTest::newRow("below a millimetre") << QSizeF(0.9, 0.9) << QSize();
    QTest::newRow("not a number") << QSizeF(qQNaN(), 3) << QSize();
}

void TestRotationPixmap::framesCoverWholeMillimetres()
{
    const PanelScale scale(10, 20);
    QFETCH(QSizeF, mm);
    RotationPixmap rotation({ image(Qt::red) }, float(mm.width()), float(mm.height()));
    rotation.wait();
    QFETCH(QSize, px);
    QCOMPARE(rotation.rotate().size(), px.isValid() ? px : QSize(0, 0));
}

void TestRotationPixmap::handsOutNullWithoutFrames()
{
    RotationPixmap empty({}, 10, 10);
    QVERIFY(empty.rotate().isNull());
    const QString missing = m_files.path("missing.png");
    const QString broken = m_files.write("broken.png", "no image");
    RotationPixmap rotation({ missing, broken, image(Qt::red) }, 10, 10);
    rotation.wait();
    QVERIFY(rotation.rotate().isNull());
    QCOMPARE(colorOf(rotation.rotate()), QColor(Qt::red));
    QVERIFY(rotation.rotate().isNull());
}

void TestRotationPixmap::mayBeDestroyedAtEachMoment()
{
    QStringList files;
    for (int i = 0; i < 20; ++i)
        files += image(QColor(i, 100, 100), QSize(60, 60));
    for (int i = 0; i < 1000; ++i) {
        RotationPixmap rotation(files, 10, 10);
        for (int steps = i % 50; steps > 0; --steps)
            rotation.rotate();
    }
    // The last one was not waited for longer than for the file at hand.
    RotationPixmap rotation(files, 10, 10);
    rotation.requestInterruption();
    QVERIFY(rotation.wait());
}

void TestRotationPixmap::hostileFilesHoldUpNothing()
{
    const QString pipe = m_files.path("pipe.png");
    mkfifo(qPrintable(pipe), 0600);
    const QString thin = image(Qt::blue, QSize(1, 8000)); // 10 px wide it would take 3 MB a mm
    RotationPixmap rotation({ pipe, "/dev/zero", thin, image(Qt::red) }, 300, 1);
    rotation.wait();
    for (int i = 0; i < 2; ++i)
        QVERIFY(rotation.rotate().isNull());
    QCOMPARE(colorOf(rotation.rotate()), QColor(Qt::red));
    QVERIFY(rotation.rotate().isNull());
}

QTEST_MAIN(TestRotationPixmap)
#include "tst_rotationpixmap.moc"
