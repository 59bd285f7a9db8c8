// SPDX-License-Identifier: MIT
#include "ui/foundation/fontloader.h"

#include "ui/foundation/inputfile_p.h"
#include "ui/foundation/panelfont_p.h"

#include <QApplication>
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
    const qint64 max_bytes = qint64(32) << 20;
    InputFile file(name, max_bytes);
    const int id = file.isResource() ? QFontDatabase::addApplicationFont(name)
                                     : QFontDatabase::addApplicationFontFromData(file.read());
    return QFontDatabase::applicationFontFamilies(id).value(0);
}

} // namespace vexo::hox::qt::ui
