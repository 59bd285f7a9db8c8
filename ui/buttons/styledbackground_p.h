#pragma once

#include <QtGlobal>

class QAbstractButton;
class QEvent;
class QPainter;
class QStyleOption;

namespace vexo::hox::qt::ui {

/// The background and border that a stylesheet gives a button. The toolkit draws them before each
/// paint with a painter of its own, which costs more than the rest of a small button; this draws
/// them with the button's painter, and not at all where the sheet has no rule for them.
class StyledBackground
{
public:
    /// Reports each \a event of \a button, before its class handles it.
    void notice(QAbstractButton *button, QEvent *event);
    /// Draws with \a painter, which the paint of \a button has just begun.
    void draw(QPainter *painter, const QAbstractButton *button);

private:
    bool isStyled(const QStyleOption &option, const QAbstractButton *button) const;

    quint64 m_probed_looks = 0; // a bit per look for which the next field is known
    quint64 m_styled_looks = 0; // a bit per look in which a stylesheet draws a background
};

} // namespace vexo::hox::qt::ui
