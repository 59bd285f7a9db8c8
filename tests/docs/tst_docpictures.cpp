// SPDX-License-Identifier: MIT
#include "package/process.h"

#include <PanelSheet>

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace vexo::hox::qt::uitest;

/// The pictures of the docs show what their programs draw today.
class TestDocPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void isUpToDate_data();
    void isUpToDate();

private:
    QString drawn(const QString &name) const;

    QTemporaryDir m_dir;
};

void TestDocPictures::initTestCase()
{
    const QString pages = m_dir.filePath(QStringLiteral("pages"));
    QVERIFY(QDir().mkpath(pages));
    const struct
    {
        const char *program;
        QStringList arguments;
    } calls[] = {
        { HOXQ_GALLERY,
            { QStringLiteral("--panel"), QStringLiteral("800x480@160x96"),
                QStringLiteral("--shots"), m_dir.path() } },
        { HOXQ_PICTURES, { pages } },
        { HOXQ_SHEET_PICTURE, { pages + QStringLiteral("/sheet.png") } },
    };
    for (const auto &call : calls) {
        const Finished result = run(QString::fromUtf8(call.program), call.arguments);
        QVERIFY2(result.exit_code == 0, qPrintable(result.output));
    }
}

// Those of the gallery bear their number before the name.
QString TestDocPictures::drawn(const QString &name) const
{
    const QDir dir(m_dir.path());
    const QStringList pages = dir.entryList({ QStringLiteral("[0-9][0-9]-") + name });
    return dir.filePath(pages.isEmpty() ? QStringLiteral("pages/") + name : pages.first());
}

void TestDocPictures::isUpToDate_data()
{
    QTest::addColumn<QString>("name");
    const QDir pictures(QStringLiteral(HOXQ_SOURCE "/docs/images"));
    QStringList names = pictures.entryList({ QStringLiteral("*.png") });
    QVERIFY(names.removeOne(QStringLiteral("red-frames.png"))); // taken from a screen
    for (const QString &name : qAsConst(names))
        QTest::newRow(qPrintable(name)) << name;
}

void TestDocPictures::isUpToDate()
{
    QFETCH(QString, name);
    PictureTolerance tolerance;
    tolerance.step = 40; // a picture of the docs has 256 colours
    const PictureDifference difference
        = PanelSheet::compare(QStringLiteral(HOXQ_SOURCE "/docs/images/") + name,
            QImage(drawn(name)).convertToFormat(QImage::Format_RGB32), tolerance);
    QVERIFY2(difference.is_accepted,
        qPrintable(difference.text + QStringLiteral(" scripts/docs --pictures renders it anew.")));
}

QTEST_GUILESS_MAIN(TestDocPictures)
#include "tst_docpictures.moc"
