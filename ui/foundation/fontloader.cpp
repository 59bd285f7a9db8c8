// SPDX-License-Identifier: MIT
#include "ui/foundation/fontloader.h"

#include "ui/files/inputfile_p.h"
#include "ui/files/loadedbytes_p.h"
#include "ui/foundation/panelfont_p.h"

#include <QApplication>
#include <QFileInfo>
#include <QFontDatabase>

namespace vexo::hox::qt::ui {

namespace {

QFont applicationFont(const QString &family)
{
    const int largest_stretch = 4000; // beyond it the toolkit refuses the stretch with a warning
    QFont font(family);
    font.setWeight(QFont::Light);
    font.setStretch(qBound(1, ScalingInfo::inst()->fontStretch(), largest_stretch));
    setPtSize(font, 7.0);
    return font;
}

// A path is read to the heap where it names a resource, and once more for each face in use.
int registered(const QString &name)
{
    const qint64 max_bytes = qint64(32) << 20;
    const InputFile file(name, max_bytes);
    if (!file.isReadable())
        return -1;
    const QByteArray bytes = file.inPlace();
    if (!keepLoaded(bytes))
        return QFontDatabase::addApplicationFont(QFileInfo(file.path()).absoluteFilePath());
    const int id = QFontDatabase::addApplicationFontFromData(bytes);
    giveBack(bytes); // most of them were read to describe the font, and may never be again
    return id;
}

} // namespace

FontLoader::FontLoader()
{
    // Filled first: otherwise the toolkit parses the five files again when it fills the database
    // for the first text, which costs a fifth of an application's start.
    const QFontDatabase filled;
    Q_UNUSED(filled)
    loadFont(":/fonts/DroidSansFallback.ttf");
    loadFont(":/fonts/UniversNextW1G-Medium.otf");
    loadFont(":/fonts/UniversNextW1G-Bold.otf");
    loadFont(":/fonts/UniversNextW1G-Regular.otf");
    QApplication::setFont(applicationFont(loadFont(":/fonts/UniversNextW1G-Light.otf")));
}

QString FontLoader::loadFont(const char *path)
{
    const QString name = QString::fromUtf8(path);
    if (name.isEmpty())
        return QString();
    return QFontDatabase::applicationFontFamilies(registered(name)).value(0);
}

} // namespace vexo::hox::qt::ui
