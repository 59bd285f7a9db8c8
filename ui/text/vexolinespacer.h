#pragma once
// SPDX-License-Identifier: MIT

#include "ui/hoxqui_export.h"

#include <QPen>
#include <QWidget>

namespace vexo::hox::qt::ui {

class ScalingInfo;

/// A separator that looks engraved: a dark and a light line side by side across the widget, the
/// dark one at the left edge (vertical) or at the top (horizontal). It sets no size of its own;
/// across the lines it needs room for both thicknesses.
class HOXQUI_EXPORT VexoLineSpacer : public QWidget
{
    Q_OBJECT
    // The checker misreads a property that is broken before its type.
    // clazy:excludeall=qproperty-type-mismatch

    /// Dark line. Default C6.
    Q_PROPERTY(QColor dark READ darkColor WRITE setDarkColor)
    /// Light line. Default C0.
    Q_PROPERTY(QColor light READ lightColor WRITE setLightColor)
    /// Thickness of the dark line, mm. Default 0.2; drawn at least 1 px wide.
    Q_PROPERTY(double dark_line_thickness_in_mm READ darkLineThickness WRITE setDarkLineThickness)
    /// Thickness of the light line, mm. Default 0.2; drawn at least 1 px wide.
    Q_PROPERTY(
        double light_line_thickness_in_mm READ lightLineThickness WRITE setLightLineThickness)
    /// Lines run from top to bottom. Default true. A change converts both thicknesses anew.
    Q_PROPERTY(bool is_vertical_spacer READ isVerticalSpacer WRITE setIsVerticalSpacer)

public:
    explicit VexoLineSpacer(QWidget *parent = nullptr);

    QColor darkColor() const { return m_dark_pen.color(); }
    void setDarkColor(const QColor &color);
    QColor lightColor() const { return m_light_pen.color(); }
    void setLightColor(const QColor &color);
    double darkLineThickness() const { return m_dark_mm; }
    void setDarkLineThickness(double mm);
    double lightLineThickness() const { return m_light_mm; }
    void setLightLineThickness(double mm);
    bool isVerticalSpacer() const { return m_is_vertical; }
    void setIsVerticalSpacer(bool is_vertical);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int penWidth(double mm) const;
    void setPoints();

    const ScalingInfo *const m_scaling;
    int m_dark_pos = 0; // centre of the line, px across its direction
    int m_light_pos = 1; // the same
    QPen m_dark_pen;
    QPen m_light_pen;
    bool m_is_vertical = true;
    double m_dark_mm = 0.2;
    double m_light_mm = 0.2;
};

} // namespace vexo::hox::qt::ui
