#pragma once
// SPDX-License-Identifier: MIT

#include "ui/foundation/vexocolors.h"

#include <QFont>
#include <QLabel>

#include <memory>

namespace vexo::hox::qt::ui {

class ScalingInfo;
class TextBlock;
class VisibleBuddies;

/// A caption of fixed height in one colour on a ground of one colour, wrapped between words. What
/// does not fit is cut. It shows and hides other widgets together with itself, such as the field
/// that it belongs to.
///
/// It paints itself: the text is plain, and of the settings of QLabel and of stylesheets only those
/// of the font show. QLabel's wordWrap() decides about the width it asks for: without it that of
/// the whole text in one line.
class HOXQUI_EXPORT VexoLabel : public QLabel
{
    Q_OBJECT

    /// Text. Default C3.
    Q_PROPERTY(QColor text_color READ textColor WRITE setTextColor)
    /// Ground. Default C0.
    Q_PROPERTY(QColor background_color READ backgroundColor WRITE setBackgroundColor)
    /// Text height, pt. Default 7.0.
    Q_PROPERTY(double pt_font_size READ ptFontSize WRITE setPtFontSize)
    /// Widens the size that the label asks for, mm; the text is drawn without it. Default 3.0. It
    /// is kept in px, so it follows the scale when it is read.
    Q_PROPERTY(double indent_in_mm READ mmIndent WRITE setMmIndent)
    /// Fixed height, mm. Default 5.0.
    Q_PROPERTY(double height_in_mm READ mmHeight WRITE setMmHeight)
    /// Place of the text, left and right being the same in all languages. Default left and
    /// vertically centred. A change does not repaint, it shows at the next paint.
    Q_PROPERTY(Qt::Alignment text_alignment READ textAlignment WRITE setTextAlignment)

public:
    explicit VexoLabel(QWidget *parent = nullptr);
    /// With a text.
    explicit VexoLabel(const QString &text, QWidget *parent = nullptr);
    ~VexoLabel() override;

    QColor textColor() const { return m_text_color; }
    void setTextColor(const QColor &color);
    QColor backgroundColor() const { return m_background_color; }
    void setBackgroundColor(const QColor &color);
    double ptFontSize() const { return m_pt_font_size; }
    void setPtFontSize(double pt);
    double mmIndent() const;
    void setMmIndent(double mm);
    double mmHeight() const { return m_mm_height; }
    void setMmHeight(double mm);
    Qt::Alignment textAlignment() const { return m_text_alignment; }
    void setTextAlignment(Qt::Alignment alignment);
    /// Weight as of QFont::Weight. Default QFont::Medium.
    int fontWeight() const { return m_font_weight; }
    void setFontWeight(int weight);

    /// Hides \a buddy at once, and shows and hides it with the label from the next setVisible() on,
    /// in the order of the calls. Not owned; null is ignored. Returns \a buddy.
    QWidget *addVisibleBuddy(QWidget *buddy);
    /// Forgets the buddies; they keep their visibility.
    void clearVisibleBuddies();

public Q_SLOTS:
    void setVisible(bool is_visible) override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void setupUi();

    const ScalingInfo *const m_scaling;
    QFont m_font;
    const std::unique_ptr<VisibleBuddies> m_visible_buddies;
    QColor m_text_color = VexoColors::C3;
    QColor m_background_color = VexoColors::C0;
    Qt::Alignment m_text_alignment = Qt::AlignLeft | Qt::AlignVCenter;
    double m_pt_font_size = 7.0;
    int m_font_weight = QFont::Normal;
    float m_px_indent;
    double m_mm_height = 5.0;
    const std::unique_ptr<TextBlock> m_text;
};

} // namespace vexo::hox::qt::ui
