// SPDX-License-Identifier: MIT
#include "ui/buttons/vexodesignvectorbutton.h"

#include "ui/foundation/panelfont_p.h"
#include "ui/painting/iconpixmap_p.h"

#include <QFontMetrics>
#include <QPainter>

namespace vexo::hox::qt::ui {

VexoDesignVectorButton::VexoDesignVectorButton(QWidget *parent)
    : ActiveVectorButton(parent)
    , m_scaling(ScalingInfo::inst())
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setMmHeight(m_mm_height);
    setMmIndent(m_mm_indent);
    setPtTextFontSize(m_pt_text_font_size);
    setPtSubtextFontSize(m_pt_subtext_font_size);
    setPtLineSpacing(m_pt_line_spacing);
    calculateTextPosition();
}

void VexoDesignVectorButton::setSubtext(const QString &text)
{
    m_subtext = text;
    update();
}

void VexoDesignVectorButton::setOnText(const QString &text)
{
    m_on_text = text;
    update();
}

void VexoDesignVectorButton::setOffText(const QString &text)
{
    m_off_text = text;
    update();
}

void VexoDesignVectorButton::setOnSubtext(const QString &text)
{
    m_on_subtext = text;
    update();
}

void VexoDesignVectorButton::setOffSubtext(const QString &text)
{
    m_off_subtext = text;
    update();
}

void VexoDesignVectorButton::setMmIconPos(const QPointF &mm)
{
    m_mm_icon_pos = mm;
    calculateIconDimension();
    update();
}

void VexoDesignVectorButton::setTextColor(const QColor &color)
{
    m_text_color = color;
    update();
}

void VexoDesignVectorButton::setTextClickedColor(const QColor &color)
{
    m_text_clicked_color = color;
    update();
}

void VexoDesignVectorButton::setBackgroundColor(const QColor &color)
{
    m_background_color = color;
    update();
}

void VexoDesignVectorButton::setBackgroundClickedColor(const QColor &color)
{
    m_background_clicked_color = color;
    update();
}

void VexoDesignVectorButton::setDarkButtonWhenOn(bool dark)
{
    m_dark_button_when_on = dark;
    update();
}

void VexoDesignVectorButton::setIgnoreBackgroundDarkRendering(bool ignore)
{
    m_ignore_background_dark_rendering = ignore;
    update();
}

void VexoDesignVectorButton::setMmHeight(double mm)
{
    m_mm_height = mm;
    fixHeight(this, *m_scaling, mm);
    calculateTextPosition();
}

void VexoDesignVectorButton::setMmIndent(double mm)
{
    m_mm_indent = mm;
    const int x = pxX(*m_scaling, mm);
    m_text_pos.setX(x);
    m_subtext_pos.setX(x);
    update();
}

void VexoDesignVectorButton::setPtTextFontSize(double pt)
{
    m_pt_text_font_size = pt;
    calculateTextPosition();
}

void VexoDesignVectorButton::setPtSubtextFontSize(double pt)
{
    m_pt_subtext_font_size = pt;
    calculateTextPosition();
}

void VexoDesignVectorButton::setPtLineSpacing(double pt)
{
    m_pt_line_spacing = pt;
    calculateTextPosition();
}

void VexoDesignVectorButton::calculateIconDimension()
{
    const QSize px = pxIconSize();
    const float left = m_scaling->mm2px_X(float(m_mm_icon_pos.x())) - float(px.width() >> 1);
    const float top = m_scaling->mm2px_Y(float(m_mm_icon_pos.y())) - float(px.height() >> 1);
    m_icon_rect = QRect(truncated(double(left)), truncated(double(top)), px.width(), px.height());
}

void VexoDesignVectorButton::calculateTextPosition()
{
    setPtSize(m_text_font, m_pt_text_font_size);
    m_text_font.setWeight(QFont::Medium);
    setPtSize(m_subtext_font, m_pt_subtext_font_size);
    const int spacing = pxPt(*m_scaling, m_pt_line_spacing);
    // In double, where no line spacing overflows.
    const double free = double(height()) - spacing - m_subtext_font.pixelSize();
    const double baseline = QFontMetrics(m_text_font).ascent() + free / 2.0;
    m_text_pos.setY(truncated(baseline));
    m_subtext_pos.setY(truncated(double(m_text_pos.y()) + spacing));
    update();
}

bool VexoDesignVectorButton::mustBackgroundBeRenderedPressed() const
{
    return isCheckable() && m_dark_button_when_on && isChecked();
}

bool VexoDesignVectorButton::isToggleTextSet() const
{
    return !m_on_text.isEmpty() && !m_off_text.isEmpty() && !m_on_subtext.isEmpty()
        && !m_off_subtext.isEmpty();
}

void VexoDesignVectorButton::paintEvent(QPaintEvent *)
{
    calculateIconDimension();
    const bool is_dark = isDark();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), is_dark ? m_background_clicked_color : m_background_color);
    painter.setPen(is_dark ? m_text_clicked_color : m_text_color);
    drawIcon(&painter, shownIcon(is_dark));
    drawTexts(&painter);
}

bool VexoDesignVectorButton::isDark() const
{
    return (isDown() || mustBackgroundBeRenderedPressed() || isChecked())
        && !m_ignore_background_dark_rendering;
}

QIcon VexoDesignVectorButton::shownIcon(bool is_dark)
{
    if (!is_dark)
        return icon();
    return hasState(QLatin1String(CLICKED_STATE_NAME))
        ? getStateIcon(QLatin1String(CLICKED_STATE_NAME))
        : inverseIcon();
}

void VexoDesignVectorButton::drawIcon(QPainter *painter, const QIcon &icon) const
{
    drawIconPixmap(painter, *style(), m_icon_rect, Qt::AlignCenter,
        iconPixmap(icon, m_icon_rect.size(), pixelRatio(*painter)));
}

void VexoDesignVectorButton::drawTexts(QPainter *painter) const
{
    const bool has_toggle_texts = isCheckable() && isToggleTextSet();
    const QString &on_or_off = isChecked() ? m_on_text : m_off_text;
    const QString &sub_on_or_off = isChecked() ? m_on_subtext : m_off_subtext;
    painter->setFont(m_text_font);
    painter->drawText(m_text_pos, has_toggle_texts ? on_or_off : text());
    const QString &second_line = has_toggle_texts ? sub_on_or_off : m_subtext;
    if (second_line.isEmpty())
        return;
    painter->setFont(m_subtext_font);
    painter->drawText(m_subtext_pos, second_line);
}

} // namespace vexo::hox::qt::ui
