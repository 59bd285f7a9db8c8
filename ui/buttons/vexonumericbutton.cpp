// SPDX-License-Identifier: MIT
#include "ui/buttons/vexonumericbutton.h"

#include "ui/buttons/vexoiconbutton.h"
#include "ui/foundation/languagefollower_p.h"
#include "ui/foundation/panelfont_p.h"
#include "ui/foundation/pixels_p.h"
#include "ui/foundation/plainlabel_p.h"
#include "ui/foundation/saturated_p.h"
#include "ui/foundation/tightlayout_p.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QPointer>

namespace vexo::hox::qt::ui {

VexoNumericButton::VexoNumericButton(QWidget *parent)
    : QWidget(parent)
{
    setupUi();
}

void VexoNumericButton::setTextColor(const QColor &color)
{
    m_text_color = color;
    m_number_label->setStyleSheet(QStringLiteral("QLabel {color: rgb(%1, %2, %3);}")
                                      .arg(color.red())
                                      .arg(color.green())
                                      .arg(color.blue()));
}

void VexoNumericButton::setValue(int value)
{
    if (value >= m_maximum)
        m_value = m_maximum;
    else if (value <= m_minimum)
        m_value = m_minimum;
    else
        m_value = value;
    m_decrease_button->setEnabled(m_value > m_minimum);
    m_increase_button->setEnabled(m_value < m_maximum);
    m_number_label->setText(QString::number(m_value));
    m_number_label->repaint();
    bringToScreen();
}

// A press that comes meanwhile does not wait once more: a queue of them would nest on the stack.
void VexoNumericButton::bringToScreen()
{
    if (m_is_waiting)
        return;
    m_is_waiting = true;
    const QPointer<VexoNumericButton> self(this);
    const int shown_after_ms = 5;
    QElapsedTimer time;
    time.start();
    while (time.elapsed() < shown_after_ms)
        QCoreApplication::processEvents(QEventLoop::AllEvents, shown_after_ms);
    if (self)
        m_is_waiting = false;
}

void VexoNumericButton::setMinimum(int minimum)
{
    m_minimum = minimum;
}

void VexoNumericButton::setMaximum(int maximum)
{
    m_maximum = maximum;
}

void VexoNumericButton::setStepSize(int step_size)
{
    m_step_size = step_size;
}

void VexoNumericButton::changeValue(int value)
{
    const QPointer<VexoNumericButton> self(this);
    setValue(value);
    if (self)
        Q_EMIT valueChanged(m_value);
}

void VexoNumericButton::onDecreaseButtonClicked()
{
    if (m_value != m_minimum)
        changeValue(saturated(qint64(m_value) - m_step_size));
}

void VexoNumericButton::onIncreaseButtonClicked()
{
    if (m_value != m_maximum)
        changeValue(saturated(qint64(m_value) + m_step_size));
}

void VexoNumericButton::setupUi()
{
    m_decrease_button = createRoundButton(QStringLiteral("Minus"));
    m_decrease_button->setObjectName(QStringLiteral("decreaseButton"));
    followLanguage(m_decrease_button, "accessibleName", [] { return tr("Decrease"); });
    connect(m_decrease_button, &QAbstractButton::clicked, this,
        &VexoNumericButton::onDecreaseButtonClicked);
    m_increase_button = createRoundButton(QStringLiteral("Plus"));
    m_increase_button->setObjectName(QStringLiteral("increaseButton"));
    followLanguage(m_increase_button, "accessibleName", [] { return tr("Increase"); });
    connect(m_increase_button, &QAbstractButton::clicked, this,
        &VexoNumericButton::onIncreaseButtonClicked);

    m_number_label = plainLabel();
    m_number_label->setText(QString::number(m_value));
    m_number_label->setObjectName(QStringLiteral("numberLabel"));
    m_number_label->setFont(panelFont(13.0, QFont::Medium));
    setTextColor(m_text_color);

    const int edge_px = widgetPx(pxX(*ScalingInfo::inst(), 18.0));
    auto *row = new QHBoxLayout(this);
    tighten(row);
    row->addItem(new QSpacerItem(edge_px, 0));
    row->addWidget(m_decrease_button);
    row->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Expanding));
    row->addWidget(m_number_label);
    row->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Expanding));
    row->addWidget(m_increase_button);
    row->addItem(new QSpacerItem(edge_px, 0));
}

VexoIconButton *VexoNumericButton::createRoundButton(const QString &image)
{
    const QString path
        = QStringLiteral(":widgetimages/Icons_Round_Small/RoundButton_S_%1_%2.svg").arg(image);
    auto *button = new VexoIconButton;
    button->addIcon(
        QLatin1String(ActiveButton::DEFAULT_STATE_NAME), path.arg(QLatin1String("Active")));
    button->addIcon(
        QLatin1String(ActiveButton::CLICKED_STATE_NAME), path.arg(QLatin1String("Pressed")));
    button->addIcon(
        QLatin1String(ActiveButton::INACTIVE_STATE_NAME), path.arg(QLatin1String("Inactive")));
    button->setMmIconSize(QSizeF(0.0, 6.0));
    fixWidth(button, *ScalingInfo::inst(), 7.0);
    return button;
}

} // namespace vexo::hox::qt::ui
