#pragma once
// SPDX-License-Identifier: MIT

#include <QBrush>
#include <QColor>
#include <QPen>
#include <QPixmap>
#include <QRectF>
#include <QVector>

class QPainter;

namespace vexo::hox::qt::ui {

class ScalingInfo;

/// The dots of a secret text: 1.5 mm wide and high, 2.5 mm apart. One is rendered for its look and
/// drawn for all.
class SecretDots
{
public:
    /// Where \a count dots lie in a field of \a field_px: from \a left px on or with their middle
    /// in that of the field, displaced by \a dx px. None begins left of \a left, and none reaches
    /// into as much room at the right.
    static QVector<QRectF> rects(const ScalingInfo &scaling, const QSize &field_px, double left,
        int dx, int count, bool centered);

    void draw(
        QPainter *painter, const QVector<QRectF> &dots, const QPen &outline, const QColor &ink);

private:
    void keep(const QPainter &painter, const QRectF &dot, const QSize &size);

    QPixmap m_pixmap; // of a dot as drawn last
    QRectF m_dot; // in the pixmap
    QPen m_outline;
    QBrush m_ink;
};

} // namespace vexo::hox::qt::ui
