#pragma once
// SPDX-License-Identifier: MIT

#include "ui/foundation/vexocolors.h"

#include <QWidget>

class QLabel;

namespace vexo::hox::qt::ui {

class VexoIconButton;

/// A number stepper: a round minus button, the number, a round plus button. A press changes the
/// number by the step; a step beyond a limit lands on the limit, where the button of that direction
/// is disabled. With the minimum above the maximum both are disabled.
///
/// Setting the value runs the event loop for 5 ms, so that the number is on the screen before the
/// caller goes on. In that time anything may happen to the stepper, also its deletion. It may be
/// deleted in valueChanged() as well.
class HOXQUI_EXPORT VexoNumericButton : public QWidget
{
    Q_OBJECT

    /// Colour of the number, given to its label as a stylesheet. Default C3.
    Q_PROPERTY(QColor text_color READ textColor WRITE setTextColor)
    /// Default 0. Clamped to the limits; emits nothing. A form sets it before the limits, so set it
    /// in code.
    Q_PROPERTY(int current_value READ value WRITE setValue)
    /// Default 0. A change shows with the next value or press.
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    /// Default 1. A change shows with the next value or press.
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    /// Default 1. Holds from the next press on.
    Q_PROPERTY(int step_size READ stepSize WRITE setStepSize)
    /// Space before the minus and behind the plus, mm. Default 18.0. Negative ones and NaN are
    /// ignored.
    Q_PROPERTY(double edge_in_mm READ edgeInMm WRITE setEdgeInMm)

public:
    explicit VexoNumericButton(QWidget *parent = nullptr);

    QColor textColor() const { return m_text_color; }
    void setTextColor(const QColor &color);
    int value() const { return m_value; }
    void setValue(int value);
    int minimum() const { return m_minimum; }
    void setMinimum(int minimum);
    int maximum() const { return m_maximum; }
    void setMaximum(int maximum);
    int stepSize() const { return m_step_size; }
    void setStepSize(int step_size);
    double edgeInMm() const { return m_edge_mm; }
    void setEdgeInMm(double mm);
    /// As a press does: sets the value and emits valueChanged().
    void changeValue(int value);

Q_SIGNALS:
    /// A press or changeValue() set the value, which is now \a value, whether it differs or not.
    void valueChanged(int value);

private Q_SLOTS:
    void onDecreaseButtonClicked();
    void onIncreaseButtonClicked();

private:
    void bringToScreen();
    void setupUi();
    VexoIconButton *createRoundButton(const QString &image);

    QLabel *m_number_label = nullptr;
    VexoIconButton *m_decrease_button = nullptr;
    VexoIconButton *m_increase_button = nullptr;
    QColor m_text_color = VexoColors::C3;
    int m_value = 0;
    int m_minimum = 0;
    int m_maximum = 1;
    int m_step_size = 1;
    double m_edge_mm = 18.0;
    bool m_is_waiting = false; // for the number to reach the screen
};

} // namespace vexo::hox::qt::ui
