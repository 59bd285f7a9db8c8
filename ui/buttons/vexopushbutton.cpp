// SPDX-License-Identifier: MIT
#include "ui/buttons/vexopushbutton.h"

#include "ui/buttons/pushbutton/buttontexts_p.h"
#include "ui/buttons/pushbutton/stateimages_p.h"
#include "ui/buttons/tone_p.h"
#include "ui/foundation/accessible_p.h"
#include "ui/foundation/panelfont_p.h"
#include "ui/foundation/visiblebuddies_p.h"
#include "ui/painting/iconpixmap_p.h"
#include "ui/painting/roundedframe_p.h"
#include "ui/painting/styledbackground_p.h"
#include "ui/touch/press_p.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>

namespace vexo::hox::qt::ui {

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
    , m_pill(std::make_unique<RoundedFrame>())
    , m_texts(std::make_unique<ButtonTexts>())
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
}

void VexoPushButton::hideImage(bool hide)
{
    if (hide && !m_icons.contains(Hidden)) {
        storeImage(
            QStringLiteral(":/widgetimages/VexoIconEmpty.svg"), STANDARD_ICON_SIZE_IN_MM, Hidden);
        if (!m_icons.contains(Standard)) // else the shown one keeps its place
            setIconSize(m_icons[Hidden]);
    }
    m_image_hidden = hide;
    update();
}

CachedVectorIcon &VexoPushButton::getIconForState(const ButtonState &state)
{
    return imageOf(&m_icons, state);
}

void VexoPushButton::setIconSize(const CachedVectorIcon &icon)
{
    m_mm_icon_size = QSizeF(double(icon.mmWidth()), double(icon.mmHeight()));
    m_px_icon_size = truncated(QSizeF(icon.pxWidth(), icon.pxHeight()));
    setMmMargin(ICON_MARGIN_IN_MM);
    setIconDimension();
}

void VexoPushButton::setMmMargin(const QSizeF &mm)
{
    m_mm_margin = mm;
    m_px_margin = finitePxSize(*m_scaling, mm);
    m_pill->setMargin({ m_px_margin.width(), m_px_margin.height() });
    setIconDimension();
    setHeight();
    update();
}

void VexoPushButton::setMmRadius(double mm)
{
    m_mm_radius = mm;
    m_px_radius = finitePxSize(*m_scaling, QSizeF(mm, mm));
    m_pill->setRadius({ m_px_radius.width(), m_px_radius.height() });
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
    const ImagePlacing placing{ m_mm_radius, m_mm_margin.height(), m_px_margin.width(),
        m_mm_horiz_center_distance_from_border, m_align_image_right };
    const int half = m_icon_rect.width() >> 1;
    m_icon_rect
        = QRect(placing.corner(*m_scaling, m_mm_icon_size.height(), half, width()), m_px_icon_size);
    setIconSize(m_px_icon_size);
}

void VexoPushButton::setHeight()
{
    fixHeight(this, *m_scaling, 2 * (m_mm_radius + m_mm_margin.height()));
}

void VexoPushButton::setDrawButtonBorder(bool draw)
{
    m_draw_button_border = draw;
    setMmMargin(m_mm_margin);
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

void VexoPushButton::setRightSideText(const QString &text)
{
    followDescription(this, m_right_side_text, text);
    m_right_side_text = text;
}

bool VexoPushButton::hasTwoLines() const
{
    return m_texts->hasTwoLines(textsOfNow(), width());
}

// Not const: that is the symbol which applications link.
QString VexoPushButton::findFittingString(
    const QFontMetrics &metrics, const QString &text, const QRectF &rect)
{
    return fittingBeginning(metrics, text, rect.width());
}

void VexoPushButton::setBackgroundColor(const QColor &color)
{
    setAndRepaint(&m_background_color, color);
}

void VexoPushButton::setBackgroundClickedColor(const QColor &color)
{
    setAndRepaint(&m_background_clicked_color, color);
}

void VexoPushButton::setTextColor(const QColor &color)
{
    setAndRepaint(&m_text_color, color);
}

void VexoPushButton::setTextClickedColor(const QColor &color)
{
    setAndRepaint(&m_text_clicked_color, color);
}

void VexoPushButton::setTextInactiveColor(const QColor &color)
{
    setAndRepaint(&m_text_inactive_color, color);
}

void VexoPushButton::setPenColor(const QColor &color)
{
    m_pen.setColor(color);
    m_pill->setLineColor(color);
    update();
}

void VexoPushButton::setMmPenLine(double mm)
{
    m_mm_pen_line = mm;
    m_pen.setWidthF(qMax(0.0, finitePx(m_scaling->mm2px_Y(float(mm)))));
    m_pill->setLineWidth(m_pen.widthF());
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
    // May throw, so before a painter is active.
    const QIcon *const icon
        = shownImage(&m_icons, imageState(m_image_hidden, isEnabled(), isDown()));
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const TextPlace texts_place = drawGround(&painter, event->rect());
    m_texts->draw(&painter, textsOfNow(), size(), texts_place);
    if (icon)
        m_image->draw(&painter, *style(), m_icon_rect, *icon, m_icon_rect.size());
}

void VexoPushButton::setAndRepaint(QColor *field, const QColor &color)
{
    *field = color;
    update();
}

void VexoPushButton::storeImage(const QString &path, const QSizeF &mm, ButtonState state)
{
    const CachedVectorIcon &image = renderImage(&m_icons, path, mm, state);
    m_image = std::make_unique<IconRendering>();
    if (state == Standard)
        setIcon(image);
}

TextPlace VexoPushButton::drawGround(QPainter *painter, const QRect &dirty)
{
    const QRectF whole = rect();
    const bool is_marked = isChecked() || isDown();
    const QColor fill = is_marked ? m_background_clicked_color : m_background_color;
    if (!m_draw_button_border) {
        painter->fillRect(whole, fill);
        return { whole, { fill, whole } };
    }
    m_pill->setGround(fill);
    m_pill->draw(painter, size(), dirty);
    return { m_pill->outline(size()), { fill, m_pill->evenGround(size()) } };
}

TextContent VexoPushButton::textsOfNow() const
{
    const QColor up = isEnabled() ? m_text_color : m_text_inactive_color;
    return { text(), m_right_side_text, font(), isDown() ? m_text_clicked_color : up,
        m_text_alignment, pxX(*m_scaling, double(m_text_mm_margin_x)) };
}

} // namespace vexo::hox::qt::ui
