// SPDX-License-Identifier: MIT
#include "ui/buttons/row/arrowlabel_p.h"

#include "ui/buttons/row/changeinpaint_p.h"
#include "ui/buttons/vexofunctionbutton.h"
#include "ui/files/imagefile_p.h"
#include "ui/foundation/cachedvectoricon.h"
#include "ui/foundation/plainlabel_p.h"
#include "ui/painting/iconpixmap_p.h"
#include "ui/painting/renderingcache_p.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>

namespace vexo::hox::qt::ui {

namespace {

QString arrowFile(const char *color)
{
    return QStringLiteral(":widgetimages/VexoIconGeneralArrowListRight_44px_%1.svg")
        .arg(QLatin1String(color));
}

} // namespace

ArrowLabel::ArrowLabel(QWidget *row)
    : QLabel(row)
{
    showPlain(this);
    setPixmap(CachedVectorIcon(arrowFile("C3"), VexoFunctionButton::ICON_SIZE).toPixmap());
}

const QPixmap &ArrowLabel::rendered(QPixmap *arrow, const QColor &color, const QPixmap &normal)
{
    if (!arrow->isNull())
        return *arrow;
    if (color != pressedColor() && color != inactiveColor()) {
        *arrow = tinted(normal, color);
        return *arrow;
    }
    ImageFile file(arrowFile(color == pressedColor() ? "C0" : "RGB220"), ImageFile::Kind::Vector);
    *arrow = file.pixmap(normal.size());
    arrow->setDevicePixelRatio(normal.devicePixelRatio());
    return *arrow;
}

QPixmap ArrowLabel::tinted(const QPixmap &arrow, const QColor &color)
{
    return RenderingCache::shared(RenderingCache::name("arrow ", arrow.cacheKey(), color), [&] {
        QPixmap tinted(arrow);
        QPainter painter(&tinted);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(tinted.rect(), color);
        return tinted;
    });
}

void ArrowLabel::showArrow(const QPixmap &arrow, const QRegion &painted)
{
    changeInPaint(this, painted, [&] { setPixmap(arrow); });
}

// With a fixed size a change of the arrow does not lay out the screen anew.
bool ArrowLabel::event(QEvent *event)
{
    const bool is_handled = QLabel::event(event);
    if (event->type() == QEvent::Polish
        || (event->type() == QEvent::StyleChange && testAttribute(Qt::WA_WState_Polished))) {
        setMinimumSize(0, 0);
        setIndent(indent()); // makes the label measure itself anew: a sheet may pad it
        setFixedSize(sizeHint());
    }
    return is_handled;
}

void ArrowLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (frameShape() != NoFrame) // else a sheet is asked for nothing
        drawFrame(&painter);
    const QPixmap arrow = pixmap(Qt::ReturnByValue);
    if (!arrow.isNull())
        drawIconPixmap(&painter, *style(), contentsRect(), int(alignment()), arrow);
}

} // namespace vexo::hox::qt::ui
