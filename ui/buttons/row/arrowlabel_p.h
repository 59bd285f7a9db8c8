#pragma once
// SPDX-License-Identifier: MIT

#include "ui/foundation/vexocolors.h"

#include <QLabel>

namespace vexo::hox::qt::ui {

/// The arrow at the right end of a row. It is shown as it is: a plain label would dim it once more
/// while disabled.
class ArrowLabel : public QLabel
{
public:
    /// Shows the arrow of a row that is up.
    explicit ArrowLabel(QWidget *row);

    /// \a arrow; a null one is first rendered in \a color, as large as \a normal. Most rows of a
    /// list are never pressed, and never disabled.
    static const QPixmap &rendered(QPixmap *arrow, const QColor &color, const QPixmap &normal);
    /// \a arrow in another colour.
    static QPixmap tinted(const QPixmap &arrow, const QColor &color);
    /// The colours of the files: of a row that is up, down, disabled.
    static QColor normalColor() { return VexoColors::C3; }
    static QColor pressedColor() { return VexoColors::C0; }
    static QColor inactiveColor() { return QColor(220, 220, 220); }
    /// In a paint of the row of \a painted.
    void showArrow(const QPixmap &arrow, const QRegion &painted);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

} // namespace vexo::hox::qt::ui
