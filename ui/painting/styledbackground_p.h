#pragma once
// SPDX-License-Identifier: MIT

#include <QtGlobal>

class QEvent;
class QWidget;

namespace vexo::hox::qt::ui {

/// The background and border that a stylesheet gives a widget. The toolkit asks the sheet for them
/// before each paint, which costs more than the rest of a small button; this asks once per look,
/// and draws nothing where the sheet has no rule for them. A change of style, palette or of a
/// property, by which rules can choose, makes it ask anew.
class StyledBackground
{
public:
    /// Reports each \a event of \a widget, before its class handles it; the polish of a frame or
    /// label once more afterwards, since it hands the background back to the toolkit.
    void notice(QWidget *widget, const QEvent &event);
    /// Called for each paint event of \a widget, before paintEvent(): a subclass may have its own.
    void draw(QWidget *widget);

private:
    quint64 m_probed_looks = 0; // a bit per look for which the next field is known
    quint64 m_styled_looks = 0; // a bit per look in which a stylesheet draws a background
};

} // namespace vexo::hox::qt::ui
