// SPDX-License-Identifier: MIT
#include "package/process.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <cxxabi.h>

namespace {

QString demangled(const QByteArray &symbol)
{
    int status = 0;
    char *name = abi::__cxa_demangle(symbol.constData(), nullptr, nullptr, &status);
    QString readable = QString::fromLatin1(status == 0 ? name : symbol.constData());
    free(name);
    return readable;
}

/// The class of ours that a symbol belongs to ("vtable for vexo::util::StringUtil"), the function
/// if it is one of the kit, or empty.
QString ownerOf(const QString &symbol)
{
    static const QRegularExpression ours(
        "^(?:[a-z -]+ (?:for|to) )?vexo::(?:hox::qt::(?:ui|uitest|panel|system)|util)::(\\w+)(.*)");
    const QRegularExpressionMatch match = ours.match(symbol);
    const bool is_function = match.captured(2).startsWith(QLatin1Char('('));
    const bool is_of_kit = symbol.startsWith("vexo::hox::qt::uitest::");
    return is_function && !is_of_kit ? QString() : match.captured(1);
}

/// Weak symbols of the toolkit's and the language's own templates, marks of the linker and what
/// the sanitizer adds are nobody's interface.
bool isForeign(const QString &symbol, QChar type)
{
    static const QRegularExpression marks(
        QString("^(_init|_fini|_edata|_end|__bss_start|__(odr_)?asan.*)$"));
    const bool is_weak = QString("WVu").contains(type);
    const bool is_ours = !ownerOf(symbol).isEmpty() || symbol.startsWith(QString("vexo::"));
    return marks.match(symbol).hasMatch() || (is_weak && !is_ours);
}

/// A copy of what the widgets' library defines in a header.
bool isOfWidgets(const QString &symbol, QChar type)
{
    return QStringLiteral("WVu").contains(type)
        && symbol.startsWith(QLatin1String("vexo::hox::qt::ui::"));
}

/// The member functions that the exported class of a header defines on one line, as Class::name.
QStringList inlineFunctions(const QString &header)
{
    static const QRegularExpression head(
        "^class HOXQUI_EXPORT (\\w+)", QRegularExpression::MultilineOption);
    static const QRegularExpression function(
        "^    [\\w:<>&* ]+?[&* ](\\w+)\\([^()]*\\)(?: const)? \\{ .* \\}$",
        QRegularExpression::MultilineOption);
    QFile file(header);
    if (!file.open(QIODevice::ReadOnly))
        return QStringList(header);
    const QString text = QString::fromUtf8(file.readAll());
    const QRegularExpressionMatch name = head.match(text);
    QStringList functions;
    auto found = function.globalMatch(text, qMax(0, name.capturedEnd()));
    while (name.hasMatch() && found.hasNext())
        functions += name.captured(1) + "::" + found.next().captured(1);
    return functions;
}

} // namespace

class TestLibrary : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void exportsItsPublicClassesAndNothingElse_data();
    void exportsItsPublicClassesAndNothingElse();
    void inlineFunctionsAreExportedToo();
    void hasItsVersionAndFindsItsNeighbour_data();
    void hasItsVersionAndFindsItsNeighbour();
    void runPathsStayInTheTree();
    void bringsItsLicenceAndNotices();

private:
    QString path(const QString &file) const { return m_folder.filePath(file); }
    QStringList exported(const QString &library) const;

    const QDir m_folder{ QStringLiteral(HOXQ_STAGE "/" HOXQ_LIBDIR) };
};

void TestLibrary::exportsItsPublicClassesAndNothingElse_data()
{
    QStringList ui = QStringLiteral(HOXQ_CLASSES).split(QLatin1Char(' '));
    QStringList kit = QStringLiteral(HOXQ_KIT_CLASSES).split(QLatin1Char(' '));
    for (const char *without_symbols : { "ButtonState", "LineComponent" })
        QVERIFY(ui.removeOne(QLatin1String(without_symbols)));
    for (const char *bundle : { "fonts", "stylesheets", "widgetimages" }) {
        ui.append(QString("qInitResources_%1()").arg(QLatin1String(bundle)));
        ui.append(QString("qCleanupResources_%1()").arg(QLatin1String(bundle)));
    }
    QTest::addColumn<QStringList>("interface");
    QTest::newRow("libhoxqui.so") << ui;
    QTest::newRow("libhoxqsystem.so") << QStringList(QStringLiteral(HOXQ_SYSTEM_CLASSES));
    QStringList panel = QStringLiteral(HOXQ_PANEL_CLASSES).split(QLatin1Char(' '));
    panel.append("ScreenFacts"); // in the header of another
    QVERIFY(panel.removeOne("PanelOptions")); // without symbols
    QTest::newRow("libhoxqpanel.so") << panel;
    for (const char *companion : { "SoakResult", "TouchLimits", "soak" }) // in headers of others
        kit.append(QLatin1String(companion));
    QVERIFY(kit.removeOne("Soak"));
    QTest::newRow("libhoxquitest.so") << kit;
}

void TestLibrary::exportsItsPublicClassesAndNothingElse()
{
    QFETCH(QStringList, interface);
    QStringList missing = interface;
    const bool is_beside_widgets = qstrcmp(QTest::currentDataTag(), "libhoxqpanel.so") == 0;
    const QStringList lines = exported(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(!lines.isEmpty());
    for (const QString &line : lines) {
        const QString symbol = demangled(line.section(QLatin1Char(' '), 0, 0).toLatin1());
        const QChar type = line.section(QLatin1Char(' '), 1, 1).at(0);
        const QString owner = ownerOf(symbol).isEmpty() ? symbol : ownerOf(symbol);
        missing.removeAll(owner);
        const bool is_copy = is_beside_widgets && isOfWidgets(symbol, type);
        QVERIFY2(
            is_copy || interface.contains(owner) || isForeign(symbol, type), qPrintable(symbol));
    }
    QCOMPARE(missing, QStringList());
}

QStringList TestLibrary::exported(const QString &library) const
{
    const Finished nm
        = run(QStringLiteral(HOXQ_NM), { "-D", "--defined-only", "--format=posix", path(library) });
    return nm.output.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

/// An application that was built against headers which only declare them needs them.
void TestLibrary::inlineFunctionsAreExportedToo()
{
    QStringList symbols;
    const QStringList lines = exported("libhoxqui.so");
    for (const QString &line : lines)
        symbols += demangled(line.section(QLatin1Char(' '), 0, 0).toLatin1())
                       .remove("vexo::hox::qt::ui::");
    QVERIFY(symbols.contains("CachedVectorIcon::isBitmap(QString const&)"));
    QStringList missing;
    for (int color = 0; color < 14; ++color)
        missing += QString("VexoColors::C%1").arg(color);
    const QDir headers(QStringLiteral(HOXQ_STAGE "/include/hoxqui/ui"));
    QDirIterator files(headers.path(), { "*.h" }, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QStringList functions = inlineFunctions(files.next());
        for (const QString &function : functions)
            missing += function;
    }
    QVERIFY(missing.size() > 14 + 100);
    for (const QString &symbol : qAsConst(symbols))
        missing.removeAll(symbol.section(QLatin1Char('('), 0, 0));
    QCOMPARE(missing, QStringList());
}

void TestLibrary::hasItsVersionAndFindsItsNeighbour_data()
{
    QTest::addColumn<QString>("run_path");
    QTest::newRow("libhoxqui.so") << "[$ORIGIN]";
    QTest::newRow("libhoxqsystem.so") << QString();
    QTest::newRow("libhoxqpanel.so") << "[$ORIGIN]";
    QTest::newRow("libhoxquitest.so") << "[$ORIGIN]";
}

void TestLibrary::hasItsVersionAndFindsItsNeighbour()
{
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    const QString version = name + ".1";
    QVERIFY(QFile::symLinkTarget(path(version)).endsWith(name + QLatin1String("." HOXQ_VERSION)));
    const Finished readelf = run(QStringLiteral(HOXQ_READELF), { "-dW", path(name) });
    static const QRegularExpression soname("\\(SONAME\\).*\\[(.*)\\]");
    static const QRegularExpression run_path("\\(R(?:UN)?PATH\\).*(\\[.*\\])");
    QCOMPARE(soname.match(readelf.output).captured(1), version);
    QTEST(run_path.match(readelf.output).captured(1), "run_path");
}

/// Of libraries, plugins and programs: from where the file lies, as far as it needs others of ours.
void TestLibrary::runPathsStayInTheTree()
{
    QStringList files;
    QDirIterator tree(
        QStringLiteral(HOXQ_STAGE), QDir::Files | QDir::NoSymLinks, QDirIterator::Subdirectories);
    while (tree.hasNext()) {
        const QString file = tree.next();
        if (!file.startsWith(HOXQ_STAGE "/bin/") && !file.contains(".so"))
            continue;
        const QString output = run(QStringLiteral(HOXQ_READELF), { "-dW", file }).output;
        static const QRegularExpression needs("\\(NEEDED\\).*\\[libhoxq");
        static const QRegularExpression run_path("\\(R(?:UN)?PATH\\).*\\[(.*)\\]");
        const QString path = run_path.match(output).captured(1);
        const bool needs_ours = needs.match(output).hasMatch();
        QVERIFY2(!needs_ours || path.startsWith("$ORIGIN"), qPrintable(file + ' ' + path));
        QVERIFY2(!path.contains(HOXQ_SOURCE), qPrintable(file + ' ' + path));
        files += file.section('/', -1);
    }
    QVERIFY(files.contains("hoxqui-panel") && files.contains("libhoxquikeyboard.so"));
}

void TestLibrary::bringsItsLicenceAndNotices()
{
    const auto text = [](const char *name) {
        QFile file(QStringLiteral(HOXQ_STAGE "/share/doc/hoxqui/") + QLatin1String(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    QVERIFY(text("LICENSE").contains("The HoxqUi authors"));
    QVERIFY(text("NOTICES.md").contains("SIL Open Font License"));
}

QTEST_APPLESS_MAIN(TestLibrary)
#include "tst_library.moc"
