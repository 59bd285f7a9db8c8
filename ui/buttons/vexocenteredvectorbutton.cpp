// SPDX-License-Identifier: MIT
#include "ui/buttons/vexocenteredvectorbutton.h"

#include "ui/buttons/vexoiconbutton.h"
#include "ui/foundation/accessible_p.h"
#include "ui/foundation/panelfont_p.h"
#include "ui/foundation/plainlabel_p.h"
#include "ui/foundation/tightlayout_p.h"

#include <QBoxLayout>
#include <QLabel>

namespace vexo::hox::qt::ui {

namespace {

QSpacerItem *createSpacer(int px)
{
    return new QSpacerItem(widgetPx(px), widgetPx(px), QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void changeSpacer(QSpacerItem *spacer, int px)
{
    spacer->changeSize(widgetPx(px), widgetPx(px), QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QString textOf(const QLabel *label)
{
    return label ? label->text() : QString();
}

} // namespace

VexoCenteredVectorButton::VexoCenteredVectorButton(QWidget *parent)
    : QWidget(parent)
    , m_scaling(ScalingInfo::inst())
    , m_icon_button(new VexoIconButton)
    , m_text_label(plainLabel())
    , m_subtext_label(plainLabel())
    , m_icon_row(new QWidget)
{
    setupUi();
}

VexoIconButton *VexoCenteredVectorButton::getButtonInstance()
{
    return m_icon_button;
}

void VexoCenteredVectorButton::addIcon(const QString &state, const QString &file)
{
    if (VexoIconButton *button = m_icon_button)
        button->addIcon(state, file);
    setIconSizeInMm(m_icon_size_in_mm);
}

void VexoCenteredVectorButton::setIconPath(const QString &path)
{
    m_icon_path = path;
    const QString state = QLatin1String(ActiveButton::DEFAULT_STATE_NAME);
    if (VexoIconButton *button = m_icon_button)
        button->removeIcon(state);
    addIcon(state, path);
}

QString VexoCenteredVectorButton::text() const
{
    return textOf(m_text_label);
}

void VexoCenteredVectorButton::setText(const QString &text)
{
    if (m_icon_button)
        followName(m_icon_button, this->text(), text);
    if (m_text_label)
        m_text_label->setText(text);
}

QString VexoCenteredVectorButton::subtext() const
{
    return textOf(m_subtext_label);
}

void VexoCenteredVectorButton::setSubtext(const QString &text)
{
    if (m_icon_button)
        followDescription(m_icon_button, subtext(), text);
    if (m_subtext_label)
        m_subtext_label->setText(text);
}

void VexoCenteredVectorButton::setWidthInMm(double mm)
{
    m_width_in_mm = mm;
    fixWidth(this, *m_scaling, mm);
}

void VexoCenteredVectorButton::setHeightInMm(double mm)
{
    m_height_in_mm = mm;
    fixHeight(this, *m_scaling, mm);
}

void VexoCenteredVectorButton::setIconSizeInMm(double mm)
{
    const QPointer<VexoCenteredVectorButton> self(this);
    if (VexoIconButton *button = m_icon_button)
        button->setMmIconSize(QSizeF(mm, mm)); // tells it to slots
    if (!self)
        return;
    m_icon_size_in_mm = mm;
    m_icon_row->setMinimumHeight(widgetPx(pxY(*m_scaling, mm)));
    m_icon_row->layout()->invalidate();
}

void VexoCenteredVectorButton::setTextFontSizeInPt(double pt)
{
    m_text_font_size_in_pt = pt;
    if (QLabel *label = m_text_label) {
        QFont font = label->font();
        setPtSize(font, pt);
        label->setFont(font);
    }
}

void VexoCenteredVectorButton::setSubtextFontSizeInPt(double pt)
{
    m_subtext_font_size_in_pt = pt;
    if (m_subtext_label)
        m_subtext_label->setFont(panelFont(pt, QFont::Normal));
}

void VexoCenteredVectorButton::setIconSideSpacingInMm(double mm)
{
    m_icon_side_spacing_in_mm = mm;
    changeSpacer(m_left_spacer, pxX(*m_scaling, mm));
    changeSpacer(m_right_spacer, pxX(*m_scaling, mm));
    m_icon_row->layout()->invalidate();
}

void VexoCenteredVectorButton::setIconTopSpacingInMm(double mm)
{
    m_icon_top_spacing_in_mm = mm;
    changeSpacer(m_top_spacer, pxY(*m_scaling, mm));
    layout()->invalidate();
}

void VexoCenteredVectorButton::setIconBottomSpacingInMm(double mm)
{
    m_icon_bottom_spacing_in_mm = mm;
    changeSpacer(m_bottom_spacer, pxY(*m_scaling, mm));
    layout()->invalidate();
}

void VexoCenteredVectorButton::setupUi()
{
    setAttribute(Qt::WA_StyledBackground); // else a stylesheet gives no ground to this class
    m_icon_button->setObjectName(QStringLiteral("iconButton"));
    m_text_label->setFont(panelFont(m_text_font_size_in_pt, QFont::Medium));
    m_text_label->setAlignment(Qt::AlignHCenter);
    m_text_label->setObjectName(QStringLiteral("textLabel"));
    m_subtext_label->setAlignment(Qt::AlignHCenter);
    m_subtext_label->setObjectName(QStringLiteral("subtextLabel"));
    setUpIconRow();

    auto *column = new QVBoxLayout(this);
    tighten(column);
    column->setAlignment(Qt::AlignHCenter);
    m_top_spacer = createSpacer(pxY(*m_scaling, m_icon_top_spacing_in_mm));
    m_bottom_spacer = createSpacer(pxY(*m_scaling, m_icon_bottom_spacing_in_mm));
    column->addItem(m_top_spacer);
    column->addWidget(m_icon_row);
    column->addItem(m_bottom_spacer);
    column->addWidget(m_text_label);
    column->addWidget(m_subtext_label);

    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setWidthInMm(m_width_in_mm);
    setHeightInMm(m_height_in_mm);
    setIconSizeInMm(m_icon_size_in_mm);
    setTextFontSizeInPt(m_text_font_size_in_pt);
    setSubtextFontSizeInPt(m_subtext_font_size_in_pt);
}

void VexoCenteredVectorButton::setUpIconRow()
{
    auto *row = new QHBoxLayout(m_icon_row);
    tighten(row);
    m_left_spacer = createSpacer(pxX(*m_scaling, m_icon_side_spacing_in_mm));
    m_right_spacer = createSpacer(pxX(*m_scaling, m_icon_side_spacing_in_mm));
    row->addItem(m_left_spacer);
    row->addWidget(m_icon_button);
    row->addItem(m_right_spacer);
}

} // namespace vexo::hox::qt::ui
