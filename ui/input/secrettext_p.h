#pragma once
// SPDX-License-Identifier: MIT

#include <QVariant>

class QLineEdit;

namespace vexo::hox::qt::ui {

/// What \a answer of \a field to an input method's \a query may tell of a secret text: as many mask
/// characters, so that positions in it hold.
QVariant masked(const QLineEdit &field, Qt::InputMethodQuery query, const QVariant &answer);

/// Leaves \a field nothing to undo: a secret would come back, in letters once it is no longer
/// secret. Text, cursor and modified() stay.
void forgetHistory(QLineEdit *field);

} // namespace vexo::hox::qt::ui
