// SPDX-License-Identifier: MIT
#include "panel/paneltranslations.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QTranslator>

#include <dlfcn.h>
#include <memory>

namespace vexo::hox::qt::panel {

namespace {

Q_LOGGING_CATEGORY(channel, "hoxq.translations", QtInfoMsg)

const QString domain = QStringLiteral("hoxqui");

// As the loader found it: a link into another tree, too.
QFileInfo libraryFile()
{
    static const char within = 0;
    Dl_info info{};
    const bool is_known = dladdr(&within, &info) != 0 && info.dli_fname;
    return QFileInfo(is_known ? QFile::decodeName(info.dli_fname) : QString());
}

std::unique_ptr<QTranslator> loaded(const QLocale &locale)
{
    auto catalogue = std::make_unique<QTranslator>();
    if (!catalogue->load(locale, domain, QStringLiteral("_"), PanelTranslations::folder()))
        return nullptr;
    catalogue->setObjectName(domain);
    return catalogue;
}

// None for English, also where another language would be the second choice.
std::unique_ptr<QTranslator> chosen(const QLocale &locale)
{
    const QStringList names = locale.uiLanguages();
    for (const QString &name : names) {
        const QLocale wanted(name);
        if (wanted.language() == QLocale::English)
            return nullptr;
        if (auto catalogue = loaded(wanted))
            return catalogue;
    }
    return nullptr;
}

// The application keeps it, so nothing dangles when the library is unloaded.
QTranslator *inUse()
{
    const QCoreApplication *application = QCoreApplication::instance();
    return application ? application->findChild<QTranslator *>(domain, Qt::FindDirectChildrenOnly)
                       : nullptr;
}

QString pathOf(const QTranslator *catalogue)
{
    return catalogue ? catalogue->filePath() : QString();
}

} // namespace

void PanelTranslations::setLocale(const QLocale &locale)
{
    QCoreApplication *application = QCoreApplication::instance();
    if (!application)
        return;
    QTranslator *before = inUse();
    std::unique_ptr<QTranslator> now = chosen(locale);
    qCDebug(channel, "%s: %s", qPrintable(locale.name()),
        now ? qPrintable(now->filePath()) : "none, texts are English");
    if (pathOf(now.get()) == pathOf(before))
        return;
    if (now) {
        now->setParent(application);
        QCoreApplication::installTranslator(now.release());
    }
    delete before;
}

QString PanelTranslations::language()
{
    const QTranslator *catalogue = inUse();
    return catalogue ? catalogue->language() : QStringLiteral("en");
}

QString PanelTranslations::folder()
{
    const QString named = qEnvironmentVariable("HOXQUI_TRANSLATIONS");
    if (!named.isEmpty())
        return QDir(named).absolutePath();
    const QFileInfo library = libraryFile();
    const auto from = [](const QString &folder, const char *way) {
        return QDir::cleanPath(folder + QLatin1Char('/') + QLatin1String(way));
    };
    QString installed = from(library.absolutePath(), HOXQ_CATALOGUES);
    const QStringList places{ installed, from(library.canonicalPath(), HOXQ_CATALOGUES),
        from(library.canonicalPath(), "translations") };
    for (const QString &place : places) {
        if (QFileInfo(place).isDir())
            return place;
    }
    return installed;
}

} // namespace vexo::hox::qt::panel
