#pragma once
// SPDX-License-Identifier: MIT

#include <ScalingInfo>

#include <QFont>
#include <QLabel>
#include <QMargins>

namespace vexo::hox::qt::panel {

/// Whole px of a width in mm, at least one of what is above 0.
inline int mmX(double mm)
{
    const float px = ui::ScalingInfo::inst()->mm2px_X(float(mm));
    return px > 0 ? qBound(1, int(qMin(px, float(QWIDGETSIZE_MAX))), QWIDGETSIZE_MAX) : 0;
}

/// The same for a height.
inline int mmY(double mm)
{
    const float px = ui::ScalingInfo::inst()->mm2px_Y(float(mm));
    return px > 0 ? qBound(1, int(qMin(px, float(QWIDGETSIZE_MAX))), QWIDGETSIZE_MAX) : 0;
}

/// Margins of these widths and heights in mm.
inline QMargins mmMargins(double width, double height)
{
    return QMargins(mmX(width), mmY(height), mmX(width), mmY(height));
}

/// A label for plain texts that wrap, \a pt high.
inline QLabel *createText(double pt, int weight, QWidget *parent)
{
    auto *label = new QLabel(parent);
    QFont font = label->font(); // family and stretch of the application
    font.setPixelSize(qMax(1, int(ui::ScalingInfo::inst()->pt2px_Y(float(pt)))));
    font.setWeight(weight);
    label->setFont(font);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

inline void setInk(QLabel *label, const QColor &color)
{
    QPalette colors = label->palette();
    colors.setColor(QPalette::WindowText, color);
    label->setPalette(colors);
}

} // namespace vexo::hox::qt::panel
