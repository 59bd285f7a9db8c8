#pragma once
// SPDX-License-Identifier: MIT

#include "ui/hoxqui_export.h"

#include <QPointer>
#include <QRadioButton>

#include <memory>

namespace vexo::hox::qt::ui {

class TapLimit;
class VexoFeedbackDelegator;

/// A radio button for lists that are scrolled by swiping: it is chosen at the release instead of
/// the press, and only if the finger has not wandered more than 8 px in x or y meanwhile, or
/// TapDistance::mm() where that is set; Panel::setUp() sets 5 mm. It looks like the toolkit's; the
/// library's stylesheets bring larger indicators, in pixels made for 11 px/mm, and Panel::setUp()
/// those in millimetres. It reacts wherever it is touched, shows no pressed look, and rings the
/// feedback delegator that was installed when it was constructed.
///
/// It may be deleted in its pressed() and clicked(), but not in toggled(), after which the toolkit
/// goes on with it.
class HOXQUI_EXPORT VexoRadioButton : public QRadioButton
{
    Q_OBJECT

public:
    explicit VexoRadioButton(QWidget *parent = nullptr);
    ~VexoRadioButton() override;

    /// Lets pressed() ring the delegator; called by the constructor.
    void setupConnections();
    /// Chooses it as a touch does: toggles and emits clicked(). A chosen one among others that
    /// exclude each other stays chosen and emits clicked(true).
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
