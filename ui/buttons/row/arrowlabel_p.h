#pragma once
// SPDX-License-Identifier: MIT

#include <QLabel>

namespace vexo::hox::qt::ui {

/// The arrow at the right end of a row. It is shown as it is: a plain label would dim it once more
/// while disabled.
class ArrowLabel : public QLabel
{
public:
    /// Shows the arrow of a row that is up.
    explicit ArrowLabel(QWidget *row);

    /// \a arrow; a null one is first rendered in \a color, by the end of its file's name, as large
    /// as \a normal. Most rows of a list are never pressed, and never disabled.
    static const QPixmap &rendered(QPixmap *arrow, const char *color, const QPixmap &normal);
    /// In a paint of the row of \a painted.
    void showArrow(const QPixmap &arrow, const QRegion &painted);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

} // namespace vexo::hox::qt::ui
