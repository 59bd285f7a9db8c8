#pragma once
// SPDX-License-Identifier: MIT

#include "ui/hoxqui_export.h"

#include <QMouseEvent> // a connection to the forward signals needs it whole
#include <QSlider>

namespace vexo::hox::qt::ui {

/// A slider that moves in steps: with a tick interval of 5 the user chooses 0, 5, 10 ... It moves
/// only while its handle is held; a touch beside the handle changes nothing and is handed on by the
/// forward signals, so that a list with sliders in it can be swiped. Grabbing the handle rings the
/// feedback delegator that was installed when the slider was constructed.
///
/// Set minimum, maximum, tick interval and value, in this order, then finishSliderConfiguration();
/// VexoSliderDecoration calls it for its slider. With a tick interval of 2 or more the range of the
/// underlying QSlider is then that of the steps: its value() is the index of a step, its
/// valueChanged() tells that index, and only this class knows real values. What is set on a QSlider
/// pointer, by a property's name or with SLOT() reaches the underlying slider alone.
///
/// The look is that of the stylesheets; to draw is left to QSlider. ":/css/vexo-AAL.qs" draws it in
/// pixels made for 11 px/mm: with less the handle is cut and stands beside its mark, and a level
/// slider is filled from its maximum. ":/sheets/controls.qs", which Panel::setUp() applies too,
/// mends all three. It may be deleted in its own signals and in sliderPressed(), but not in other
/// ones, after which the toolkit goes on with it.
class HOXQUI_EXPORT VexoSlider : public QSlider
{
    Q_OBJECT

public:
    /// Vertical, as each QSlider.
    explicit VexoSlider(QWidget *parent = nullptr);
    /// Level or upright.
    explicit VexoSlider(Qt::Orientation orientation, QWidget *parent = nullptr);

    /// Lowest real value. Default 0. Also sets it on the underlying slider at once.
    void setMinimum(int minimum);
    /// Highest real value. Default 0. Also sets it on the underlying slider at once.
    void setMaximum(int maximum);
    /// The step between two values. Default 1; less counts as 1, but for the two
    /// conversions below. A range that it does not divide loses its last part: 0 to 10 by 3 ends at
    /// 9.
    void setTickInterval(int step);
    /// Moves to the step at or below the real \a value, and keeps it for
    /// finishSliderConfiguration().
    void setValue(int value);
    /// Applies range and step, and moves to what was given to setValue() last, not to where the
    /// user has moved the handle since.
    void finishSliderConfiguration();
    /// Moves the underlying slider: to the index of a step if there are steps.
    void setRawValue(int raw_value);

    /// Index of the step at or below the real value \a real; saturates at the ends of int.
    int getTemporarySliderValue(int real) const;
    /// Real value of the step \a index; saturates at the ends of int.
    int getRealSliderValue(int index) const;

Q_SIGNALS:
    /// The underlying value has changed; tells the real one.
    void valueChanged(int value); // clazy:exclude=overridden-signal
    /// A press that did not grab the handle. The event lives during the emission only.
    void forwardPressEvent(QMouseEvent *event);
    /// A move while the handle is not held. The event lives during the emission only.
    void forwardMoveEvent(QMouseEvent *event);
    /// A release while the handle is not held. The event lives during the emission only.
    void forwardReleaseEvent(QMouseEvent *event);

private Q_SLOTS:
    void onValueChanged(int value);

protected:
    void sliderChange(SliderChange change) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    void undoDrag();
    void letGo(const QMouseEvent &press);

    int m_minimum = 0;
    int m_maximum = 0;
    int m_value = 0;
    int m_step = 1;
};

} // namespace vexo::hox::qt::ui
