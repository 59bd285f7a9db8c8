// SPDX-License-Identifier: MIT
#include "ui/text/vexoimageheadline.h"

#include "ui/foundation/cachedvectoricon.h"
#include "ui/foundation/panelfont_p.h"
#include "ui/foundation/plainlabel_p.h"
#include "ui/foundation/tightlayout_p.h"
#include "ui/painting/iconpixmap_p.h"

#include <QHBoxLayout>
#include <QLabel>

namespace vexo::hox::qt::ui {

VexoImageHeadline::VexoImageHeadline(QWidget *parent)
    : QWidget(parent)
    , m_scaling(ScalingInfo::inst())
    , m_text_label(plainLabel())
    , m_icon_label(showPlain(new IconLabel))
{
    setupUi();
}

VexoImageHeadline::VexoImageHeadline(
    const QString &svg_file, const QSizeF &svg_size_mm, const QString &text, QWidget *parent)
    : VexoImageHeadline(parent)
{
    setSvgImage(svg_file, svg_size_mm);
    setText(text);
}

QString VexoImageHeadline::text() const
{
    return m_text_label->text();
}

void VexoImageHeadline::setText(const QString &text)
{
    m_text_label->setText(text);
}

void VexoImageHeadline::setPtFontSize(double pt)
{
    m_pt_font_size = pt;
    m_text_label->setFont(panelFont(pt, QFont::Medium));
}

void VexoImageHeadline::setImageCanvasWidthMM(double mm)
{
    m_image_canvas_width_mm = mm;
    m_icon_label->setMaximumWidth(widgetPx(pxX(*m_scaling, mm)));
}

void VexoImageHeadline::setHeightMM(double mm)
{
    m_mm_height = mm;
    fixHeight(this, *m_scaling, mm);
}

void VexoImageHeadline::setWidthMM(double mm)
{
    m_mm_width = mm;
    fixWidth(this, *m_scaling, mm);
}

void VexoImageHeadline::setSpacerSizeInMm(double mm)
{
    m_spacer_size_in_mm = mm;
    const int px = widgetPx(pxX(*m_scaling, mm));
    m_spacer->changeSize(px, px, QSizePolicy::Minimum, QSizePolicy::Minimum);
    layout()->invalidate();
}

void VexoImageHeadline::setSvgImage(const QString &file, const QSizeF &mm)
{
    m_icon_label->setPixmap(CachedVectorIcon(file, mm).toPixmap());
}

void VexoImageHeadline::setupUi()
{
    setAttribute(Qt::WA_StyledBackground);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setImageCanvasWidthMM(m_image_canvas_width_mm);
    setPtFontSize(m_pt_font_size);
    setHeightMM(m_mm_height);
    setWidthMM(m_mm_width);
    m_icon_label->setObjectName(QStringLiteral("vexoImageHeadlineIconLabel"));
    m_icon_label->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    m_icon_label->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    m_text_label->setObjectName(QStringLiteral("vexoImageHeadlineTextLabel"));
    m_text_label->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    m_text_label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);

    const int equal_stretch = 129;
    const int gap_px = widgetPx(pxX(*m_scaling, m_spacer_size_in_mm));
    auto *row = new QHBoxLayout;
    row->setObjectName(QStringLiteral("vexoImageHeadlineLayout"));
    tighten(row);
    m_spacer = new QSpacerItem(gap_px, gap_px);
    row->addWidget(m_icon_label, equal_stretch);
    row->addItem(m_spacer);
    row->addWidget(m_text_label, equal_stretch);
    setLayout(row);
}

} // namespace vexo::hox::qt::ui
