#pragma once
// SPDX-License-Identifier: MIT

#include "ui/hoxqui_export.h"

#include <QObject>

namespace vexo::hox::qt::ui {

/// Receives the panel's acoustic feedback. The application derives its own, installs one as
/// tone_delegator before it builds its screens, and makes the sound in tone().
class HOXQUI_EXPORT VexoFeedbackDelegator : public QObject
{
    Q_OBJECT

public:
    explicit VexoFeedbackDelegator(QObject *parent = nullptr);
    /// Clears tone_delegator if this is the one installed.
    ~VexoFeedbackDelegator() override;

    /// The delegator that widgets read once, when they are constructed; one installed later does
    /// not reach widgets built before. Not owned. Null by default: no tone.
    static VexoFeedbackDelegator *tone_delegator;

public Q_SLOTS:
    /// A button was pressed.
    virtual void tone() = 0;
    /// For applications; the library never calls it. May be empty.
    virtual void down() = 0;
    /// As down().
    virtual void up() = 0;

private:
    const bool m_active = true;
};

} // namespace vexo::hox::qt::ui
