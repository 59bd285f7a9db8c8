#pragma once
// SPDX-License-Identifier: MIT

#include "ui/buttons/activevectorbutton.h"
#include "ui/foundation/vexocolors.h"

#include <QFont>
#include <QPointF>
#include <QRect>

class QPainter;

namespace vexo::hox::qt::ui {

/// The panel's large tile: a full-width button of fixed height with an icon, a main text (text())
/// and a subtext in one line each. What does not fit is cut at the right edge. A checkable tile can
/// have separate texts for on and off. While pressed or checked it is dark and shows the icon of
/// "CLICKED", or without one the inverse of the current icon, unless
/// ignore_background_dark_rendering is set.
class HOXQUI_EXPORT VexoDesignVectorButton : public ActiveVectorButton
{
    Q_OBJECT
    // The checker misreads a property that is broken before its type.
    // clazy:excludeall=qproperty-type-mismatch

    /// Second line; empty by default, then there is none.
    Q_PROPERTY(QString subtext MEMBER m_subtext WRITE setSubtext)
    /// Main text of a checkable tile while checked; the four texts are used when all are set.
    Q_PROPERTY(QString on_text READ onText WRITE setOnText)
    /// Main text while unchecked, see on_text.
    Q_PROPERTY(QString off_text READ offText WRITE setOffText)
    /// Subtext while checked, see on_text.
    Q_PROPERTY(QString on_subtext READ onSubtext WRITE setOnSubtext)
    /// Subtext while unchecked, see on_text.
    Q_PROPERTY(QString off_subtext READ offSubtext WRITE setOffSubtext)
    /// Centre of the icon from the top left corner, mm. Default (6.25, 7.25).
    Q_PROPERTY(QPointF mm_icon_pos READ mmIconPos WRITE setMmIconPos)
    /// Texts. Default C3.
    Q_PROPERTY(QColor text_color READ textColor WRITE setTextColor)
    /// Texts of a dark tile. Default C0.
    Q_PROPERTY(QColor text_clicked_color READ textClickedColor WRITE setTextClickedColor)
    /// Ground. Default C1.
    Q_PROPERTY(QColor background_color READ backgroundColor WRITE setBackgroundColor)
    /// Ground of a dark tile. Default C4.
    Q_PROPERTY(
        QColor background_clicked_color READ backgroundClickedColor WRITE setBackgroundClickedColor)
    /// What mustBackgroundBeRenderedPressed() answers for a checked tile, which is dark in any
    /// case. Default false.
    Q_PROPERTY(bool dark_button_when_on READ darkButtonWhenOn WRITE setDarkButtonWhenOn)
    /// Keeps the tile light also while pressed or checked. Default false.
    Q_PROPERTY(bool ignore_background_dark_rendering MEMBER m_ignore_background_dark_rendering WRITE
            setIgnoreBackgroundDarkRendering)
    /// Fixed height, mm. Default 14.5.
    Q_PROPERTY(double mm_height MEMBER m_mm_height WRITE setMmHeight)
    /// Left end of both texts, mm. Default 12.5.
    Q_PROPERTY(double mm_indent MEMBER m_mm_indent WRITE setMmIndent)
    /// Main text, pt. Default 9.0.
    Q_PROPERTY(double pt_text_font_size MEMBER m_pt_text_font_size WRITE setPtTextFontSize)
    /// Subtext, pt. Default 9.0.
    Q_PROPERTY(double pt_subtext_font_size MEMBER m_pt_subtext_font_size WRITE setPtSubtextFontSize)
    /// From the baseline of the main text to that of the subtext, pt. Default 11.0.
    Q_PROPERTY(double pt_line_spacing MEMBER m_pt_line_spacing WRITE setPtLineSpacing)

public:
    explicit VexoDesignVectorButton(QWidget *parent = nullptr);

    void setSubtext(const QString &text);
    const QString &onText() const { return m_on_text; }
    void setOnText(const QString &text);
    const QString &offText() const { return m_off_text; }
    void setOffText(const QString &text);
    const QString &onSubtext() const { return m_on_subtext; }
    void setOnSubtext(const QString &text);
    const QString &offSubtext() const { return m_off_subtext; }
    void setOffSubtext(const QString &text);
    QPointF mmIconPos() const { return m_mm_icon_pos; }
    void setMmIconPos(const QPointF &mm);
    QColor textColor() const { return m_text_color; }
    void setTextColor(const QColor &color);
    QColor textClickedColor() const { return m_text_clicked_color; }
    void setTextClickedColor(const QColor &color);
    QColor backgroundColor() const { return m_background_color; }
    void setBackgroundColor(const QColor &color);
    QColor backgroundClickedColor() const { return m_background_clicked_color; }
    void setBackgroundClickedColor(const QColor &color);
    bool darkButtonWhenOn() const { return m_dark_button_when_on; }
    void setDarkButtonWhenOn(bool dark);
    void setIgnoreBackgroundDarkRendering(bool ignore);
    void setMmHeight(double mm);
    void setMmIndent(double mm);
    void setPtTextFontSize(double pt);
    void setPtSubtextFontSize(double pt);
    void setPtLineSpacing(double pt);

    /// Places the icon in its size of now. Each paint does it.
    void calculateIconDimension();
    /// Places both text lines at the scale of now.
    void calculateTextPosition();
    /// Whether the tile is checkable, dark when on, and checked.
    bool mustBackgroundBeRenderedPressed() const;
    /// Whether all four texts for on and off are set.
    bool isToggleTextSet() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool isDark() const;
    QIcon shownIcon(bool is_dark);
    void drawIcon(QPainter *painter, const QIcon &icon) const;
    void drawTexts(QPainter *painter) const;

    const ScalingInfo *const m_scaling;
    QRect m_icon_rect;
    QFont m_text_font;
    QPoint m_text_pos; // left end of the baseline, px
    QFont m_subtext_font;
    QPoint m_subtext_pos; // left end of the baseline, px
    QString m_on_text;
    QString m_off_text;
    QString m_on_subtext;
    QString m_off_subtext;
    QString m_subtext;
    QPointF m_mm_icon_pos = QPointF(6.25, 7.25);
    QColor m_text_color = VexoColors::C3;
    QColor m_text_clicked_color = VexoColors::C0;
    QColor m_background_color = VexoColors::C1;
    QColor m_background_clicked_color = VexoColors::C4;
    bool m_dark_button_when_on = false;
    bool m_ignore_background_dark_rendering = false;
    double m_mm_height = 14.5;
    double m_mm_indent = 12.5;
    double m_pt_text_font_size = 9.0;
    double m_pt_subtext_font_size = 9.0;
    double m_pt_line_spacing = 11.0;
};

} // namespace vexo::hox::qt::ui
