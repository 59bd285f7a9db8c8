#pragma once
// SPDX-License-Identifier: MIT

#include "ui/input/fieldshake_p.h"
#include "ui/input/fieldtext_p.h"
#include "ui/painting/secretdots_p.h"

namespace vexo::hox::qt::ui {

struct FieldLook;

/// Draws what lies in the frame of a field, still or shaking, and knows what a change of it has to
/// repaint.
class FieldContent
{
public:
    FieldText &text() { return m_text; }
    FieldShake &shake() { return m_shake; }

    /// \a painter must antialias.
    void draw(QPainter *painter, const FieldLook &look);
    /// What to repaint as the cursor comes or goes; \a look is the one after it, as are all here.
    QRect blinkArea(const FieldLook &look) const;
    /// Makes a step of the shake; what to repaint.
    QRect step(const FieldLook &look);

private:
    bool showsDots(const FieldLook &look) const;
    QVector<QRectF> dotRects(const FieldLook &look) const;
    QRectF textRect(const FieldLook &look) const;
    void layOut(const FieldLook &look);
    QRect area(const FieldLook &look);
    void drawText(QPainter *painter, const FieldLook &look);
    void drawBesideText(QPainter *painter, const FieldLook &look, QRectF rect);

    FieldText m_text;
    FieldShake m_shake;
    SecretDots m_dots;
    bool m_shows_placeholder = false; // painted last, unless it shakes
    int m_cursor_x = 0; // as painted last, px
};

} // namespace vexo::hox::qt::ui
