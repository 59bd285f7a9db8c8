// SPDX-License-Identifier: MIT
#include "ui/buttons/vexopushbutton.h"

#include "ui/buttons/tone_p.h"
#include "ui/foundation/accessible_p.h"
#include "ui/foundation/panelfont_p.h"
#include "ui/foundation/visiblebuddies_p.h"
#include "ui/painting/endsrendering_p.h"
#include "ui/painting/iconpixmap_p.h"
#include "ui/painting/styledbackground_p.h"
#include "ui/painting/textblock_p.h"
#include "ui/touch/press_p.h"

#include <QDataStream>
#include <QFontMetrics>
#include <QIODevice>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QStyle>

#include <stdexcept>
#include <utility>

namespace vexo::hox::qt::ui {

struct VexoPushButton::Ground
{
    QSizeF margin;
    QSizeF radius;
    QColor fill;
    QPen pen;
    EndsRendering ends;

    QString name() const
    {
        QByteArray look;
        QDataStream stream(&look, QIODevice::WriteOnly);
        stream << margin << radius << fill << pen;
        return QLatin1String("VexoPushButton ") + QString::fromLatin1(look.toBase64());
    }

    bool isOf(const Ground &other) const
    {
        return margin == other.margin && radius == other.radius && fill == other.fill
            && pen == other.pen;
    }
};

const QSizeF VexoPushButton::STANDARD_ICON_SIZE_IN_MM(0.0, 4.7);
const QSizeF VexoPushButton::STANDARD_ICON_MARGIN_IN_MM(0.0, 0.0);
const QSizeF VexoPushButton::STANDARD_MARGIN_IN_MM(3.0, 3.0);
const QSizeF VexoPushButton::ICON_MARGIN_IN_MM(0.2, 2.0);
const double VexoPushButton::LINE_WITH_IN_MM = 0.176;
const QColor VexoPushButton::STANDARD_PEN_COLOR = VexoColors::C12;

VexoPushButton::VexoPushButton(QWidget *parent)
    : QPushButton(parent)
    , VexoLogging("GPB")
    , m_scaling(ScalingInfo::inst())
    , m_mm_icon_size(STANDARD_ICON_SIZE_IN_MM)
    , m_visible_buddies(std::make_unique<VisibleBuddies>())
    , m_styled_background(std::make_unique<StyledBackground>())
{
    setupUi();
}

VexoPushButton::~VexoPushButton() = default;

void VexoPushButton::setupUi()
{
    setAttribute(Qt::WA_StyledBackground, true);
    setFocusPolicy(Qt::NoFocus);
    m_text_alignment = Qt::AlignCenter;
    connectTone(this, &QAbstractButton::pressed);
    QFont font;
    font.setWeight(QFont::Light);
    setFont(font);
    setIconDimension();
    setPtFontSize(10.0);
    setMmRadius(3.0);
    setMmMargin(STANDARD_MARGIN_IN_MM);
    setPenColor(STANDARD_PEN_COLOR);
}

void VexoPushButton::setSvgImage(const QString &path, const QSizeF &mm, ButtonState state)
{
    storeImage(path, mm, state);
    setIconSize(m_icons[state]);
}

void VexoPushButton::setSvgImage(const QString &path, ButtonState state)
{
    setSvgImage(path, STANDARD_ICON_SIZE_IN_MM, state);
}

void VexoPushButton::setSvgImage(const QString &standard, const QString &clicked)
{
    setSvgImage(standard, clicked, STANDARD_ICON_SIZE_IN_MM);
}

void VexoPushButton::setSvgImage(
    const QString &standard, const QString &clicked, const QString &inactive)
{
    setSvgImage(standard, clicked, inactive, STANDARD_ICON_SIZE_IN_MM);
}

void VexoPushButton::setSvgImage(const QString &standard, const QString &clicked, const QSizeF &mm)
{
    setSvgImage(standard, mm, Standard);
    setSvgImage(clicked, mm, Clicked);
}

void VexoPushButton::setSvgImage(
    const QString &standard, const QString &clicked, const QString &inactive, const QSizeF &mm)
{
    setSvgImage(standard, clicked, mm);
    setSvgImage(inactive, mm, Inactive);
}

void VexoPushButton::removeImage()
{
    setIcon(QIcon());
    m_mm_icon_size = QSizeF(0, 0);
    m_px_icon_size = QSize(0, 0);
    m_icon_rect = QRect();
    setMmMargin(STANDARD_MARGIN_IN_MM);
    m_icons.clear();
    setIconDimension();
}

void VexoPushButton::hideImage(bool hide)
{
    if (hide && !m_icons.contains(Hidden)) {
        const QString empty = QStringLiteral(":/widgetimages/VexoIconEmpty.svg");
        if (m_icons.contains(Standard))
            storeImage(empty, STANDARD_ICON_SIZE_IN_MM, Hidden); // the shown one keeps its place
        else
            setSvgImage(empty, Hidden);
    }
    m_image_hidden = hide;
    update();
}

CachedVectorIcon &VexoPushButton::getIconForState(const ButtonState &state)
{
    for (const ButtonState wanted : { state, Standard }) {
        const auto icon = m_icons.find(wanted);
        if (icon != m_icons.end())
            return icon.value();
    }
    throw std::logic_error("No standard icon for VexoPushButton set");
}

void VexoPushButton::setIconSize(const CachedVectorIcon &icon)
{
    m_mm_icon_size = QSizeF(double(icon.mmWidth()), double(icon.mmHeight()));
    m_px_icon_size = QSize(truncated(icon.pxWidth()), truncated(icon.pxHeight()));
    setMmMargin(ICON_MARGIN_IN_MM);
    setIconDimension();
}

void VexoPushButton::setMmMargin(const QSizeF &mm)
{
    m_mm_margin = mm;
    m_px_margin = finitePxSize(*m_scaling, mm);
    setIconDimension();
    setHeight();
    update();
}

void VexoPushButton::setMmRadius(double mm)
{
    m_mm_radius = mm;
    m_px_radius = finitePxSize(*m_scaling, QSizeF(mm, mm));
    setIconDimension();
    setHeight();
    update();
}

void VexoPushButton::setMmHorizCenterDistanceFromBorder(double mm)
{
    m_mm_horiz_center_distance_from_border = mm;
    setIconDimension();
}

void VexoPushButton::setIconDimension()
{
    if (m_icons.isEmpty())
        return;
    // Centred in the pill.
    const double top_mm = (2 * m_mm_radius - m_mm_icon_size.height()) / 2 + m_mm_margin.height();
    const double distance
        = double(m_scaling->mm2px_X(float(m_mm_horiz_center_distance_from_border)));
    const int half = m_icon_rect.width() >> 1;
    const double left = m_align_image_right ? width() - m_px_margin.width() - distance - half
                                            : distance + m_px_margin.width() - half;
    const int top = truncated(double(m_scaling->mm2px_Y(float(top_mm))));
    m_icon_rect = QRect(QPoint(truncated(left), top), m_px_icon_size);
    setIconSize(m_px_icon_size);
}

void VexoPushButton::setHeight()
{
    setFixedHeight(widgetPx(pxY(*m_scaling, 2 * (m_mm_radius + m_mm_margin.height()))));
}

void VexoPushButton::setDrawButtonBorder(bool draw)
{
    m_draw_button_border = draw;
    setMmMargin(m_mm_margin);
    update();
}

void VexoPushButton::setAlignImageRight(bool right)
{
    m_align_image_right = right;
    update();
}

void VexoPushButton::setPtFontSize(double pt)
{
    m_pt_font_size = pt;
    QFont sized = font();
    setPtSize(sized, pt);
    setFont(sized);
}

void VexoPushButton::setTextMmMarginX(float mm)
{
    m_text_mm_margin_x = mm;
}

void VexoPushButton::setTextAlignment(Qt::Alignment alignment)
{
    m_text_alignment = alignment;
}

void VexoPushButton::setRightSideText(const QString &text)
{
    followDescription(this, m_right_side_text, text);
    m_right_side_text = text;
}

bool VexoPushButton::hasTwoLines() const
{
    const Label &label = measuredLabel();
    const double margin = pxX(*m_scaling, double(m_text_mm_margin_x));
    return width() - label.right_px - 3 * margin <= label.text_px;
}

// Not const: that is the symbol which applications link.
QString VexoPushButton::findFittingString(
    const QFontMetrics &metrics, const QString &text, const QRectF &rect)
{
    const auto fits = [&](int length) {
        return metrics.boundingRect(text.left(length)).width() <= rect.width();
    };
    // Removing one character after the other would measure a long text thousands of times. Longer
    // beginnings are wider, but for a few pixels: a letter may join the one before.
    const int joined = 8;
    int low = 0;
    for (int high = text.length(); low < high;) {
        const int middle = high - (high - low) / 2;
        if (fits(middle))
            low = middle;
        else
            high = middle - 1;
    }
    int length = qMin(low + joined, text.length());
    while (length > low && !fits(length))
        --length;
    const bool is_in_pair = length > 0 && length < text.length()
        && text.at(length - 1).isHighSurrogate() && text.at(length).isLowSurrogate();
    return text.left(is_in_pair ? length - 1 : length);
}

void VexoPushButton::setBackgroundColor(const QColor &color)
{
    change(&m_background_color, color);
}

void VexoPushButton::setBackgroundClickedColor(const QColor &color)
{
    change(&m_background_clicked_color, color);
}

void VexoPushButton::setTextColor(const QColor &color)
{
    change(&m_text_color, color);
}

void VexoPushButton::setTextClickedColor(const QColor &color)
{
    change(&m_text_clicked_color, color);
}

void VexoPushButton::setTextInactiveColor(const QColor &color)
{
    change(&m_text_inactive_color, color);
}

void VexoPushButton::setPenColor(const QColor &color)
{
    m_pen.setColor(color);
    update();
}

void VexoPushButton::setMmPenLine(double mm)
{
    m_mm_pen_line = mm;
    m_pen.setWidthF(qMax(0.0, finitePx(m_scaling->mm2px_Y(float(mm)))));
    update();
}

void VexoPushButton::addVisibleBuddy(QWidget *buddy)
{
    m_visible_buddies->add(buddy);
}

void VexoPushButton::clearVisibleBuddies()
{
    m_visible_buddies->clear();
}

void VexoPushButton::setVisible(bool visible)
{
    m_visible_buddies->setVisible(this, visible, [=] { QPushButton::setVisible(visible); });
}

bool VexoPushButton::event(QEvent *event)
{
    m_styled_background->notice(this, *event);
    if (event->type() == QEvent::Paint)
        m_styled_background->draw(this);
    return QPushButton::event(event);
}

void VexoPushButton::mousePressEvent(QMouseEvent *event)
{
    if (Press::begin(this, event))
        QPushButton::mousePressEvent(event);
}

void VexoPushButton::mouseReleaseEvent(QMouseEvent *event)
{
    if (Press::missedMoves(this))
        mouseWasMoved(event->pos().x(), event->pos().y(), width(), height());
    const bool is_slide = Press::isSlide(this, *event);
    if (Press::end(this, *event) == Press::Late)
        return;
    const QPointer<VexoPushButton> self(this);
    QAbstractButton::mouseReleaseEvent(event);
    if (self && mouseWasReleased() && is_slide) {
        // The toolkit ignored a release outside, and would go on with a button that a slot deletes.
        event->accept();
        Q_EMIT clicked(false);
    }
}

void VexoPushButton::mouseMoveEvent(QMouseEvent *event)
{
    Press::move(this);
    const QPointer<VexoPushButton> self(this);
    QAbstractButton::mouseMoveEvent(event);
    if (self)
        mouseWasMoved(event->pos().x(), event->pos().y(), width(), height());
}

void VexoPushButton::paintEvent(QPaintEvent *event)
{
    const QIcon *const icon = shownIcon(); // may throw, so before a painter is active
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QRectF inside(0, 0, width(), height());
    if (m_draw_button_border)
        inside.adjust(
            m_px_margin.width(), m_px_margin.height(), -m_px_margin.width(), -m_px_margin.height());
    drawGround(&painter, inside, event->rect());
    painter.setPen(inkOfNow());
    drawTexts(&painter, inside);
    if (icon)
        drawImage(&painter, *icon);
}

void VexoPushButton::change(QColor *color, const QColor &to)
{
    *color = to;
    update();
}

void VexoPushButton::storeImage(const QString &path, const QSizeF &mm, ButtonState state)
{
    const CachedVectorIcon icon(path, mm);
    m_icons.remove(state); // an assignment would keep the earlier rendering beside the new one
    m_icons.insert(state, icon);
    if (state == Standard)
        setIcon(icon);
}

ButtonState VexoPushButton::stateOfNow() const
{
    if (m_image_hidden)
        return Hidden;
    if (!isEnabled())
        return Inactive;
    return isDown() ? Clicked : Standard;
}

const QIcon *VexoPushButton::shownIcon()
{
    const ButtonState state = stateOfNow();
    const bool has_only_hidden = m_icons.size() == 1 && m_icons.firstKey() == Hidden;
    if (m_icons.isEmpty() || (has_only_hidden && state != Hidden))
        return nullptr;
    return &getIconForState(state);
}

void VexoPushButton::drawImage(QPainter *painter, const QIcon &icon)
{
    const double ratio = pixelRatio(*painter);
    if (m_image_key != icon.cacheKey() || m_image_px != m_icon_rect.size()
        || m_image.devicePixelRatio() != ratio) {
        m_image_px = m_icon_rect.size();
        m_image_key = icon.cacheKey();
        m_image = iconPixmap(icon, m_icon_rect.size(), ratio);
    }
    if (!m_image.isNull())
        drawIconPixmap(painter, *style(), m_icon_rect, Qt::AlignCenter, m_image);
}

QColor VexoPushButton::inkOfNow() const
{
    if (isDown())
        return m_text_clicked_color;
    return isEnabled() ? m_text_color : m_text_inactive_color;
}

// Measured anew only when a text or the font has changed: neither tells the button.
const VexoPushButton::Label &VexoPushButton::measuredLabel() const
{
    if (m_label.text_px >= 0 && m_label.text == text() && m_label.right_text == m_right_side_text
        && m_label.font == font())
        return m_label;
    const QFontMetrics metrics(font());
    m_label = Label();
    m_label.text = text();
    m_label.right_text = m_right_side_text;
    m_label.font = font();
    m_label.text_px = metrics.boundingRect(text()).width();
    m_label.right_px = metrics.boundingRect(m_right_side_text).width();
    m_label.right_advance_px = metrics.horizontalAdvance(m_right_side_text);
    return m_label;
}

// What was measured to fit on one line stays there: its advance may be a fraction wider, for which
// the toolkit would wrap it.
void VexoPushButton::splitLabel(const QRectF &upper)
{
    if (m_label.line_px == upper.width())
        return;
    m_label.line_px = upper.width();
    const QFontMetrics metrics(font());
    m_label.first_line = findFittingString(metrics, text(), upper);
    m_label.second_line = text().mid(m_label.first_line.length());
    m_label.second_fits = metrics.boundingRect(m_label.second_line).width() <= upper.width();
}

QColor VexoPushButton::fillOfNow() const
{
    return isChecked() || isDown() ? m_background_clicked_color : m_background_color;
}

// The outline is dear, so its ends are kept, for up and for down.
void VexoPushButton::drawGround(QPainter *painter, const QRectF &inside, const QRect &dirty)
{
    if (!m_draw_button_border) {
        painter->fillRect(inside, fillOfNow());
        return;
    }
    if (inside.isEmpty())
        return; // all of it is margin
    Ground now{ m_px_margin, m_px_radius, fillOfNow(), m_pen, EndsRendering() };
    if (!m_grounds[0] || !m_grounds[0]->isOf(now))
        std::swap(m_grounds[0], m_grounds[1]);
    if (!m_grounds[0] || !m_grounds[0]->isOf(now))
        m_grounds[0] = std::make_unique<Ground>(now);
    const Ground &ground = *m_grounds[0];
    m_grounds[0]->ends.draw(
        painter, size(), now.margin.width() + now.radius.width() + now.pen.widthF(), dirty,
        [&](QPainter *to, const QSizeF &px) { drawOutline(to, px); },
        [&] { return ground.name(); });
}

void VexoPushButton::drawOutline(QPainter *painter, const QSizeF &size) const
{
    const QRectF inside(m_px_margin.width(), m_px_margin.height(),
        size.width() - 2 * m_px_margin.width(), size.height() - 2 * m_px_margin.height());
    QPainterPath path;
    path.addRoundedRect(inside, m_px_radius.width(), m_px_radius.height(), Qt::AbsoluteSize);
    painter->fillPath(path, fillOfNow());
    painter->strokePath(path, m_pen);
}

// Where the fill is even: between the rounded ends and the outline.
QRectF VexoPushButton::evenGround(const QRectF &inside) const
{
    if (!m_draw_button_border)
        return inside;
    const double line = m_pen.widthF() + 1;
    const QRectF even = inside.adjusted(m_px_radius.width(), line, -m_px_radius.width(), -line);
    return even.isValid() ? even : QRectF(); // one that is inside out would be filled
}

void VexoPushButton::drawTexts(QPainter *painter, const QRectF &inside)
{
    const bool has_two_lines = hasTwoLines();
    const double margin = pxX(*m_scaling, double(m_text_mm_margin_x));
    QRectF ground = evenGround(inside);
    QRectF area = inside;
    area.setLeft(area.left() + margin);
    if (m_right_side_text.isEmpty()) {
        area.setRight(area.right() - margin);
    } else {
        area.setRight(inside.right() - 2 * margin - m_label.right_advance_px);
        QRectF right = inside;
        right.setLeft(area.right() + margin);
        right.setRight(inside.right() - margin);
        if (has_two_lines)
            right.setTop(height() / 2); // NOLINT(bugprone-integer-division)
        QRectF right_ground = ground;
        right_ground.setLeft(area.right());
        ground.setRight(qMin(ground.right(), right.left()));
        drawText(painter, &m_right_text, right, m_right_side_text, right_ground);
    }
    drawLabel(painter, area, ground, has_two_lines);
}

void VexoPushButton::drawLabel(
    QPainter *painter, const QRectF &area, const QRectF &ground, bool has_two_lines)
{
    if (!has_two_lines) {
        drawText(painter, &m_wrapped_text, area, text(), ground);
        return;
    }
    QRectF upper = area;
    QRectF lower = area;
    upper.setBottom(height() / 2); // NOLINT(bugprone-integer-division)
    lower.setTop(upper.bottom());
    splitLabel(upper);
    drawText(painter, &m_first_line, upper, m_label.first_line, ground & upper);
    drawText(painter, m_label.second_fits ? &m_second_line : &m_wrapped_text, lower,
        m_label.second_line, ground & lower);
}

void VexoPushButton::drawText(QPainter *painter, std::unique_ptr<TextBlock> *block,
    const QRectF &area, const QString &text, const QRectF &ground)
{
    if (text.isEmpty())
        return;
    if (!*block)
        *block = std::make_unique<TextBlock>(
            block == &m_wrapped_text ? QTextOption::WordWrap : QTextOption::NoWrap);
    (*block)->draw(painter, area, text, m_text_alignment, { fillOfNow(), ground });
}

} // namespace vexo::hox::qt::ui
