#include "gallery/widgets/mmsheets.h"

#include "gallery/measures.h"

#include <VexoColors>

#include <QString>

using vexo::hox::qt::ui::VexoColors;

// The handle reaches over the groove by its margin and has its border inside; a radius of more than
// half of it would make it square.
QString sliderSheet()
{
    const QString sheet = "QSlider::groove:horizontal { height: %1px; border: none; }"
                          "QSlider::sub-page:horizontal { background: %5; border-radius: 0; }"
                          "QSlider::add-page:horizontal { background: %6; border-radius: 0; }"
                          "QSlider::handle:horizontal { width: %2px; margin: -%3px 0; background: "
                          "white; border: %4px solid %5; border-radius: %7px %8px; }";
    const int groove_px = mmY(1);
    const int handle_px = mmX(5.6);
    const int margin_px = mmY(2.7);
    const int border_px = mmX(0.4);
    return sheet.arg(groove_px)
        .arg(handle_px)
        .arg(margin_px)
        .arg(border_px)
        .arg(VexoColors::C7.name(), VexoColors::C6.name())
        .arg(handle_px / 2 + border_px)
        .arg(groove_px / 2 + margin_px);
}

QString indicatorSheet(const QColor &text)
{
    const QString sheet = "QCheckBox, QRadioButton { color: %1; spacing: %2px; }"
                          "QCheckBox::indicator { width: %3px; height: %4px; }"
                          "QRadioButton::indicator { width: %5px; height: %4px; }"
                          "QCheckBox:disabled, QRadioButton:disabled { color: %6; }";
    return sheet.arg(text.name())
        .arg(mmX(1.5))
        .arg(mmX(12))
        .arg(mmY(7))
        .arg(mmX(7))
        .arg(VexoColors::C6.name());
}
