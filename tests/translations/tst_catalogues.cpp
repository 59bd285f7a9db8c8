// SPDX-License-Identifier: MIT
#include "package/process.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

namespace {

/// The places that a text leaves for figures, "%1%2".
QString placesIn(const QString &text)
{
    static const QRegularExpression place("%\\d+");
    QStringList places;
    auto found = place.globalMatch(text);
    while (found.hasNext())
        places += found.next().captured();
    places.sort();
    return places.join(QString());
}

QString faultOf(const QString &source, const QString &state, const QString &translation)
{
    if (state == QLatin1String("vanished") || state == QLatin1String("obsolete"))
        return source + ": is no longer in the sources";
    if (!state.isEmpty() || translation.isEmpty())
        return source + ": has no translation";
    return placesIn(source) == placesIn(translation) ? QString() : source + ": other figures";
}

QStringList faultsIn(const QString &file)
{
    QFile catalogue(file);
    if (!catalogue.open(QIODevice::ReadOnly))
        return { file + ": cannot be read" };
    QXmlStreamReader xml(&catalogue);
    QStringList faults;
    QString source;
    int count = 0;
    while (xml.readNext() != QXmlStreamReader::EndDocument && !xml.hasError()) {
        if (xml.isStartElement() && xml.name() == QLatin1String("source"))
            source = xml.readElementText();
        if (!xml.isStartElement() || xml.name() != QLatin1String("translation"))
            continue;
        const QString state = xml.attributes().value("type").toString();
        faults += faultOf(source, state, xml.readElementText());
        ++count;
    }
    faults.removeAll(QString());
    if (xml.hasError() || count == 0)
        faults += file + ": is no catalogue: " + xml.errorString();
    return faults;
}

/// What is wrong about the catalogue \a file, which is brought up to date, for the sources in
/// \a folders.
QStringList faultsOf(const QString &file, const QStringList &folders)
{
    const QStringList options{ "-silent", "-I", ".", "-extensions", "cpp,h,ui" };
    const Finished lupdate = run(QStringLiteral(HOXQ_LUPDATE),
        options + folders + QStringList{ "-ts", file }, QStringLiteral(HOXQ_SOURCE));
    if (lupdate.exit_code != 0 || !lupdate.output.isEmpty())
        return { QStringLiteral("lupdate, of the package qttools5-dev-tools: ") + lupdate.output };
    return faultsIn(file);
}

} // namespace

/// The catalogues have each text of the sources, and no other. See docs/translations.md.
class TestCatalogues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void areComplete_data();
    void areComplete();
    void whatIsMissingOrLeftOverIsFound();

private:
    /// A copy in m_folder, which lupdate may write to.
    QString copyOf(const QString &catalogue) const;

    const QTemporaryDir m_folder;
};

QString TestCatalogues::copyOf(const QString &catalogue) const
{
    const QString copy = m_folder.filePath(QFileInfo(catalogue).fileName());
    QFile::remove(copy);
    return QFile::copy(catalogue, copy) ? copy : QString();
}

void TestCatalogues::areComplete_data()
{
    QTest::addColumn<QString>("catalogue");
    QTest::addColumn<QStringList>("folders");
    const QDir libraries(QStringLiteral(HOXQ_SOURCE "/translations"));
    const QStringList names = libraries.entryList({ "hoxqui_*.ts" });
    QVERIFY(names.contains("hoxqui_de.ts"));
    for (const QString &name : names)
        QTest::newRow(qPrintable(name)) << libraries.filePath(name) << QStringList{ "ui", "panel" };
    QTest::newRow("example") << QStringLiteral(HOXQ_SOURCE "/examples/panel/panel_de.ts")
                             << QStringList{ "examples/panel" };
}

void TestCatalogues::areComplete()
{
    QFETCH(QString, catalogue);
    QFETCH(QStringList, folders);
    QCOMPARE(faultsOf(copyOf(catalogue), folders).join('\n'), QString());
}

void TestCatalogues::whatIsMissingOrLeftOverIsFound()
{
    const QString copy = copyOf(QStringLiteral(HOXQ_SOURCE "/translations/hoxqui_de.ts"));
    QFile file(copy);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QByteArray text = file.readAll();
    text.replace("<source>Space<", "<source>Blank<").replace("%1; oder %2", "%1; oder %1");
    file.resize(0);
    file.seek(0);
    file.write(text);
    file.close();
    QStringList faults = faultsOf(copy, { "ui", "panel" });
    faults.sort();
    const QStringList expected{ "%1; or %2: other figures", "Blank: is no longer in the sources",
        "Space: has no translation" };
    QCOMPARE(faults, expected);
}

QTEST_APPLESS_MAIN(TestCatalogues)
#include "tst_catalogues.moc"
