#pragma once
// SPDX-License-Identifier: MIT

#include "ui/foundation/vexocolors.h"
#include "ui/text/linecomponent.h"

#include <QVector>
#include <QWidget>

namespace vexo::hox::qt::ui {

/// A horizontal separator in one of fifteen styles: lines of one or a few pixels on top of each
/// other, and on request a band of white space above them. Its height is fixed to the sum of what
/// it was constructed with.
class HOXQUI_EXPORT VexoRuler : public QWidget
{
    Q_OBJECT

    /// Light lines and the white space. Default C0. Shows with the next setRulerStyle().
    Q_PROPERTY(QColor m_first_line_color READ firstLineColor WRITE setFirstLineColor)
    /// Dark lines. Default C6. Shows with the next setRulerStyle().
    Q_PROPERTY(QColor m_second_line_color READ secondLineColor WRITE setSecondLineColor)
    /// The lines. A change keeps the height, so a higher style is cut, and drops the white space.
    /// Unknown values draw nothing.
    Q_PROPERTY(VexoRulerStyle m_style MEMBER m_style WRITE setRulerStyle)

public:
    /// From top to bottom, with the height in px.
    enum VexoRulerStyle : int {
        MainUnderHeading, ///< light 1
        MainMiddle, ///< dark 1, light 1
        MainOverNextHeading, ///< light 1
        MainOverSpecialKeys, ///< light 20, dark 2, light 1
        MainOverButton, ///< light 1
        MainUnderButton, ///< dark 1
        MainUnderLastItem, ///< dark 1
        MainUnderCentralFunctionButton, ///< dark 1, light 2
        SettingsUnderHeading, ///< light 1
        SettingsMiddle, ///< dark 1, light 1
        SettingsOverButton, ///< light 1
        SettingsUnderButton, ///< dark 1
        SettingsOverNextHeading, ///< light 1
        SettingsUnderLastItem, ///< dark 1
        Transparent ///< nothing is drawn on 2
    };
    Q_ENUM(VexoRulerStyle)

    /// \a white_space_above_mm, mm, makes a band above the lines, see setWhiteSpaceAbove().
    explicit VexoRuler(QWidget *parent = nullptr, VexoRulerStyle style = MainMiddle,
        float white_space_above_mm = 0);

    QColor firstLineColor() const { return m_first_line_color; }
    void setFirstLineColor(const QColor &color);
    QColor secondLineColor() const { return m_second_line_color; }
    void setSecondLineColor(const QColor &color);
    void setRulerStyle(VexoRulerStyle style);

    /// Adds a band of \a mm, mm, in the first colour below what is there; 0.01 and less adds none.
    /// The height stays as it is, and the band shows with the next paint.
    void setWhiteSpaceAbove(float mm);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool coversAll() const;
    void addLineDescription(const QColor &color, int thickness);
    void setupLineDescriptions(const VexoRulerStyle &style);
    void cleanupDescriptions();

    QVector<LineComponent> m_lines; // from top to bottom
    int m_height = 0; // px, of all lines
    QColor m_first_line_color = VexoColors::C0;
    QColor m_second_line_color = VexoColors::C6;
    VexoRulerStyle m_style;
};

} // namespace vexo::hox::qt::ui
