// SPDX-License-Identifier: MIT
#include "ui/text/vexohorizontallabelwidget.h"

#include "ui/foundation/panelfont_p.h"
#include "ui/foundation/plainlabel_p.h"
#include "ui/foundation/tightlayout_p.h"

#include <QHBoxLayout>

namespace vexo::hox::qt::ui {

namespace {

QString rgb(const QColor &color)
{
    return QStringLiteral("rgb(%1, %2, %3)").arg(color.red()).arg(color.green()).arg(color.blue());
}

} // namespace

VexoHorizontalLabelWidget::VexoHorizontalLabelWidget(QWidget *parent)
    : QWidget(parent)
    , m_left_label(plainLabel())
    , m_right_label(plainLabel())
    , m_scaling(ScalingInfo::inst())
{
    setupUi();
}

void VexoHorizontalLabelWidget::setLeftLabelText(const QString &text)
{
    m_left_text = text;
    if (m_left_label)
        m_left_label->setText(text);
}

void VexoHorizontalLabelWidget::setRightLabelText(const QString &text)
{
    m_right_text = text;
    if (m_right_label)
        m_right_label->setText(text);
}

void VexoHorizontalLabelWidget::setTextColor(const QColor &color)
{
    m_text_color = color;
    setStyleSheetFromColors();
}

void VexoHorizontalLabelWidget::setBackgroundColor(const QColor &color)
{
    m_background_color = color;
    setStyleSheetFromColors();
}

void VexoHorizontalLabelWidget::setPtFontSize(int pt)
{
    m_pt_font_size = pt;
    const QVector<QLabel *> labels = this->labels();
    for (QLabel *label : labels) {
        QFont font = label->font();
        setPtSize(font, pt);
        label->setFont(font);
    }
}

void VexoHorizontalLabelWidget::setMmIndent(double mm)
{
    m_mm_indent = mm;
    const int indent_px = pxX(*m_scaling, mm);
    const QVector<QLabel *> labels = this->labels();
    for (QLabel *label : labels)
        label->setIndent(indent_px);
}

void VexoHorizontalLabelWidget::setLeftLabelMmWidth(double mm)
{
    m_left_label_mm_width = mm;
    if (m_left_label)
        fixWidth(m_left_label, *m_scaling, mm);
}

void VexoHorizontalLabelWidget::setRightLabelMmWidth(double mm)
{
    m_right_label_mm_width = mm;
    if (m_right_label)
        fixWidth(m_right_label, *m_scaling, mm);
}

void VexoHorizontalLabelWidget::setMmHeight(double mm)
{
    m_mm_height = mm;
    const int height_px = widgetPx(pxY(*m_scaling, mm));
    const QVector<QLabel *> labels = this->labels();
    for (QLabel *label : labels)
        label->setFixedHeight(height_px);
    setFixedHeight(height_px);
}

// Parsing a stylesheet is dear, also one that a label has already.
void VexoHorizontalLabelWidget::setStyleSheetFromColors() const
{
    const QString sheet = QStringLiteral("QLabel {color: %1;background: %2;}")
                              .arg(rgb(m_text_color), rgb(m_background_color));
    const QVector<QLabel *> labels = this->labels();
    for (QLabel *label : labels) {
        if (label->styleSheet() != sheet)
            label->setStyleSheet(sheet);
    }
}

void VexoHorizontalLabelWidget::setupUi()
{
    setObjectName(QStringLiteral("vexoHorizontalLabelWidget"));
    auto *layout = new QHBoxLayout(this);
    tighten(layout);
    layout->addWidget(m_left_label);
    layout->addWidget(m_right_label);
    setTextColor(m_text_color);
    setBackgroundColor(m_background_color);
    setPtFontSize(m_pt_font_size);
    setMmIndent(m_mm_indent);
    setLeftLabelMmWidth(m_left_label_mm_width);
    setRightLabelMmWidth(m_right_label_mm_width);
    setMmHeight(m_mm_height);
    m_left_label->setWordWrap(true);
    m_right_label->setWordWrap(true);
    m_left_label->setObjectName(QStringLiteral("leftLabel"));
    m_right_label->setObjectName(QStringLiteral("rightLabel"));
}

// Those that are left: an application is handed them, and may delete one.
QVector<QLabel *> VexoHorizontalLabelWidget::labels() const
{
    QVector<QLabel *> labels{ m_left_label, m_right_label };
    labels.removeAll(nullptr);
    return labels;
}

} // namespace vexo::hox::qt::ui
