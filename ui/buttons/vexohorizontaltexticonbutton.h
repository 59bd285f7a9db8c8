#pragma once
// SPDX-License-Identifier: MIT

#include "system/vexologging.h"
#include "ui/foundation/vexocolors.h"

#include <QFont>
#include <QPixmap>
#include <QPushButton>

#include <memory>

namespace vexo::hox::qt::ui {

class ScalingInfo;
class TextBlock;

/// A row that acts as a button: a text at the left, a second text in a column of its own, and an
/// image centred in what remains at the right end, all on a solid ground. Text colour, ground and
/// image follow the state: disabled, else pressed, else default. Each text is one line, cut at its
/// column. Assistive technology reads the left text as name and the right one as description. It
/// may be deleted in its pressed(), released() and clicked().
class HOXQUI_EXPORT VexoHorizontalTextIconButton // clazy:exclude=copyable-polymorphic
    : public QPushButton,
      private vexo::hox::qt::system::VexoLogging
{
    Q_OBJECT
    // The checker misreads a property that is broken before its type.
    // clazy:excludeall=qproperty-type-mismatch

    /// Default empty.
    Q_PROPERTY(QString left_side_text MEMBER m_left_side_text WRITE setLeftSideText)
    /// Default empty.
    Q_PROPERTY(QString right_side_text MEMBER m_right_side_text WRITE setRightSideText)
    /// Drawn at its own size. Default null. Each image also serves the other states that have none.
    Q_PROPERTY(QPixmap default_image MEMBER m_default_image WRITE setDefaultImage)
    /// While pressed.
    Q_PROPERTY(QPixmap clicked_image MEMBER m_clicked_image WRITE setClickedImage)
    /// While disabled.
    Q_PROPERTY(QPixmap inactive_image MEMBER m_inactive_image WRITE setInactiveImage)
    /// Default C0.
    Q_PROPERTY(QColor default_text_color MEMBER m_default_text_color WRITE setDefaultTextColor)
    /// While pressed. Default C0.
    Q_PROPERTY(QColor clicked_text_color MEMBER m_clicked_text_color WRITE setClickedTextColor)
    /// While disabled. Default C0.
    Q_PROPERTY(QColor inactive_text_color MEMBER m_inactive_text_color WRITE setInactiveTextColor)
    /// Default black.
    Q_PROPERTY(QColor default_background_color MEMBER m_default_background_color WRITE
            setDefaultBackgroundColor)
    /// While pressed. Default black.
    Q_PROPERTY(QColor clicked_background_color MEMBER m_clicked_background_color WRITE
            setClickedBackgroundColor)
    /// While disabled. Default black.
    Q_PROPERTY(QColor inactive_background_color MEMBER m_inactive_background_color WRITE
            setInactiveBackgroundColor)
    /// Height of both texts, pt. Default 12. The rest of the font is the widget's at this call.
    Q_PROPERTY(int pt_font_size MEMBER m_pt_font_size WRITE setPtFontSize)
    /// Space before each text, mm. Default 0.0.
    Q_PROPERTY(double mm_indent MEMBER m_mm_indent WRITE setMmIndent)
    /// Fixed height, mm. Default 10.0.
    Q_PROPERTY(double mm_height MEMBER m_mm_height WRITE setMmHeight)
    /// Where the left text ends, % of the width. Default 70.0. Shows with the next paint.
    Q_PROPERTY(double left_side_text_percent_width MEMBER m_left_side_text_percent_width WRITE
            setLeftSideTextPercentWidth)
    /// Width of the right text with its indent, % of the width. Default 20.0. Shows with the next
    /// paint.
    Q_PROPERTY(double right_side_text_percent_width MEMBER m_right_side_text_percent_width WRITE
            setRightSideTextPercentWidth)

public:
    explicit VexoHorizontalTextIconButton(QWidget *parent = nullptr);
    ~VexoHorizontalTextIconButton() override;

    void setLeftSideText(const QString &text);
    void setRightSideText(const QString &text);
    void setDefaultImage(const QPixmap &image);
    void setClickedImage(const QPixmap &image);
    void setInactiveImage(const QPixmap &image);
    void setDefaultTextColor(const QColor &color);
    void setClickedTextColor(const QColor &color);
    void setInactiveTextColor(const QColor &color);
    void setDefaultBackgroundColor(const QColor &color);
    void setClickedBackgroundColor(const QColor &color);
    void setInactiveBackgroundColor(const QColor &color);
    void setPtFontSize(int pt);
    void setMmIndent(double mm);
    void setMmHeight(double mm);
    void setLeftSideTextPercentWidth(double percent);
    void setRightSideTextPercentWidth(double percent);
    /// Gives the object its name and applies the stored measures and colours; called by the
    /// constructor.
    void setupUi();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    struct Look
    {
        QColor ink;
        QColor ground;
        QPixmap image;
    };

    void setImage(QPixmap *image, const QPixmap &to);
    void setColor(QColor *color, const QColor &to);
    Look lookOfNow() const;
    bool coversAll() const;

    const ScalingInfo *const m_scaling;
    QFont m_font;
    int m_indent_px = 0;
    QString m_left_side_text;
    QString m_right_side_text;
    QPixmap m_default_image;
    QPixmap m_clicked_image;
    QPixmap m_inactive_image;
    QColor m_default_text_color = VexoColors::C0;
    QColor m_clicked_text_color = VexoColors::C0;
    QColor m_inactive_text_color = VexoColors::C0;
    QColor m_default_background_color = Qt::black;
    QColor m_clicked_background_color = Qt::black;
    QColor m_inactive_background_color = Qt::black;
    int m_pt_font_size = 12;
    double m_mm_indent = 0.0;
    double m_mm_height = 10.0;
    double m_left_side_text_percent_width = 70.0;
    double m_right_side_text_percent_width = 20.0;

    const std::unique_ptr<TextBlock> m_left_text;
    const std::unique_ptr<TextBlock> m_right_text;
};

} // namespace vexo::hox::qt::ui
