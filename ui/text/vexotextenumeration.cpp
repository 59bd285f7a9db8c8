// SPDX-License-Identifier: MIT
#include "ui/text/vexotextenumeration.h"

#include "ui/foundation/panelfont_p.h"
#include "ui/foundation/plainlabel_p.h"
#include "ui/foundation/tightlayout_p.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace vexo::hox::qt::ui {

namespace {

const ScalingInfo &scaling()
{
    return *ScalingInfo::inst();
}

/// A column with \a label below a gap.
QWidget *columnOf(QLabel *label, double gap_mm)
{
    auto *column = new QWidget;
    auto *layout = new QVBoxLayout(column);
    tighten(layout);
    layout->addSpacing(pxY(scaling(), gap_mm));
    layout->addWidget(label, 32);
    return column;
}

void setLook(QLabel *label, double pt, int weight)
{
    label->setFont(panelFont(pt, weight));
    label->setStyleSheet(QStringLiteral("color: rgb(60, 60, 60)"));
    label->setTextInteractionFlags(Qt::NoTextInteraction);
    label->setAlignment(Qt::AlignTop);
}

} // namespace

VexoTextEnumeration::VexoTextEnumeration(QWidget *parent)
    : QWidget(parent)
    , m_text_label(plainLabel())
    , m_number_label(plainLabel())
{
    setupUi();
}

void VexoTextEnumeration::setText(const QString &text, int number)
{
    m_text_label->setText(text);
    m_number_label->setText(QString::number(number) + QLatin1Char('.'));
}

void VexoTextEnumeration::setupUi()
{
    fixHeight(this, scaling(), 14.5);
    setupTextLabel();
    setupNumberLabel();
    setupLayouts();
}

void VexoTextEnumeration::setupTextLabel()
{
    setLook(m_text_label, 9.0, QFont::Light);
    m_text_label->setWordWrap(true);
    m_text_label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    fixHeight(m_text_label, scaling(), 11.25);
}

void VexoTextEnumeration::setupNumberLabel()
{
    setLook(m_number_label, 10.0, QFont::Medium);
    m_number_label->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_number_label->setFixedSize(widgetPx(pxX(scaling(), 3.0)), widgetPx(pxY(scaling(), 11.55)));
}

void VexoTextEnumeration::setupLayouts()
{
    const int gap_px = pxX(scaling(), 3.0);
    auto *layout = new QHBoxLayout(this);
    tighten(layout);
    layout->addSpacing(gap_px);
    layout->addWidget(columnOf(m_number_label, 2.95));
    layout->addSpacing(gap_px);
    layout->addWidget(columnOf(m_text_label, 3.25));
    layout->addSpacing(gap_px);
}

} // namespace vexo::hox::qt::ui
