#pragma once
// SPDX-License-Identifier: MIT

#include "gallery/page.h"

#include <QVector>

class BusySign;

namespace vexo::hox::qt::ui {
class VexoPushButton;
}

/// RotationPixmap: sizes, grounds, speeds, and a file that is missing. All rest until they are
/// started, and when the page is left.
class BusyAnimationPage : public Page
{
public:
    BusyAnimationPage();

protected:
    void hideEvent(QHideEvent *event) override;

private:
    void addSizes();
    void addSpeeds();
    void addMissingFile();
    QWidget *adopt(BusySign *sign, const QColor &ground);
    void setTurning(bool turning);

    vexo::hox::qt::ui::VexoPushButton *m_button;
    QVector<BusySign *> m_signs;
    bool m_is_turning = false;
};
