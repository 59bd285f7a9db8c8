#pragma once
// SPDX-License-Identifier: MIT

#include "ui/hoxqui_export.h"

#include <QCheckBox>
#include <QPointer>

#include <memory>

namespace vexo::hox::qt::ui {

class TapLimit;
class VexoFeedbackDelegator;

/// A check box for lists that are scrolled by swiping: it changes at the release instead of the
/// press, and only if the finger has not wandered meanwhile. It looks like the toolkit's; the
/// library's stylesheets bring larger indicators, in pixels made for 11 px/mm, and Panel::setUp()
/// those in millimetres. It reacts wherever it is touched, shows no pressed look, and rings the
/// feedback delegator that was installed when it was constructed.
///
/// The finger may wander 8 px, or TapDistance::mm() where that is set; Panel::setUp() sets 5 mm.
///
/// It may be deleted in its pressed() and clicked(), but not in toggled() and stateChanged(), after
/// which the toolkit goes on with it.
class HOXQUI_EXPORT VexoCheckBox : public QCheckBox
{
    Q_OBJECT

    /// How far the finger may wander in x or y between press and release, px. Default 8. A change
    /// also holds for a press that goes on.
    Q_PROPERTY(int mouse_move_delta READ mouseMoveDelta WRITE setMouseMoveDelta)

public:
    explicit VexoCheckBox(QWidget *parent = nullptr);
    ~VexoCheckBox() override;

    int mouseMoveDelta() const;
    void setMouseMoveDelta(int px);
    /// Lets pressed() ring the delegator; called by the constructor.
    void setupConnections();
    /// Changes the state as a touch does: toggles and emits clicked().
    void toggleButton();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    const QPointer<VexoFeedbackDelegator> m_delegator;
    const std::unique_ptr<TapLimit> m_tap_limit;
};

} // namespace vexo::hox::qt::ui
