// SPDX-License-Identifier: MIT
#include "ui/painting/styledbackground_p.h"

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
int lookOfNow(const QWidget *widget)
{
    const auto *button = qobject_cast<const QAbstractButton *>(widget);
    int look = 0;
    for (const bool is_set : { widget->isEnabled(), widget->underMouse(), widget->hasFocus(),
             widget->isActiveWindow(), button && button->isChecked() })
        look = look * 2 + is_set;
    return look;
}

// Most sheets have no rule for the background, yet asking them costs at each paint.
bool isStyled(const QStyleOption &option, const QWidget *widget)
{
    QPicture probe;
    QPainter painter(&probe);
    widget->style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, widget);
    painter.end();
    return !probe.boundingRect().isEmpty();
}

} // namespace

void StyledBackground::notice(QWidget *widget, const QEvent &event)
{
    switch (event.type()) {
    case QEvent::Polish:
    case QEvent::StyleChange:
        // From now on draw() does it.
        widget->setAttribute(Qt::WA_StyledBackground, false);
        Q_FALLTHROUGH();
    case QEvent::PaletteChange:
    case QEvent::DynamicPropertyChange:
        m_probed_looks = 0;
        m_styled_looks = 0;
        break;
    default:
        break;
    }
}

void StyledBackground::draw(QWidget *widget)
{
    if (widget->testAttribute(Qt::WA_StyledBackground))
        return; // drawn already
    const quint64 look = quint64(1) << lookOfNow(widget);
    if (m_probed_looks & look & ~m_styled_looks)
        return;
    QStyleOption option;
    option.initFrom(widget);
    if (!(m_probed_looks & look)) {
        m_probed_looks |= look;
        if (isStyled(option, widget))
            m_styled_looks |= look;
    }
    if (!(m_styled_looks & look))
        return;
    QPainter painter(widget);
    widget->style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, widget);
}

} // namespace vexo::hox::qt::ui
