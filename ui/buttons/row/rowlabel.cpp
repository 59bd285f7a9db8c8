// SPDX-License-Identifier: MIT
#include "ui/buttons/row/rowlabel_p.h"

#include "ui/buttons/row/changeinpaint_p.h"
#include "ui/foundation/plainlabel_p.h"

#include <QEvent>
#include <QImage>
#include <QPainter>
#include <QResizeEvent>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

namespace vexo::hox::qt::ui {

namespace {

bool isBlank(const QRgb *pixels, int count, const std::vector<QRgb> &ground)
{
    return std::memcmp(pixels, ground.data(), size_t(count) * sizeof(QRgb)) == 0;
}

// The smallest rectangle around all pixels that are not \a ground. Most are, so lines are compared
// as a whole, and one by one only pixels outside of what was found in the lines above.
QRect inkedArea(const QImage &image, QRgb ground)
{
    const int width = image.width();
    const std::vector<QRgb> blank(size_t(width), ground);
    int left = width;
    int end = 0;
    int top = -1;
    int bottom = -1;
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        if (isBlank(line, width, blank))
            continue;
        left = int(std::mismatch(line, line + left, blank.begin()).first - line);
        if (!isBlank(line + end, width - end, blank)) {
            end = width;
            while (line[end - 1] == ground)
                --end;
        }
        top = top < 0 ? y : top;
        bottom = y;
    }
    return QRect(QPoint(left, top), QPoint(end - 1, bottom));
}

bool breaksOnlyBetweenWords(QChar letter)
{
    return letter >= QLatin1Char(' ') && letter != QChar::SoftHyphen
        && letter != QChar::LineSeparator && letter != QChar::ParagraphSeparator;
}

// Of ASCII, and the accented ones of western Europe.
bool isCommonLetter(QChar letter)
{
    return (letter >= QLatin1Char(' ') && letter <= QLatin1Char('~'))
        || (letter >= QChar(0xc0) && letter <= QChar(0xff));
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
    showPlain(this);
}

QSize RowLabel::sizeHint() const
{
    ensurePolished();
    QSize hint
        = isHintedAsLine() ? QSize(line().width, line().height) + aroundText() : QLabel::sizeHint();
    if (m_is_laid_out && hasHeightForWidth())
        hint.setHeight(heightForWidth(width()));
    return hint;
}

QSize RowLabel::minimumSizeHint() const
{
    ensurePolished();
    return isHintedAsLine() ? QSize(line().longest_word, line().height) + aroundText()
                            : QLabel::minimumSizeHint();
}

int RowLabel::heightForWidth(int width_px) const
{
    if (isSurelyOneLine(width_px))
        return lineHeight();
    if (!isPlain())
        return QLabel::heightForWidth(width_px);
    const int reach_px = line().height; // more than a letter reaches beyond its place
    const bool fits = line().width + reach_px <= width_px - aroundText().width();
    return fits ? line().height + aroundText().height() : QLabel::heightForWidth(width_px);
}

// As if each letter were as wide as the widest one, and one more for what kerning may add.
bool RowLabel::isSurelyOneLine(int width_px) const
{
    ensurePolished();
    const QString text = this->text();
    const bool is_spaced = font().letterSpacing() != 0 || font().wordSpacing() != 0;
    if (!isPlain() || is_spaced || !std::all_of(text.begin(), text.end(), isCommonLetter))
        return false;
    const QFontMetrics metrics = fontMetrics();
    int widest_px = 0;
    for (const char letter : { 'W', '@', '%', '\xc6' })
        widest_px = qMax(widest_px, metrics.horizontalAdvance(QLatin1Char(letter)));
    return (text.size() + 1) * widest_px <= width_px - aroundText().width();
}

int RowLabel::lineHeight() const
{
    ensurePolished();
    return int(std::ceil(QFontMetricsF(font()).height())) + aroundText().height();
}

void RowLabel::setFontWeight(int weight)
{
    QFont font = this->font();
    font.setWeight(weight);
    setFont(font);
}

void RowLabel::setInk(const QColor &ink, const QRegion &painted)
{
    if (this->ink() == ink)
        return;
    QPalette colors;
    colors.setBrush(QPalette::ButtonText, ink);
    m_is_inking = true;
    changeInPaint(this, painted, [&] { setPalette(colors); });
    m_is_inking = false;
}

void RowLabel::prepare(const QColor &ground)
{
    m_shown = Rendering();
    const bool is_text = !text().isEmpty() && !(textInteractionFlags() & Qt::TextSelectableByMouse)
        && !autoFillBackground();
    if (is_text && ground.alpha() == 255 && devicePixelRatioF() == 1 && !size().isEmpty())
        m_shown = m_renderings.get(lookOfNow(ground), this, [&] { return renderOn(ground); });
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
        m_renderings.forget();
        break;
    default:
        break;
    }
    m_styled_background.notice(this, *event);
    const bool is_handled = QLabel::event(event); // a link may delete the label
    if (event->type() == QEvent::Polish)
        m_styled_background.notice(this, *event);
    return is_handled;
}

void RowLabel::paintEvent(QPaintEvent *event)
{
    if (m_shown.pixmap.isNull()) {
        paintAnew(event);
        return;
    }
    QPainter painter(this);
    const bool is_screen = isForScreens(*painter.paintEngine());
    if (is_screen)
        painter.drawPixmap(m_shown.position, m_shown.pixmap);
    painter.end();
    m_shown = Rendering();
    if (!is_screen)
        paintAnew(event);
}

void RowLabel::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    m_is_laid_out = true;
    const int width_px = event->size().width();
    const int height_px = hasHeightForWidth() ? heightForWidth(width_px) : sizeHint().height();
    if (height_px != event->size().height())
        updateGeometry(); // the layout asked for the height before it gave the width
}

// A painter of this label asks it where to paint: here into an image, without a walk through all
// widgets of the window as render() takes it first.
QPaintDevice *RowLabel::redirected(QPoint *offset) const
{
    if (!m_render_target)
        return QLabel::redirected(offset);
    *offset = QPoint();
    return m_render_target;
}

QColor RowLabel::ink() const
{
    return palette().color(QPalette::ButtonText);
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

// The toolkit lays a text out a dozen times before it knows the size of a row. For most texts one
// line tells all of it.
bool RowLabel::isPlain() const
{
    const QString text = this->text();
    const bool is_rich = textFormat() != Qt::PlainText
        && (textFormat() != Qt::AutoText || Qt::mightBeRichText(text));
    const auto selectable = Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard;
    return !is_rich && !(textInteractionFlags() & selectable) && !text.isEmpty() && wordWrap()
        && minimumSize().isNull() && frameWidth() == 0
        && alignment() == (Qt::AlignLeft | Qt::AlignVCenter) && !isRightToLeft()
        && std::all_of(text.begin(), text.end(), breaksOnlyBetweenWords);
}

const RowLabel::Line &RowLabel::line() const
{
    if (m_line.text == text() && m_line.font == font())
        return m_line;
    const int endless_px = 1 << 24;
    QTextLayout layout(text(), font());
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(endless_px);
    layout.endLayout();
    m_line
        = { text(), font(), int(std::ceil(line.naturalTextWidth())), int(std::ceil(line.height())),
              int(std::ceil(layout.minimumWidth())), fontMetrics().averageCharWidth() };
    return m_line;
}

// Margins and indent, px.
QSize RowLabel::aroundText() const
{
    const QMargins margins = contentsMargins();
    return QSize(margins.left() + margins.right() + 2 * margin() + qMax(0, indent()),
        margins.top() + margins.bottom() + 2 * margin());
}

// A longer text is wrapped in the hint, which the toolkit makes no wider than 80 letters and not
// much wider than high.
bool RowLabel::isHintedAsLine() const
{
    if (!isPlain())
        return false;
    const int widest_px = qMin(line().average_letter * 80, maximumWidth()) - aroundText().width();
    return line().width <= widest_px / 4;
}

Rendering RowLabel::renderOn(const QColor &ground)
{
    QImage image(size(), QImage::Format_RGB32);
    image.fill(ground);
    m_render_target = &image;
    QPaintEvent event(rect());
    paintAnew(&event);
    m_render_target = nullptr;
    const QRect inked = inkedArea(image, ground.rgb());
    return { QPixmap::fromImage(image.copy(inked)), inked.topLeft() };
}

void RowLabel::paintAnew(QPaintEvent *event)
{
    m_styled_background.draw(this);
    QLabel::paintEvent(event);
}

} // namespace vexo::hox::qt::ui
