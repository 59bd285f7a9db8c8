#pragma once
// SPDX-License-Identifier: MIT

#include "ui/hoxqui_export.h"

#include <QWidget>

class QLabel;

namespace vexo::hox::qt::ui {

/// An item of a numbered list: a number with a period in a column of 3 mm, and beside it a text
/// that is wrapped, with gaps of 3 mm. 14.5 mm high; what does not fit is cut, also a number too
/// long for its column.
class HOXQUI_EXPORT VexoTextEnumeration : public QWidget
{
    Q_OBJECT

public:
    explicit VexoTextEnumeration(QWidget *parent = nullptr);

    /// Shows \a text beside \a number. Plain text.
    void setText(const QString &text, int number);

private:
    void setupUi();
    void setupTextLabel();
    void setupNumberLabel();
    void setupLayouts();

    QLabel *const m_text_label;
    QLabel *const m_number_label;
};

} // namespace vexo::hox::qt::ui
