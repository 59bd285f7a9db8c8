// SPDX-License-Identifier: MIT
#include "benchmarks/support/screen.h"

#include <QApplication>
#include <QFontDatabase>

namespace bench {

namespace {

QString addFont(const char *path)
{
    const int id = QFontDatabase::addApplicationFont(QString::fromLatin1(path));
    return QFontDatabase::applicationFontFamilies(id).value(0);
}

} // namespace

void setUpPanel()
{
    addFont(":/fonts/DroidSansFallback.ttf");
    addFont(":/fonts/UniversNextW1G-Medium.otf");
    addFont(":/fonts/UniversNextW1G-Bold.otf");
    addFont(":/fonts/UniversNextW1G-Regular.otf");
    QFont font(addFont(":/fonts/UniversNextW1G-Light.otf"));
    font.setWeight(QFont::Light);
    font.setPixelSize(24); // 7 pt at 10 px/mm
    QApplication::setFont(font);
    qApp->setStyleSheet(stockStyleSheet());
}

} // namespace bench
