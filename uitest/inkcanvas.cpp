// SPDX-License-Identifier: MIT
#include "uitest/inkcanvas_p.h"

#include <QFontInfo>
#include <QPainter>
#include <QScopedValueRollback>

#include <private/qfontengine_p.h>
#include <private/qpaintengine_raster_p.h>
#include <private/qstatictext_p.h>
#include <private/qtextengine_p.h>

#include <algorithm>

namespace vexo::hox::qt::uitest {

namespace {

const QColor mark(255, 0, 255); // no ground has it

QRectF rectOf(const glyph_metrics_t &box)
{
    return QRectF(box.x.toReal(), box.y.toReal(), box.width.toReal(), box.height.toReal());
}

double transparentShare(const QImage &image)
{
    if (!image.hasAlphaChannel() || image.isNull())
        return 0;
    const QImage alpha = image.convertToFormat(QImage::Format_Alpha8);
    int transparent = 0;
    for (int y = 0; y < alpha.height(); ++y) {
        const uchar *line = alpha.constScanLine(y);
        transparent += int(std::count(line, line + alpha.width(), 0));
    }
    return double(transparent) / alpha.width() / alpha.height();
}

} // namespace

/// The toolkit's own engine, asked before each text and each image. Nothing public draws a widget
/// as the screen does, with a part of it left out.
class InkEngine : public QRasterPaintEngine
{
public:
    explicit InkEngine(InkCanvas *canvas)
        : QRasterPaintEngine(canvas)
        , m_canvas(canvas)
    {
    }

    // The library hands over no prints of its texts then.
    Type type() const override { return User; }

    void drawTextItem(const QPointF &at, const QTextItem &text) override;
    void drawStaticTextItem(QStaticTextItem *item) override;
    void drawPixmap(const QPointF &at, const QPixmap &pixmap) override;
    void drawPixmap(const QRectF &place, const QPixmap &pixmap, const QRectF &source) override;
    void drawImage(const QPointF &at, const QImage &image) override;
    void drawImage(const QRectF &place, const QImage &image, const QRectF &source,
        Qt::ImageConversionFlags flags) override;

private:
    Ink inkAt(const QRectF &place) const;
    bool appendText(Ink ink, const QFont &font);
    QRect drawnExtent(const QRect &px, const QPointF &at, const QTextItem &text) const;
    bool appendImage(const QRectF &place, const QImage &image, bool is_whole);
    bool drawsItself(const Ink &ink, int index);
    void fillPlace(const Ink &ink, const QBrush &brush);

    InkCanvas *const m_canvas;
    bool m_is_inside = false; // a pixmap is drawn as an image
};

Ink InkEngine::inkAt(const QRectF &place) const
{
    Ink ink;
    QPaintDevice *device = painter()->device();
    if (device && device->devType() == QInternal::Widget)
        ink.widget = static_cast<QWidget *>(device);
    ink.px = painter()->deviceTransform().mapRect(place).toAlignedRect();
    ink.clip = clipBoundingRect();
    return ink;
}

// False where something stands in for it, or nothing.
bool InkEngine::drawsItself(const Ink &ink, int index)
{
    const InkCanvas::Look look = m_canvas->m_look;
    if (look == InkCanvas::Everything)
        return true;
    if (look == InkCanvas::WithoutThese)
        return !m_canvas->m_those.contains(index);
    const bool is_about_texts = look <= InkCanvas::MarkedTexts;
    if (ink.kind == Ink::Icon && (is_about_texts || !m_canvas->m_those.contains(index)))
        return true;
    if (look == InkCanvas::SolidTexts)
        fillPlace(ink, painter()->pen().brush());
    else if (look == (ink.kind == Ink::Text ? InkCanvas::MarkedTexts : InkCanvas::MarkedIcons))
        fillPlace(ink, mark);
    return false;
}

// All of its pixels, none by half.
void InkEngine::fillPlace(const Ink &ink, const QBrush &brush)
{
    fillRect(painter()->deviceTransform().inverted().mapRect(QRectF(ink.px)), brush);
}

bool InkEngine::appendText(Ink ink, const QFont &font)
{
    ink.font_px = QFontInfo(font).pixelSize();
    ink.is_bold = font.weight() >= QFont::Bold;
    m_canvas->m_inks.append(ink);
    return drawsItself(ink, m_canvas->m_inks.size() - 1);
}

// The toolkit's figures are off by some px. Soft edges do not count.
QRect InkEngine::drawnExtent(const QRect &px, const QPointF &at, const QTextItem &text) const
{
    const int seam = 2;
    const QRect area = px.adjusted(-seam, -seam, seam, seam);
    QImage letters(area.size(), QImage::Format_ARGB32_Premultiplied);
    letters.fill(Qt::transparent);
    QPainter pen(&letters);
    pen.setTransform(
        painter()->deviceTransform() * QTransform::fromTranslate(-area.x(), -area.y()));
    pen.setFont(text.font());
    pen.drawTextItem(at, text);
    pen.end();
    QRect extent;
    for (int y = 0; y < letters.height(); ++y) {
        for (int x = 0; x < letters.width(); ++x) {
            if (qAlpha(letters.pixel(x, y)) > 127)
                extent |= QRect(x, y, 1, 1);
        }
    }
    return extent.translated(area.topLeft());
}

bool InkEngine::appendImage(const QRectF &place, const QImage &image, bool is_whole)
{
    if (!is_whole || place.isEmpty())
        return true;
    Ink ink = inkAt(place);
    ink.kind = Ink::Icon;
    ink.transparent = transparentShare(image);
    m_canvas->m_inks.append(ink);
    return drawsItself(ink, m_canvas->m_inks.size() - 1);
}

void InkEngine::drawTextItem(const QPointF &at, const QTextItem &text)
{
    const auto &item = static_cast<const QTextItemInt &>(text);
    const QRectF place = rectOf(item.fontEngine->boundingBox(item.glyphs)).translated(at);
    Ink ink = inkAt(place);
    ink.text = item.text();
    if (!place.isEmpty() && !ink.clip.contains(ink.px))
        ink.px = drawnExtent(ink.px, at, text);
    if (place.isEmpty() || appendText(ink, item.font()))
        QRasterPaintEngine::drawTextItem(at, text);
}

void InkEngine::drawStaticTextItem(QStaticTextItem *item)
{
    QRectF place;
    for (int i = 0; i < item->numGlyphs; ++i) {
        const QFixedPoint &at = item->glyphPositions[i];
        place |= rectOf(item->fontEngine()->boundingBox(item->glyphs[i]))
                     .translated(at.x.toReal(), at.y.toReal());
    }
    if (place.isEmpty() || appendText(inkAt(place), item->font))
        QRasterPaintEngine::drawStaticTextItem(item);
}

void InkEngine::drawPixmap(const QPointF &at, const QPixmap &pixmap)
{
    const QRectF place(at, QSizeF(pixmap.size()) / pixmap.devicePixelRatio());
    if (!appendImage(place, pixmap.toImage(), true))
        return;
    const QScopedValueRollback<bool> inside(m_is_inside, true);
    QRasterPaintEngine::drawPixmap(at, pixmap);
}

void InkEngine::drawPixmap(const QRectF &place, const QPixmap &pixmap, const QRectF &source)
{
    if (!appendImage(place, pixmap.toImage(), source.contains(pixmap.rect())))
        return;
    const QScopedValueRollback<bool> inside(m_is_inside, true);
    QRasterPaintEngine::drawPixmap(place, pixmap, source);
}

void InkEngine::drawImage(const QPointF &at, const QImage &image)
{
    const QRectF place(at, QSizeF(image.size()) / image.devicePixelRatio());
    if (m_is_inside || appendImage(place, image, true))
        QRasterPaintEngine::drawImage(at, image);
}

void InkEngine::drawImage(
    const QRectF &place, const QImage &image, const QRectF &source, Qt::ImageConversionFlags flags)
{
    if (m_is_inside || appendImage(place, image, source.contains(image.rect())))
        QRasterPaintEngine::drawImage(place, image, source, flags);
}

InkCanvas::InkCanvas(QWidget *window, Look look, const QRegion &region, const QSet<int> &those)
    : QImage(window->window()->size(), QImage::Format_RGB32)
    , m_look(look)
    , m_those(those)
{
    QWidget *top = window->window();
    fill(top->palette().color(QPalette::Window));
    m_engine = std::make_unique<InkEngine>(this);
    const QRegion all = region.isEmpty() ? QRegion(top->rect()) : region & top->rect();
    if (!all.isEmpty())
        top->render(this, all.boundingRect().topLeft(), all);
}

InkCanvas::~InkCanvas() = default;

QPaintEngine *InkCanvas::paintEngine() const
{
    return m_engine.get();
}

} // namespace vexo::hox::qt::uitest
