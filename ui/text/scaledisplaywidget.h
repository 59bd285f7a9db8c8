#pragma once
// SPDX-License-Identifier: MIT

#include "ui/foundation/vexocolors.h"

#include <QStringList>
#include <QWidget>

namespace vexo::hox::qt::ui {

/// The scale beside a slider: evenly spaced labels in 7 pt with a tick of 2 mm each, left to right
/// or top to bottom. The first one is 3 mm behind the start of the length, the last one 3 mm before
/// its end; a single one is at the start. Across the scale it needs 6 mm.
///
/// Each paint fixes the widget along the scale to its length and 10 px more, so the first one is
/// followed by one more layout.
class HOXQUI_EXPORT ScaleDisplayWidget : public QWidget
{
    Q_OBJECT

    /// Labels and ticks. Default C5. Shows with the next paint.
    Q_PROPERTY(QColor m_text_color READ textColor WRITE setTextColor)

public:
    /// \a length_mm, mm; below 6 nothing is drawn.
    explicit ScaleDisplayWidget(Qt::Orientation orientation = Qt::Horizontal, float length_mm = 56,
        QWidget *parent = nullptr);

    QColor textColor() const { return m_text_color; }
    void setTextColor(const QColor &color);
    /// The labels from start to end. They show with the next paint: call update().
    void setScaleText(QStringList texts);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    float px(float mm) const;
    void fixExtent();
    void drawMark(QPainter *painter, const QString &text, float position_px) const;

    QStringList m_texts;
    float m_length_mm;
    bool m_is_horizontal;
    QColor m_text_color = VexoColors::C5;
};

} // namespace vexo::hox::qt::ui
