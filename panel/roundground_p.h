#pragma once
// SPDX-License-Identifier: MIT

#include <QColor>
#include <QWidget>

namespace vexo::hox::qt::panel {

/// A filled rectangle with round corners of a radius in mm.
class RoundGround : public QWidget
{
public:
    RoundGround(const QColor &color, double radius_mm, QWidget *parent);

    QColor color() const { return m_color; }
    void setColor(const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_color;
    const QSizeF m_radius_px;
};

} // namespace vexo::hox::qt::panel
