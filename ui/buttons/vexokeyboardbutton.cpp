// SPDX-License-Identifier: MIT
#include "ui/buttons/vexokeyboardbutton.h"

#include "ui/foundation/cachedvectoricon.h"
#include "ui/foundation/panelfont_p.h"
#include "ui/painting/iconpixmap_p.h"
#include "ui/painting/roundedframe_p.h"
#include "ui/painting/textblock_p.h"

#include <QGuiApplication>
#include <QStylePainter>

namespace vexo::hox::qt::ui {

struct VexoKeyboardButton::Renderings
{
    LookPair<std::pair<QColor, QSize>, QPixmap> caps; // by ground; forgotten for another look
    TextBlock label;
};

const QString VexoKeyboardButton::SHIFT_LEFT_BUTTON_OBJECT_NAME = QStringLiteral("shiftLeftButton");
const QString VexoKeyboardButton::SHIFT_RIGHT_BUTTON_OBJECT_NAME
    = QStringLiteral("shiftRightButton");
const QString VexoKeyboardButton::STANDARD_KEY_OBJECT_NAME = QStringLiteral("key");
const QString VexoKeyboardButton::SPACE_BUTTON_OBJECT_NAME = QStringLiteral("spaceButton");

VexoKeyboardButton::VexoKeyboardButton(QWidget *parent)
    : ActiveButton(parent)
    , m_scaling(ScalingInfo::inst())
    , m_renderings(std::make_unique<Renderings>())
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::MinimumExpanding);
    m_button_font.setWeight(QFont::Light);
    setCornerRadius(m_corner_radius_mm);
    setButtonTextFontSizeInPt(m_button_text_font_size_pt);
    setHeightInMm(m_height_mm);
}

VexoKeyboardButton::~VexoKeyboardButton() = default;

void VexoKeyboardButton::setBackgroundColor(const QColor &color)
{
    recolor(&m_background_color, color);
}

void VexoKeyboardButton::setBackgroundSpecialKeyColor(const QColor &color)
{
    recolor(&m_background_special_key_color, color);
}

void VexoKeyboardButton::setBackgroundClickedColor(const QColor &color)
{
    recolor(&m_background_clicked_color, color);
}

void VexoKeyboardButton::setBackgroundInactiveColor(const QColor &color)
{
    recolor(&m_background_inactive_color, color);
}

void VexoKeyboardButton::setBorderColor(const QColor &color)
{
    recolor(&m_border_color, color);
}

void VexoKeyboardButton::setTextColor(const QColor &color)
{
    recolor(&m_text_color, color);
}

void VexoKeyboardButton::setTextClickedColor(const QColor &color)
{
    recolor(&m_text_clicked_color, color);
}

void VexoKeyboardButton::setBorderTopColor(const QColor &color)
{
    recolor(&m_border_top_color, color);
}

void VexoKeyboardButton::setBorderBottomExtraColor(const QColor &color)
{
    recolor(&m_border_bottom_extra_color, color);
}

void VexoKeyboardButton::setStandardBorderDrawingDisabled(bool disabled)
{
    m_standard_border_drawing_disabled = disabled;
    m_renderings->caps.forget();
    update();
}

void VexoKeyboardButton::setCornerRadius(double mm)
{
    m_corner_radius_mm = mm;
    m_corner_radius_x = float(finitePx(m_scaling->mm2px_X(float(mm))));
    m_corner_radius_y = float(finitePx(m_scaling->mm2px_Y(float(mm))));
    m_renderings->caps.forget();
    update();
}

void VexoKeyboardButton::setButtonTextFontSizeInPt(double pt)
{
    m_button_text_font_size_pt = pt;
    setPtSize(m_button_font, pt);
    update();
}

void VexoKeyboardButton::setHeightInMm(double mm)
{
    m_height_mm = mm;
    fixHeight(this, *m_scaling, mm);
}

void VexoKeyboardButton::setCommonIconSizeMM(const QSizeF &mm)
{
    if (mm.width() >= 0 && mm.height() >= 0)
        m_common_icon_size_mm = mm;
}

void VexoKeyboardButton::resetButtonState()
{
    setChecked(false);
}

QBrush VexoKeyboardButton::getStandardBrush()
{
    const bool is_standard
        = objectName() == STANDARD_KEY_OBJECT_NAME || objectName() == SPACE_BUTTON_OBJECT_NAME;
    return is_standard ? m_background_color : m_background_special_key_color;
}

QIcon VexoKeyboardButton::compute(const QString &path)
{
    CachedVectorIcon icon(path, m_common_icon_size_mm);
    const QSize px(truncated(icon.pxWidth()), truncated(icon.pxHeight()));
    if (!px.isEmpty())
        setIconSize(px);
    return icon;
}

void VexoKeyboardButton::onToggle(bool toggle_state)
{
    setChecked(toggle_state);
}

void VexoKeyboardButton::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    const QRect cap = capRect();
    const bool is_dark = isChecked() || isDown();
    const QColor ground = this->ground(is_dark);
    drawCap(&painter, ground);
    const QIcon shown = is_dark && isEnabled() ? inverseIcon() : icon();
    if (!shown.isNull())
        drawIconPixmap(&painter, *style(), cap, Qt::AlignCenter,
            iconPixmap(shown, iconSize(), pixelRatio(painter)));
    // The ground that is kept with the letters would hide an icon below them.
    drawLabel(&painter, cap, is_dark, shown.isNull() ? ground : QColor());
}

QRect VexoKeyboardButton::capRect() const
{
    return rect().adjusted(0, 0, 0, m_standard_border_drawing_disabled ? -1 : 0);
}

void VexoKeyboardButton::recolor(QColor *color, const QColor &to)
{
    *color = to;
    m_renderings->caps.forget();
    update();
}

QColor VexoKeyboardButton::ground(bool is_dark)
{
    if (!isEnabled())
        return m_background_inactive_color;
    return is_dark ? m_background_clicked_color : getStandardBrush().color();
}

// Its outline lies on the edge, where half a pixel of the screen would be cut.
void VexoKeyboardButton::drawCap(QPainter *painter, const QColor &ground)
{
    if (pixelRatio(*painter) != 1 || !isKeepable(size())) {
        painter->save();
        stretchToScreen(painter, rect());
        drawWholeCap(painter, ground);
        painter->restore();
        return;
    }
    QPixmap &cap = m_renderings->caps.of({ ground, size() });
    if (cap.isNull()) {
        const QString name = RenderingCache::name("cap ", size(), ground, m_border_color,
            m_border_top_color, m_border_bottom_extra_color, m_corner_radius_x, m_corner_radius_y,
            m_standard_border_drawing_disabled);
        const auto draw = [&](QPainter *to) { drawWholeCap(to, ground); };
        cap = RenderingCache::shared(name, [&] { return rendered(size(), 1, draw); });
    }
    painter->drawPixmap(0, 0, cap);
}

void VexoKeyboardButton::drawWholeCap(QPainter *painter, const QColor &ground) const
{
    const QRect cap = capRect();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(m_border_color, 1));
    painter->setBrush(ground);
    drawRoundedRect(painter, cap, QPointF(double(m_corner_radius_x), double(m_corner_radius_y)));
    if (m_standard_border_drawing_disabled)
        drawEdges(painter, cap);
}

void VexoKeyboardButton::drawEdges(QPainter *painter, const QRect &cap) const
{
    const float corner_overlap = 4; // px by which the right corner's stroke reaches into the edge
    const float left = float(cap.left()) + m_corner_radius_x;
    const float right = float(cap.right()) - m_corner_radius_x;
    const int shoulder = truncated(double(float(cap.top()) + m_corner_radius_y));
    const int below = cap.bottom() + 1;

    painter->setPen(QPen(m_border_top_color, 2));
    painter->drawLine(cap.left(), cap.top(), cap.right(), cap.top());
    painter->drawLine(truncated(double(left)), cap.top(), cap.left(), shoulder);
    painter->drawLine(truncated(double(right + corner_overlap)), cap.top(), cap.right(), shoulder);
    painter->setPen(QPen(m_border_bottom_extra_color, 2));
    painter->drawLine(truncated(double(left)), below, truncated(double(right)), below);
}

void VexoKeyboardButton::drawLabel(
    QPainter *painter, const QRect &cap, bool is_dark, const QColor &ground)
{
    const int edge_px = 2;
    const double corner_px = double(m_corner_radius_x);
    const QRectF inside = QRectF(cap).adjusted(corner_px, edge_px, -corner_px, -edge_px);
    painter->setPen(is_dark ? m_text_clicked_color : m_text_color);
    painter->setFont(m_button_font);
    m_renderings->label.setDirection(QGuiApplication::layoutDirection());
    m_renderings->label.draw(painter, cap, text(), Qt::AlignCenter, { ground, inside });
}

} // namespace vexo::hox::qt::ui
