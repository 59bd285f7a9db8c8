// SPDX-License-Identifier: MIT
#include "ui/text/vexoruler.h"

#include "ui/foundation/coverrule_p.h"
#include "ui/foundation/pixels_p.h"

#include <QPainter>

namespace vexo::hox::qt::ui {

namespace {

// By style, from top to bottom: px in the first colour, negative ones in the second.
constexpr int LINES[VexoRuler::Transparent][3] = {
    { 1 }, // MainUnderHeading
    { -1, 1 }, // MainMiddle
    { 1 }, // MainOverNextHeading
    { 20, -2, 1 }, // MainOverSpecialKeys
    { 1 }, // MainOverButton
    { -1 }, // MainUnderButton
    { -1 }, // MainUnderLastItem
    { -1, 2 }, // MainUnderCentralFunctionButton
    { 1 }, // SettingsUnderHeading
    { -1, 1 }, // SettingsMiddle
    { 1 }, // SettingsOverButton
    { -1 }, // SettingsUnderButton
    { 1 }, // SettingsOverNextHeading
    { -1 }, // SettingsUnderLastItem
};

} // namespace

VexoRuler::VexoRuler(QWidget *parent, VexoRulerStyle style, float white_space_above_mm)
    : QWidget(parent)
    , m_style(style)
{
    setWhiteSpaceAbove(white_space_above_mm);
    setupLineDescriptions(style);
    setFixedHeight(m_height);
    setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Fixed);
    qRegisterMetaType<VexoRulerStyle>("VexoRulerStyle");
    static const CoverRule cover_rule(staticMetaObject,
        [](const QWidget &ruler) { return static_cast<const VexoRuler &>(ruler).coversAll(); });
}

void VexoRuler::setFirstLineColor(const QColor &color)
{
    m_first_line_color = color;
}

void VexoRuler::setSecondLineColor(const QColor &color)
{
    m_second_line_color = color;
}

void VexoRuler::setRulerStyle(VexoRulerStyle style)
{
    m_style = style;
    cleanupDescriptions();
    setupLineDescriptions(style);
    update();
}

void VexoRuler::setWhiteSpaceAbove(float mm)
{
    const float least_mm = 0.01F;
    if (mm > least_mm)
        addLineDescription(m_first_line_color, widgetPx(pxY(*ScalingInfo::inst(), double(mm))));
}

void VexoRuler::paintEvent(QPaintEvent *)
{
    const double hairline = 1 / devicePixelRatioF(); // one pixel of the screen
    QPainter painter(this);
    int y = 0;
    for (const LineComponent &line : qAsConst(m_lines)) {
        if (y >= height())
            break;
        const double height_px = line.thickness > 1 ? line.thickness : hairline;
        painter.fillRect(QRectF(0, y, width(), height_px), line.color);
        y += line.thickness;
    }
}

// Nothing of what lies below the ruler is seen. On a finer screen a line of one pixel is thinner.
bool VexoRuler::coversAll() const
{
    int covered_px = 0;
    for (const LineComponent &line : qAsConst(m_lines)) {
        if (line.color.alpha() < 255)
            break;
        covered_px = widgetPx(covered_px + line.thickness);
    }
    return covered_px >= height() && devicePixelRatioF() == 1;
}

void VexoRuler::addLineDescription(const QColor &color, int thickness)
{
    m_lines.append({ color, thickness });
    m_height = widgetPx(m_height + thickness);
}

void VexoRuler::setupLineDescriptions(const VexoRulerStyle &style)
{
    if (style == Transparent)
        addLineDescription(Qt::transparent, 2);
    if (style < MainUnderHeading || style >= Transparent)
        return;
    for (const int px : LINES[style]) {
        if (px != 0)
            addLineDescription(px > 0 ? m_first_line_color : m_second_line_color, qAbs(px));
    }
}

void VexoRuler::cleanupDescriptions()
{
    m_lines.clear();
    m_height = 0;
}

} // namespace vexo::hox::qt::ui
