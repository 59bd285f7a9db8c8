// SPDX-License-Identifier: MIT
#include "gallery/pagelist.h"
#include "gallery/shots.h"
#include "package/process.h"

#include <QImage>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

/// The command line of the gallery.
class TestGallery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void badArgumentsGetOneLine_data();
    void badArgumentsGetOneLine();
    void everyPageIsRendered();
};

void TestGallery::badArgumentsGetOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    const auto row = [](const char *arguments) {
        QTest::newRow(arguments) << QString::fromLatin1(arguments).split(QLatin1Char(' '));
    };
    for (const char *panel : { "", "12x", "0x800@160x100", "1280x800@160x-3", "1280x800@0x0",
             "99999x800@160x100", "1280X800@160x100", "1e3x3@1x1" })
        row(qPrintable("--panel " + QLatin1String(panel)));
    for (const char *arguments :
        { "--panel", "--bogus", "foo", "--page nope", "--shots /proc/x", "--shots /etc/passwd" })
        row(arguments);
}

void TestGallery::badArgumentsGetOneLine()
{
    QFETCH(QStringList, arguments);
    const Finished result = run(QStringLiteral(HOXQ_GALLERY), arguments);
    QCOMPARE(result.exit_code, 2);
    QVERIFY2(result.output.startsWith("hoxqgallery: "), qPrintable(result.output));
    QCOMPARE(result.output.count(QLatin1Char('\n')), 1);
}

void TestGallery::everyPageIsRendered()
{
    const QTemporaryDir dir;
    const Finished result
        = run(QStringLiteral(HOXQ_GALLERY), { "--panel", "640x400@160x80", "--shots", dir.path() });
    QVERIFY2(result.exit_code == 0, qPrintable(result.output));
    const QStringList printed = result.output.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QCOMPARE(printed.size(), pageList().size());
    QSet<QByteArray> pictures;
    for (int page = 0; page < pageList().size(); ++page) {
        QCOMPARE(printed.at(page), dir.filePath(shotName(page)));
        const QImage picture(printed.at(page));
        QVERIFY2(picture.width() >= 640 && picture.height() >= 400, qPrintable(printed.at(page)));
        pictures += QByteArray(
            reinterpret_cast<const char *>(picture.constBits()), int(picture.sizeInBytes()));
    }
    QCOMPARE(pictures.size(), pageList().size()); // each shows something else
}

QTEST_APPLESS_MAIN(TestGallery)
#include "tst_gallery.moc"
