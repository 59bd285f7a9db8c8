// SPDX-License-Identifier: MIT
#include "ui/buttons/vexoiconbutton.h"

#include "ui/foundation/withoutrepaint_p.h"
#include "ui/painting/iconpixmap_p.h"
#include "ui/painting/styledbackground_p.h"
#include "ui/touch/press_p.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyle>

namespace vexo::hox::qt::ui {

namespace {

// The names of ActiveButton, in the form that states are asked for in each paint.
const QString DEFAULT = QStringLiteral("DEFAULT");
const QString CLICKED = QStringLiteral("CLICKED");
const QString INACTIVE = QStringLiteral("INACTIVE");

} // namespace

VexoIconButton::VexoIconButton(QWidget *parent)
    : ActiveVectorButton(parent)
    , m_icon_rendering(std::make_unique<IconRendering>())
    , m_styled_background(std::make_unique<StyledBackground>())
{
}

VexoIconButton::~VexoIconButton() = default;

void VexoIconButton::setCanChangeBackgroundColor(bool can_change)
{
    m_can_background_color_change = can_change;
}

void VexoIconButton::initialize(const QString &state)
{
    if (m_is_initialized && currentState() == state)
        return;
    // Called while it paints: with the same icon there is nothing to paint anew.
    const qint64 shown = icon().cacheKey();
    withoutRepaint(this, [&] { setState(state); });
    m_is_initialized = true;
    if (icon().cacheKey() != shown)
        update();
}

bool VexoIconButton::event(QEvent *event)
{
    m_styled_background->notice(this, *event);
    if (event->type() == QEvent::Paint)
        m_styled_background->draw(this);
    return ActiveVectorButton::event(event);
}

void VexoIconButton::mouseReleaseEvent(QMouseEvent *event)
{
    if (Press::missedMoves(this))
        mouseWasMoved(event->pos().x(), event->pos().y(), width(), height());
    const bool is_slide = Press::isSlide(this, *event);
    const bool is_click = mouseWasReleased() && is_slide;
    const QPointer<VexoIconButton> self(this);
    ActiveVectorButton::mouseReleaseEvent(event);
    if (!self || !is_click)
        return;
    // The toolkit ignored a release outside, and would go on with a button that a slot deletes.
    event->accept();
    Q_EMIT clicked(false);
}

void VexoIconButton::mouseMoveEvent(QMouseEvent *event)
{
    Press::move(this);
    mouseWasMoved(event->pos().x(), event->pos().y(), width(), height());
    QAbstractButton::mouseMoveEvent(event);
}

void VexoIconButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QIcon shown;
    if ((isChecked() || isDown()) && m_can_background_color_change) {
        shown = takePressedLook(&painter);
    } else if (!isEnabled() && hasState(INACTIVE)) {
        shown = getStateIcon(INACTIVE);
        initialize(INACTIVE);
    } else {
        shown = icon();
        initialize(DEFAULT);
    }
    const QRect area
        = QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, pxIconSize(), rect());
    setIconArea(area.intersected(rect()));
    m_icon_rendering->draw(&painter, *style(), rect(), shown, pxIconSize());
}

QIcon VexoIconButton::takePressedLook(QPainter *painter)
{
    if (hasState(CLICKED)) {
        QIcon clicked_icon = getStateIcon(CLICKED);
        initialize(CLICKED);
        return clicked_icon;
    }
    QIcon inverse = inverseIcon();
    drawOutline(painter);
    initialize(currentState().isEmpty() ? DEFAULT : currentState());
    return inverse;
}

// Of a rectangle as wide and high as the button the right and the lower line lie outside.
void VexoIconButton::drawOutline(QPainter *painter) const
{
    const QColor color = painter->pen().color();
    painter->fillRect(0, 0, width(), 1, color);
    painter->fillRect(0, 0, 1, height(), color);
}

} // namespace vexo::hox::qt::ui
