// SPDX-License-Identifier: MIT
#include "ui/text/vexolabel.h"

#include "ui/foundation/coverrule_p.h"
#include "ui/foundation/panelfont_p.h"
#include "ui/foundation/plainlabel_p.h"
#include "ui/foundation/visiblebuddies_p.h"
#include "ui/painting/textblock_p.h"

#include <QPainter>

namespace vexo::hox::qt::ui {

VexoLabel::VexoLabel(QWidget *parent)
    : VexoLabel(QString(), parent)
{
}

VexoLabel::VexoLabel(const QString &text, QWidget *parent)
    : QLabel(parent)
    , m_scaling(ScalingInfo::inst())
    , m_visible_buddies(new VisibleBuddies)
    , m_px_indent(m_scaling->mm2px_X(3.0F))
    , m_text(std::make_unique<TextBlock>(QTextOption::WordWrap))
{
    static const CoverRule cover_rule(staticMetaObject, [](const QWidget &label) {
        return static_cast<const VexoLabel &>(label).backgroundColor().alpha() == 255;
    });
    setupUi();
    setText(text);
}

VexoLabel::~VexoLabel() = default;

void VexoLabel::setTextColor(const QColor &color)
{
    m_text_color = color;
    update();
}

void VexoLabel::setBackgroundColor(const QColor &color)
{
    m_background_color = color;
    update();
}

void VexoLabel::setPtFontSize(double pt)
{
    m_pt_font_size = pt;
    setPtSize(m_font, pt);
    setFont(m_font);
}

double VexoLabel::mmIndent() const
{
    return double(m_scaling->px2mm_X(m_px_indent));
}

void VexoLabel::setMmIndent(double mm)
{
    m_px_indent = m_scaling->mm2px_X(float(mm));
    setIndent(truncated(double(m_px_indent)));
}

void VexoLabel::setMmHeight(double mm)
{
    m_mm_height = mm;
    fixHeight(this, *m_scaling, mm);
}

void VexoLabel::setTextAlignment(Qt::Alignment alignment)
{
    m_text_alignment = alignment;
}

void VexoLabel::setFontWeight(int weight)
{
    m_font_weight = weight;
    m_font.setWeight(qBound(0, weight, 99)); // what a font can hold
    setFont(m_font);
}

QWidget *VexoLabel::addVisibleBuddy(QWidget *buddy)
{
    return m_visible_buddies->addHidden(buddy);
}

void VexoLabel::clearVisibleBuddies()
{
    m_visible_buddies->clear();
}

void VexoLabel::setVisible(bool is_visible)
{
    m_visible_buddies->setVisible(this, is_visible, [=] { QLabel::setVisible(is_visible); });
}

void VexoLabel::paintEvent(QPaintEvent *)
{
    // What the letters would cover beyond the label is cut, so it need not be ground.
    const QRectF beyond = QRectF(rect()).adjusted(-width(), -height(), width(), height());
    QPainter painter(this);
    painter.setPen(m_text_color);
    painter.fillRect(rect(), m_background_color);
    m_text->draw(&painter, rect(), text(), m_text_alignment, { m_background_color, beyond });
}

void VexoLabel::setupUi()
{
    setAttribute(Qt::WA_StyledBackground);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    showPlain(this); // also measured and read out as it is drawn
    setBackgroundColor(m_background_color);
    setFontWeight(QFont::Medium);
    setPtFontSize(m_pt_font_size);
    setMmHeight(m_mm_height);
    setMmIndent(3.0);
}

} // namespace vexo::hox::qt::ui
