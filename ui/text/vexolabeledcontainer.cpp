// SPDX-License-Identifier: MIT
#include "ui/text/vexolabeledcontainer.h"

#include "ui/foundation/accessible_p.h"
#include "ui/foundation/panelfont_p.h"
#include "ui/foundation/plainlabel_p.h"
#include "ui/foundation/tightlayout_p.h"
#include "ui/foundation/visiblebuddies_p.h"
#include "ui/input/vexolineedit.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QLabel>
#include <QMetaProperty>

namespace vexo::hox::qt::ui {

namespace {

// Of a VexoSliderDecoration, known by name: sliders are made of what this folder has.
bool hasScale(const QWidget *payload)
{
    if (!payload || !payload->inherits("vexo::hox::qt::ui::VexoSliderDecoration"))
        return false;
    const QMetaObject *type = payload->metaObject();
    const QMetaProperty style = type->property(type->indexOfProperty("m_style"));
    const QByteArray name(style.enumerator().valueToKey(style.read(payload).toInt()));
    return name.endsWith("WithScale");
}

// For assistive technology. A label or a button says itself what it is.
void namePayload(QWidget *payload, const QString &before, const QString &now)
{
    if (payload && !qobject_cast<QLabel *>(payload) && !qobject_cast<QAbstractButton *>(payload))
        followName(payload, before, now);
}

} // namespace

VexoLabeledContainer::VexoLabeledContainer(QWidget *parent, QWidget *payload)
    : QWidget(parent)
    , m_scaling(ScalingInfo::inst())
    , m_visible_buddies(std::make_unique<VisibleBuddies>())
{
    setWidget(payload);
    setupUi();
}

VexoLabeledContainer::~VexoLabeledContainer() = default;

QString VexoLabeledContainer::labelText() const
{
    return m_label->text();
}

void VexoLabeledContainer::setLabelText(const QString &text)
{
    namePayload(m_payload, m_label->text(), text);
    m_label->setText(text);
}

void VexoLabeledContainer::setPtFontSize(double pt)
{
    m_pt_font_size = pt;
    setPtSize(m_font, pt);
    m_label->setFont(m_font);
}

void VexoLabeledContainer::setBottomMarginMm(double mm)
{
    m_mm_bottom_margin = mm;
    fixHeight(m_bottom_spacer, *m_scaling, mm);
}

void VexoLabeledContainer::setTopMarginMm(double mm)
{
    m_mm_top_margin = mm;
    fixHeight(m_top_spacer, *m_scaling, mm);
}

void VexoLabeledContainer::setLeftMarginMm(double mm)
{
    m_mm_left_margin = mm;
    fixWidth(m_left_spacer, *m_scaling, mm);
}

void VexoLabeledContainer::setRightMarginMm(double mm)
{
    m_mm_right_margin = mm;
    fixWidth(m_right_spacer, *m_scaling, mm);
}

void VexoLabeledContainer::setMmHeight(double mm)
{
    m_mm_height = mm;
    fixHeight(this, *m_scaling, mm);
}

void VexoLabeledContainer::setWidget(QWidget *widget)
{
    if (!widget)
        return;
    m_payload = widget;
    widget->setParent(this);
    widget->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Preferred);
}

void VexoLabeledContainer::swapWidget(QWidget *old_widget, QWidget *new_widget)
{
    release(old_widget);
    m_payload = new_widget;
    placePayload();
}

void VexoLabeledContainer::removeWidget()
{
    release(m_payload);
    m_payload = nullptr;
}

void VexoLabeledContainer::addFromForm(QWidget *widget)
{
    if (widget && !m_layout->itemAtPosition(2, 1))
        swapWidget(nullptr, widget);
}

QWidget *VexoLabeledContainer::addVisibleBuddy(QWidget *buddy)
{
    return m_visible_buddies->addHidden(buddy);
}

void VexoLabeledContainer::clearVisibleBuddies()
{
    m_visible_buddies->clear();
}

void VexoLabeledContainer::setVisible(bool visible)
{
    m_visible_buddies->setVisible(this, visible, [=] { QWidget::setVisible(visible); });
}

void VexoLabeledContainer::setupUi()
{
    setAttribute(Qt::WA_StyledBackground);
    setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Preferred);
    setMmHeight(m_mm_height);
    m_layout = new QGridLayout;
    tighten(m_layout);
    setupCaption();
    m_bottom_spacer = addSpacer(3, 1, QSizePolicy::MinimumExpanding);
    m_top_spacer = addSpacer(0, 1, QSizePolicy::MinimumExpanding);
    m_left_spacer = addSpacer(1, 0, QSizePolicy::Maximum);
    m_right_spacer = addSpacer(1, 2, QSizePolicy::Maximum);
    setBottomMarginMm(m_mm_bottom_margin);
    setTopMarginMm(m_mm_top_margin);
    setLeftMarginMm(m_mm_left_margin);
    setRightMarginMm(m_mm_right_margin);
    placePayload();
    setLayout(m_layout);
}

void VexoLabeledContainer::setupCaption()
{
    m_label = plainLabel(this);
    m_font.setWeight(QFont::Medium);
    setPtFontSize(m_pt_font_size);
    m_label->setObjectName(QStringLiteral("vexoLabeledContainerLabel"));
    m_label->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    m_layout->addWidget(m_label, 1, 1, Qt::AlignLeft | Qt::AlignTop);
}

QWidget *VexoLabeledContainer::addSpacer(int row, int column, QSizePolicy::Policy vertical)
{
    auto *spacer = new QWidget;
    spacer->setSizePolicy(QSizePolicy::Preferred, vertical);
    m_layout->addWidget(spacer, row, column);
    return spacer;
}

void VexoLabeledContainer::setPayloadWidgetProperties()
{
    if (auto *field = qobject_cast<VexoLineEdit *>(m_payload)) {
        field->setMmMargin(QSizeF(0, 0));
    } else if (hasScale(m_payload)) {
        setMmHeight(25.0);
    } else if (auto *label = qobject_cast<QLabel *>(m_payload)) {
        setPtSize(m_font, m_pt_font_size);
        m_font.setWeight(QFont::Light);
        label->setWordWrap(true);
        label->setFont(m_font);
    }
}

void VexoLabeledContainer::placePayload()
{
    if (!m_payload)
        return;
    // First: wrapping makes the policy of a label one of height for width.
    m_payload->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setPayloadWidgetProperties();
    m_layout->addWidget(m_payload, 2, 1, Qt::AlignVCenter);
    namePayload(m_payload, QString(), labelText());
}

void VexoLabeledContainer::release(QWidget *widget)
{
    if (!widget)
        return;
    namePayload(widget, labelText(), QString());
    m_layout->removeWidget(widget);
    widget->setParent(nullptr);
}

} // namespace vexo::hox::qt::ui
