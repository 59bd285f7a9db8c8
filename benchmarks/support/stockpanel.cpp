// SPDX-License-Identifier: MIT
#include "benchmarks/support/screen.h"

#include <QApplication>
#include <QFile>
#include <QFontDatabase>

namespace bench {

namespace {

QString addFont(const char *path)
{
    const int id = QFontDatabase::addApplicationFont(QFile::decodeName(path));
    return QFontDatabase::applicationFontFamilies(id).value(0);
}

} // namespace

void setUpFonts()
{
    addFont(HOXQ_FONT_FALLBACK); // files, or resources of the program
    addFont(HOXQ_FONT_MEDIUM);
    addFont(HOXQ_FONT_BOLD);
    addFont(HOXQ_FONT_REGULAR);
    QFont font(addFont(HOXQ_FONT_LIGHT));
    font.setWeight(QFont::Light);
    font.setPixelSize(24); // 7 pt at 10 px/mm
    QApplication::setFont(font);
}

void setUpSheets()
{
    qApp->setStyleSheet(stockStyleSheet());
}

} // namespace bench
