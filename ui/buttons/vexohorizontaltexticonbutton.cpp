// SPDX-License-Identifier: MIT
#include "ui/buttons/vexohorizontaltexticonbutton.h"

#include "ui/foundation/accessible_p.h"
#include "ui/foundation/coverrule_p.h"
#include "ui/foundation/panelfont_p.h"
#include "ui/painting/iconpixmap_p.h"
#include "ui/painting/textblock_p.h"
#include "ui/touch/press_p.h"

#include <QPainter>
#include <QStyle>

namespace vexo::hox::qt::ui {

VexoHorizontalTextIconButton::VexoHorizontalTextIconButton(QWidget *parent)
    : QPushButton(parent)
    , VexoLogging("ghtib")
    , m_scaling(ScalingInfo::inst())
    , m_left_text(std::make_unique<TextBlock>(QTextOption::NoWrap))
    , m_right_text(std::make_unique<TextBlock>(QTextOption::NoWrap))
{
    static const CoverRule cover_rule(staticMetaObject, [](const QWidget &row) {
        return static_cast<const VexoHorizontalTextIconButton &>(row).coversAll();
    });
    setupUi();
}

VexoHorizontalTextIconButton::~VexoHorizontalTextIconButton() = default;

void VexoHorizontalTextIconButton::setupUi()
{
    setObjectName(QStringLiteral("vexoHorizontalTextIconButton"));
    setPtFontSize(m_pt_font_size);
    setMmIndent(m_mm_indent);
    setMmHeight(m_mm_height);
    setDefaultTextColor(m_default_text_color);
    setClickedTextColor(m_clicked_text_color);
    setInactiveTextColor(m_inactive_text_color);
    setDefaultBackgroundColor(m_default_background_color);
    setClickedBackgroundColor(m_clicked_background_color);
    setInactiveBackgroundColor(m_inactive_background_color);
}

void VexoHorizontalTextIconButton::setLeftSideText(const QString &text)
{
    followName(this, m_left_side_text, text);
    m_left_side_text = text;
    update();
}

void VexoHorizontalTextIconButton::setRightSideText(const QString &text)
{
    followDescription(this, m_right_side_text, text);
    m_right_side_text = text;
    update();
}

void VexoHorizontalTextIconButton::setDefaultImage(const QPixmap &image)
{
    setImage(&m_default_image, image);
}

void VexoHorizontalTextIconButton::setClickedImage(const QPixmap &image)
{
    setImage(&m_clicked_image, image);
}

void VexoHorizontalTextIconButton::setInactiveImage(const QPixmap &image)
{
    setImage(&m_inactive_image, image);
}

void VexoHorizontalTextIconButton::setDefaultTextColor(const QColor &color)
{
    setColor(&m_default_text_color, color);
}

void VexoHorizontalTextIconButton::setClickedTextColor(const QColor &color)
{
    setColor(&m_clicked_text_color, color);
}

void VexoHorizontalTextIconButton::setInactiveTextColor(const QColor &color)
{
    setColor(&m_inactive_text_color, color);
}

void VexoHorizontalTextIconButton::setDefaultBackgroundColor(const QColor &color)
{
    setColor(&m_default_background_color, color);
}

void VexoHorizontalTextIconButton::setClickedBackgroundColor(const QColor &color)
{
    setColor(&m_clicked_background_color, color);
}

void VexoHorizontalTextIconButton::setInactiveBackgroundColor(const QColor &color)
{
    setColor(&m_inactive_background_color, color);
}

void VexoHorizontalTextIconButton::setPtFontSize(int pt)
{
    m_pt_font_size = pt;
    m_font = font();
    setPtSize(m_font, pt);
    update();
}

void VexoHorizontalTextIconButton::setMmIndent(double mm)
{
    m_mm_indent = mm;
    m_indent_px = pxX(*m_scaling, mm);
    update();
}

void VexoHorizontalTextIconButton::setMmHeight(double mm)
{
    m_mm_height = mm;
    fixHeight(this, *m_scaling, mm);
}

void VexoHorizontalTextIconButton::setLeftSideTextPercentWidth(double percent)
{
    m_left_side_text_percent_width = percent;
}

void VexoHorizontalTextIconButton::setRightSideTextPercentWidth(double percent)
{
    m_right_side_text_percent_width = percent;
}

void VexoHorizontalTextIconButton::mousePressEvent(QMouseEvent *event)
{
    if (Press::begin(this, event))
        QPushButton::mousePressEvent(event);
}

void VexoHorizontalTextIconButton::mouseReleaseEvent(QMouseEvent *event)
{
    if (Press::end(this, *event) != Press::Late)
        QPushButton::mouseReleaseEvent(event);
}

void VexoHorizontalTextIconButton::paintEvent(QPaintEvent *)
{
    const int left_px = truncated(width() * m_left_side_text_percent_width / 100 - m_indent_px);
    const int right_px = truncated(width() * m_right_side_text_percent_width / 100 - m_indent_px);
    const int right_x = left_px + 2 * m_indent_px - 1;
    const QRect image_area(QPoint(right_x + right_px - 1, 0), rect().bottomRight());
    const Look look = lookOfNow();

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), look.ground);
    painter.setFont(m_font);
    painter.setPen(look.ink);
    const Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter;
    const int gap_x = m_indent_px + left_px; // between the columns
    m_left_text->draw(&painter, QRectF(m_indent_px, 0, left_px, height()), m_left_side_text,
        alignment, { look.ground, rect() });
    m_right_text->draw(&painter, QRectF(right_x, 0, right_px, height()), m_right_side_text,
        alignment, { look.ground, rect().adjusted(gap_x, 0, 0, 0) });
    if (!look.image.isNull())
        drawIconPixmap(&painter, *style(), image_area, Qt::AlignCenter, look.image);
}

void VexoHorizontalTextIconButton::setImage(QPixmap *image, const QPixmap &to)
{
    *image = to;
    for (QPixmap *other : { &m_default_image, &m_clicked_image, &m_inactive_image }) {
        if (other->isNull())
            *other = to;
    }
    update();
}

void VexoHorizontalTextIconButton::setColor(QColor *color, const QColor &to)
{
    *color = to;
    update();
}

// Whatever its state is, nothing of what lies below the row is seen.
bool VexoHorizontalTextIconButton::coversAll() const
{
    return m_default_background_color.alpha() == 255 && m_clicked_background_color.alpha() == 255
        && m_inactive_background_color.alpha() == 255;
}

VexoHorizontalTextIconButton::Look VexoHorizontalTextIconButton::lookOfNow() const
{
    if (!isEnabled())
        return { m_inactive_text_color, m_inactive_background_color, m_inactive_image };
    if (isDown())
        return { m_clicked_text_color, m_clicked_background_color, m_clicked_image };
    return { m_default_text_color, m_default_background_color, m_default_image };
}

} // namespace vexo::hox::qt::ui
