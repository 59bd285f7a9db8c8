#pragma once
// SPDX-License-Identifier: MIT

#include <QWidget>

/// A round lamp that lights up for the feedback tone.
class Lamp : public QWidget
{
public:
    explicit Lamp(double diameter_in_mm, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void setLit(bool lit);

    bool m_is_lit = false;
};
