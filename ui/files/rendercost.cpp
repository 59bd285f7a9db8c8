// SPDX-License-Identifier: MIT
#include "ui/files/rendercost_p.h"

#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QSvgRenderer>

#include <cmath>

namespace vexo::hox::qt::ui {

namespace {

/// Adds up what painting would cost: so much for each shape, for each piece of an outline by its
/// length within the device, and for the pixels within.
class CostEngine : public QPaintEngine
{
public:
    explicit CostEngine(const QSize &px)
        : QPaintEngine(AllFeatures)
        , m_device(QPointF(), px)
    {
    }

    bool isTooMuch() const
    {
        const double max_cost_ns = 100e6; // on a desktop; a panel takes a few times as long
        return m_cost > max_cost_ns;
    }

    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }

    void updateState(const QPaintEngineState &changed) override
    {
        m_transform = changed.transform();
        m_pen = changed.pen();
        m_brush = changed.brush();
    }

    void drawPath(const QPainterPath &path) override
    {
        if (isTooMuch())
            return;
        const QRectF box = m_transform.mapRect(path.controlPointRect());
        const bool is_stroked = m_pen.style() != Qt::NoPen;
        const double outline = outlineCost(path);
        m_cost += 500
            + (m_brush.style() != Qt::NoBrush ? outline + fillCost(box, m_brush.style()) : 0);
        if (is_stroked)
            m_cost += 4 * outline + dashCost(path) + fillCost(stroked(box), m_pen.brush().style());
    }

    void drawPolygon(const QPointF *points, int count, PolygonDrawMode mode) override
    {
        QPainterPath path;
        path.addPolygon(QPolygonF(QVector<QPointF>(points, points + count)));
        if (mode != PolylineMode)
            path.closeSubpath();
        drawPath(path);
    }

    void drawPixmap(const QRectF &rect, const QPixmap &, const QRectF &) override { fill(rect); }

    void drawImage(
        const QRectF &rect, const QImage &, const QRectF &, Qt::ImageConversionFlags) override
    {
        fill(rect);
    }

    void drawTextItem(const QPointF &position, const QTextItem &item) override
    {
        const int outline_of_a_letter_ns = 10000;
        m_cost += double(item.text().size()) * outline_of_a_letter_ns;
        fill(QRectF(position.x(), position.y() - item.ascent(), item.width(),
            item.ascent() + item.descent()));
    }

private:
    void fill(const QRectF &rect)
    {
        m_cost += 500 + fillCost(m_transform.mapRect(rect), Qt::TexturePattern);
    }

    // Infinite or undefined boxes cover the whole device.
    double fillCost(const QRectF &box, Qt::BrushStyle style) const
    {
        const bool is_finite = std::isfinite(box.width()) && std::isfinite(box.height());
        const QRectF filled = is_finite ? box & m_device : m_device;
        const double pixel_ns = style == Qt::SolidPattern ? 0.5 : 3;
        return filled.width() * filled.height() * pixel_ns;
    }

    // The rows keep where they are crossed in lists, which the next crossing is looked up in.
    double outlineCost(const QPainterPath &path) const
    {
        const double side = m_device.width() + m_device.height();
        const double pixel_ns = 2 + m_device.width() / 20;
        double cost = 0;
        QPointF last;
        for (int i = 0; i < path.elementCount(); ++i) {
            const QPointF point = m_transform.map(QPointF(path.elementAt(i)));
            const double length = (point - last).manhattanLength();
            cost += 100 + pixel_ns * (length < side ? length : side);
            last = point;
        }
        return cost;
    }

    double dashCost(const QPainterPath &path) const
    {
        if (m_pen.style() == Qt::SolidLine)
            return 0;
        double pattern = 0;
        const QVector<qreal> lengths = m_pen.dashPattern();
        for (const qreal length : lengths)
            pattern += length * qMax(m_pen.widthF(), 1e-3);
        const double dash_ns = 600;
        const double most = 1e6; // the toolkit draws no more
        const double dashes = path.length() / qMax(pattern, 1e-3) * lengths.size();
        return dash_ns * (dashes < most ? dashes : most);
    }

    QRectF stroked(const QRectF &box) const
    {
        const double width
            = m_transform.mapRect(QRectF(0, 0, m_pen.widthF(), m_pen.widthF())).width();
        return box.adjusted(-width, -width, width, width);
    }

    const QRectF m_device;
    double m_cost = 0; // ns
    QTransform m_transform;
    QPen m_pen;
    QBrush m_brush;
};

class CostDevice : public QPaintDevice
{
public:
    explicit CostDevice(const QSize &px)
        : m_px(px)
        , m_engine(px)
    {
    }

    QPaintEngine *paintEngine() const override { return &m_engine; }
    bool isTooMuch() const { return m_engine.isTooMuch(); }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        const int dpi = 96;
        switch (metric) {
        case PdmWidth:
            return m_px.width();
        case PdmHeight:
            return m_px.height();
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return dpi;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return int(devicePixelRatioFScale());
        default:
            return 0;
        }
    }

private:
    const QSize m_px;
    mutable CostEngine m_engine;
};

} // namespace

bool isRenderedInTime(QSvgRenderer *renderer, const QSize &px, const QRectF &rect)
{
    CostDevice device(px);
    QPainter painter(&device);
    renderer->render(&painter, rect);
    painter.end();
    return !device.isTooMuch();
}

} // namespace vexo::hox::qt::ui
