// SPDX-License-Identifier: MIT
//! [page]
#include <FontLoader>
#include <ScalingInfo>

#include <QApplication>
#include <QLabel>

using namespace vexo::hox::qt::ui;

// Part of Panel::setUp(). Without it: once, after the application object; all texts are light and
// 7 pt high from here on.
void useFonts()
{
    FontLoader();
}

// Another weight and height of the same family.
void makeHeading(QLabel *label)
{
    QFont font = QApplication::font();
    font.setWeight(QFont::Medium);
    font.setPixelSize(int(ScalingInfo::inst()->pt2px_Y(13)));
    label->setFont(font);
}
//! [page]
