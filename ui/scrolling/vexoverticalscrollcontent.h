#pragma once
// SPDX-License-Identifier: MIT

#include "ui/hoxqui_export.h"

#include <QWidget>

namespace vexo::hox::qt::ui {

/// What a VexoVerticalScrollArea scrolls: rows below each other without gaps, from the top left.
/// The application adds its rows to layout(), a QVBoxLayout with the name "ScrollVBoxLayout".
/// Rows that are opaque are moved at a scroll instead of drawn anew, as long as they hide the
/// content; VexoFunctionButton is opaque when its two background colours are.
class HOXQUI_EXPORT VexoVerticalScrollContent : public QWidget
{
    Q_OBJECT

public:
    explicit VexoVerticalScrollContent(QWidget *parent = nullptr);

    /// Centres rows that are narrower than the area.
    void centered();
    /// Adds \a row at the bottom of layout() unless it is there. Forms call it for each child of
    /// the content; null is ignored.
    Q_INVOKABLE void addFromForm(QWidget *row);
};

} // namespace vexo::hox::qt::ui
