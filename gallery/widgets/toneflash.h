#pragma once
// SPDX-License-Identifier: MIT

#include <VexoFeedbackDelegator>

#include <QTimer>

/// Shows the feedback tone: a panel would ring its buzzer here, the gallery lights up a lamp for a
/// moment.
class ToneFlash : public vexo::hox::qt::ui::VexoFeedbackDelegator
{
    Q_OBJECT

public:
    ToneFlash();

    /// The one that the application has installed; null when it has none.
    static ToneFlash *installed();

public Q_SLOTS:
    void tone() override;
    void down() override { }
    void up() override { }

Q_SIGNALS:
    void litChanged(bool lit);

private:
    QTimer m_timer; // runs while lit
};
