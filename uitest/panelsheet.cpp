// SPDX-License-Identifier: MIT
#include "uitest/panelsheet.h"

#include "ui/foundation/scalinginfo.h"
#include "uitest/picturedifference_p.h"

#include <QApplication>
#include <QFile>
#include <QPainter>
#include <QWidget>

#include <memory>

namespace vexo::hox::qt::uitest {

namespace {

using ui::ScalingInfo;

const double gap_mm = 6;
const double caption_mm = 8;
const double row_mm = 420; // pictures beside each other, unless one is wider

/// The scale of a panel, for as long as it lives.
class ScaleOf
{
public:
    explicit ScaleOf(const PanelKind &panel)
        : m_former(std::move(ScalingInfo::instance))
    {
        ScalingInfo::instance = std::make_unique<ScalingInfo>(panel.px, panel.mm);
    }

    ~ScaleOf() { ScalingInfo::instance = std::move(m_former); }
    ScaleOf(const ScaleOf &) = delete;
    ScaleOf &operator=(const ScaleOf &) = delete;

private:
    std::unique_ptr<ScalingInfo> m_former;
};

bool isPanel(const PanelKind &panel)
{
    return !panel.px.isEmpty() && panel.mm.width() > 0 && panel.mm.height() > 0;
}

// Each in its place, mm of the sheet; the last one is the size of it all.
QVector<QRectF> places(const QVector<PanelKind> &panels)
{
    QVector<QRectF> places;
    QPointF next(gap_mm, gap_mm);
    double row_height = 0;
    QSizeF all(gap_mm, gap_mm);
    for (const PanelKind &panel : panels) {
        if (next.x() > gap_mm && next.x() + panel.mm.width() + gap_mm > row_mm) {
            next = QPointF(gap_mm, next.y() + row_height);
            row_height = 0;
        }
        places.append(QRectF(next, panel.mm));
        next.rx() += panel.mm.width() + gap_mm;
        row_height = qMax(row_height, panel.mm.height() + caption_mm + gap_mm);
        all = all.expandedTo(QSizeF(next.x(), next.y() + row_height));
    }
    places.append(QRectF(QPointF(), all));
    return places;
}

QString captionOf(const PanelKind &panel)
{
    return QStringLiteral("%1: %2 x %3 px, %4 x %5 mm")
        .arg(panel.name)
        .arg(panel.px.width())
        .arg(panel.px.height())
        .arg(panel.mm.width())
        .arg(panel.mm.height());
}

QRectF scaled(const QRectF &mm, double px_per_mm)
{
    return QRectF(mm.topLeft() * px_per_mm, mm.size() * px_per_mm);
}

} // namespace

PanelSheet::PanelSheet()
    : PanelSheet({ { QStringLiteral("4.3 inch"), { 480, 272 }, { 95.0, 53.9 } },
        { QStringLiteral("7 inch"), { 800, 480 }, { 152.4, 91.4 } },
        { QStringLiteral("7 inch wide"), { 1024, 600 }, { 154.2, 85.9 } },
        { QStringLiteral("10.1 inch"), { 1280, 800 }, { 217.0, 135.6 } },
        { QStringLiteral("12.3 inch"), { 1920, 720 }, { 292.3, 109.6 } } })
{
}

PanelSheet::PanelSheet(const QVector<PanelKind> &panels)
{
    for (const PanelKind &panel : panels) {
        if (isPanel(panel))
            m_panels.append(panel);
    }
}

QImage PanelSheet::pictureOn(const PanelKind &panel, const Create &create)
{
    if (!isPanel(panel) || !create)
        return QImage();
    const ScaleOf scale(panel);
    const std::unique_ptr<QWidget> screen(create());
    QImage picture(panel.px, QImage::Format_RGB32);
    picture.fill(Qt::white);
    if (!screen)
        return picture;
    screen->setAttribute(Qt::WA_DontShowOnScreen);
    screen->resize(panel.px);
    screen->show();
    QCoreApplication::sendPostedEvents(); // lays out
    QPainter painter(&picture);
    screen->render(&painter);
    return picture;
}

QImage PanelSheet::sheet(const Create &create, double wanted_px_per_mm) const
{
    const double px_per_mm = qBound(0.1, wanted_px_per_mm, 40.0); // NaN as well
    const QVector<QRectF> places = uitest::places(m_panels);
    const QSizeF size = places.last().size() * px_per_mm;
    QImage sheet(size.toSize(), QImage::Format_RGB32);
    sheet.fill(QColor(0xdd, 0xdd, 0xdd));
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    QFont font = QApplication::font();
    font.setPixelSize(qMax(8, int(px_per_mm * caption_mm / 2)));
    painter.setFont(font);
    for (int i = 0; i < m_panels.size(); ++i) {
        const PanelKind &panel = m_panels.at(i);
        const QRectF place = scaled(places.at(i), px_per_mm);
        const QImage picture
            = pictureOn(panel, create)
                  .scaled(place.size().toSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        painter.drawImage(place.topLeft().toPoint(), picture);
        const QRectF below(place.bottomLeft(), QSizeF(place.width(), caption_mm * px_per_mm));
        painter.drawText(below, Qt::AlignLeft | Qt::AlignVCenter, captionOf(panel));
    }
    return sheet;
}

PictureDifference PanelSheet::compare(
    const QString &reference, const QImage &is, const PictureTolerance &tolerance)
{
    const QImage was(reference);
    if (!was.isNull())
        return differenceOf(was, is, tolerance);
    PictureDifference difference;
    difference.text = QStringLiteral("there is no picture %1").arg(reference);
    return difference;
}

} // namespace vexo::hox::qt::uitest
