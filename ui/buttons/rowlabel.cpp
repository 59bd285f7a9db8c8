#include "ui/buttons/rowlabel_p.h"

#include <QEvent>
#include <QImage>
#include <QPainter>
#include <QResizeEvent>

#include <algorithm>

namespace vexo::hox::qt::ui {

namespace {

// The smallest rectangle around all pixels that are not \a ground.
QRect inkedArea(const QImage &image, QRgb ground)
{
    int left = image.width();
    int right = -1;
    int top = -1;
    int bottom = -1;
    const auto is_ink = [ground](QRgb pixel) { return pixel != ground; };
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        const auto *end = line + image.width();
        const auto *first = std::find_if(line, end, is_ink);
        if (first == end)
            continue;
        const auto *last = end - 1;
        while (*last == ground)
            --last;
        left = qMin(left, int(first - line));
        right = qMax(right, int(last - line));
        top = top < 0 ? y : top;
        bottom = y;
    }
    return QRect(QPoint(left, top), QPoint(right, bottom));
}

} // namespace

bool RowLabel::Look::operator==(const Look &other) const
{
    return text == other.text && ink == other.ink && ground == other.ground
        && indent == other.indent && margin == other.margin && is_wrapped == other.is_wrapped
        && format == other.format && alignment == other.alignment;
}

RowLabel::RowLabel(QWidget *parent)
    : QLabel(parent)
{
}

QSize RowLabel::sizeHint() const
{
    QSize hint = QLabel::sizeHint();
    if (m_is_laid_out && hasHeightForWidth())
        hint.setHeight(heightForWidth(width()));
    return hint;
}

QColor RowLabel::ink() const
{
    return palette().color(QPalette::ButtonText);
}

void RowLabel::setInk(const QColor &ink)
{
    QPalette colors;
    colors.setBrush(QPalette::ButtonText, ink);
    m_is_inking = true;
    setPalette(colors);
    m_is_inking = false;
}

void RowLabel::prepare(const QColor &ground)
{
    m_shown = Print();
    const bool is_text = !text().isEmpty() && !(textInteractionFlags() & Qt::TextSelectableByMouse);
    if (is_text && ground.alpha() == 255 && devicePixelRatioF() == 1 && !size().isEmpty())
        m_shown = m_prints.get(lookOfNow(ground), [&] { return print(ground); });
}

bool RowLabel::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::PaletteChange:
        if (m_is_inking)
            break;
        Q_FALLTHROUGH();
    case QEvent::Polish: // from here on: what a stylesheet may have another look for
    case QEvent::StyleChange:
    case QEvent::DynamicPropertyChange:
    case QEvent::EnabledChange:
    case QEvent::HoverEnter:
    case QEvent::HoverLeave:
    case QEvent::WindowActivate:
    case QEvent::WindowDeactivate:
    case QEvent::FontChange:
    case QEvent::LayoutDirectionChange:
    case QEvent::ContentsRectChange:
    case QEvent::Resize:
        m_prints.forget();
        break;
    default:
        break;
    }
    return QLabel::event(event);
}

void RowLabel::paintEvent(QPaintEvent *event)
{
    if (m_is_printing || m_shown.pixmap.isNull()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    painter.drawPixmap(m_shown.position, m_shown.pixmap);
    m_shown = Print();
}

void RowLabel::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    m_is_laid_out = true;
    if (sizeHint().height() != event->size().height())
        updateGeometry(); // the layout asked for the height before it gave the width
}

RowLabel::Look RowLabel::lookOfNow(const QColor &ground) const
{
    Look look;
    look.text = text();
    look.indent = indent();
    look.margin = margin();
    look.is_wrapped = wordWrap();
    look.format = textFormat();
    look.alignment = alignment();
    look.ink = ink();
    look.ground = ground;
    return look;
}

Print RowLabel::print(const QColor &ground)
{
    QImage image(size(), QImage::Format_RGB32);
    image.fill(ground);
    m_is_printing = true;
    render(&image, QPoint(), QRegion(), RenderFlags());
    m_is_printing = false;
    const QRect inked = inkedArea(image, ground.rgb());
    return { QPixmap::fromImage(image.copy(inked)), inked.topLeft() };
}

} // namespace vexo::hox::qt::ui
