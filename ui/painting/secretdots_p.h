#pragma once
// SPDX-License-Identifier: MIT

#include "ui/painting/renderingpair_p.h"

#include <QPen>
#include <QRectF>
#include <QVector>

#include <tuple>

namespace vexo::hox::qt::ui {

class ScalingInfo;

/// The dots of a secret text: 1.5 mm wide and high, 2.5 mm apart. One is rendered for its look and
/// drawn for all; its place and colours are all that it depends on.
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
    LookPair<std::tuple<QRectF, QPen, QColor>, QPixmap> m_pixmaps; // of a dot
};

} // namespace vexo::hox::qt::ui
