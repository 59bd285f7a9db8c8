#include "ui/buttons/styledbackground_p.h"

#include <QAbstractButton>
#include <QEvent>
#include <QPainter>
#include <QPicture>
#include <QStyle>
#include <QStyleOption>

namespace vexo::hox::qt::ui {

namespace {

// By what a stylesheet can tell looks apart, as a number below 32. Pressed is not told here: the
// toolkit does not tell it for a background either.
int lookOfNow(const QAbstractButton *button)
{
    int look = 0;
    for (const bool is_set : { button->isEnabled(), button->underMouse(), button->hasFocus(),
             button->isActiveWindow(), button->isChecked() })
        look = look * 2 + is_set;
    return look;
}

} // namespace

void StyledBackground::notice(QAbstractButton *button, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Polish:
        // From now on draw() does it.
        button->setAttribute(Qt::WA_StyledBackground, false);
        Q_FALLTHROUGH();
    case QEvent::StyleChange:
    case QEvent::PaletteChange:
    case QEvent::DynamicPropertyChange:
        m_probed_looks = 0;
        m_styled_looks = 0;
        break;
    default:
        break;
    }
}

void StyledBackground::draw(QPainter *painter, const QAbstractButton *button)
{
    if (button->testAttribute(Qt::WA_StyledBackground))
        return; // drawn already
    const quint64 look = quint64(1) << lookOfNow(button);
    if (m_probed_looks & look & ~m_styled_looks)
        return;
    QStyleOption option;
    option.initFrom(button);
    if (!(m_probed_looks & look)) {
        m_probed_looks |= look;
        if (isStyled(option, button))
            m_styled_looks |= look;
    }
    if (m_styled_looks & look)
        button->style()->drawPrimitive(QStyle::PE_Widget, &option, painter, button);
}

// Most sheets have no rule for the background, yet asking them costs at each paint.
bool StyledBackground::isStyled(const QStyleOption &option, const QAbstractButton *button) const
{
    QPicture probe;
    QPainter painter(&probe);
    button->style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, button);
    painter.end();
    return !probe.boundingRect().isEmpty();
}

} // namespace vexo::hox::qt::ui
