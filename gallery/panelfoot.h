#pragma once
// SPDX-License-Identifier: MIT

#include <QWidget>

/// The strip at the foot of the window: the panel's figures, and a lamp that lights up for the
/// feedback tone.
class PanelFoot : public QWidget
{
public:
    explicit PanelFoot(QWidget *parent = nullptr);

private:
    void setUpGround();
};
