// SPDX-License-Identifier: MIT
#include "benchmarks/operations/operations.h"

#include <CachedVectorIcon>
#include <QDateTime>
#include <QFile>
#include <QPixmapCache>
#include <QTemporaryDir>
#include <ScalingInfo>

#include <memory>

using namespace vexo::hox::qt::ui;

namespace bench {

namespace {

const QSize icon_px(47, 47);

QPixmap libraryPixmap(const QString &file)
{
    return CachedVectorIcon(file, icon_px).toPixmap();
}

QPixmap stockPixmap(const QString &file)
{
    return QIcon(file).pixmap(icon_px);
}

// Copies of an image that no cache has met yet. They are an hour old: nobody caches a file that
// may still be changing.
class FreshFiles
{
public:
    FreshFiles(const QString &image, const QString &suffix, int count)
        : m_suffix(suffix)
    {
        for (int i = 0; i < count; ++i)
            addCopy(image, path(i));
        QPixmapCache::clear();
    }

    QString next() { return path(m_next++); }

private:
    QString path(int index) const { return m_folder.filePath(QString::number(index) + m_suffix); }

    void addCopy(const QString &image, const QString &copy)
    {
        QFile file(copy);
        QFile source(image);
        if (!source.open(QIODevice::ReadOnly) || !file.open(QIODevice::WriteOnly)
            || file.write(source.readAll()) <= 0 || !file.flush()
            || !file.setFileTime(
                QDateTime::currentDateTime().addSecs(-3600), QFileDevice::FileModificationTime))
            qFatal("%s cannot be copied", qPrintable(image));
    }

    QTemporaryDir m_folder;
    QString m_suffix;
    int m_next = 0;
};

using Render = QPixmap (*)(const QString &);

void show(const QPixmap &pixmap)
{
    if (pixmap.size() != icon_px)
        qFatal("an icon was not rendered");
}

void addCold(const char *what, const char *variant, Render render, const QString &image,
    const QString &suffix)
{
    const auto prepare = [=](int times) {
        const int warm_up = 1;
        return [=, files = std::make_shared<FreshFiles>(image, suffix, times + warm_up)] {
            show(render(files->next()));
        };
    };
    add(what, variant, prepare, 100);
}

void addAnotherIcon(const char *variant, Render render, const QString &image)
{
    add("icon-shared", variant, [=](int) { return [=] { show(render(image)); }; });
}

} // namespace

void addIcons()
{
    // One density for both axes, so that the library's icon is the same 47 px.
    ScalingInfo::inst()->setPixels(1280, 800);
    ScalingInfo::inst()->setSizeMM(128, 80);
    const auto svg = QStringLiteral(":/widgetimages/RoundButton_S_Tick_Active.svg");
    const auto png = QStringLiteral(":/knob_shadow");
    addCold("svg-cold", "library", libraryPixmap, svg, QStringLiteral(".svg"));
    addCold("svg-cold", "stock", stockPixmap, svg, QStringLiteral(".svg"));
    addCold("png-cold", "library", libraryPixmap, png, QStringLiteral(".png"));
    addCold("png-cold", "stock", stockPixmap, png, QStringLiteral(".png"));
    addAnotherIcon("library", libraryPixmap, svg);
    addAnotherIcon("stock", stockPixmap, svg);
    add("icon-asked", "library", [=](int) {
        return [icon = CachedVectorIcon(svg, icon_px)]() mutable { show(icon.toPixmap()); };
    });
    add("icon-asked", "stock",
        [=](int) { return [icon = QIcon(svg)] { show(icon.pixmap(icon_px)); }; });
}

} // namespace bench
