#pragma once
// SPDX-License-Identifier: MIT

#include <QWidget>

/// A dark rectangle of a size in mm, with marks inside.
class Measure : public QWidget
{
public:
    /// A mark each \a step_mm.
    Measure(const QSizeF &mm, double step_mm);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const QSizeF m_mm;
    const double m_step_mm;
};
