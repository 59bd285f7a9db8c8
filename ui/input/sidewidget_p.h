#pragma once
// SPDX-License-Identifier: MIT

#include <QLineEdit>

class QLabel;
class QWidgetAction;

namespace vexo::hox::qt::ui {

class VexoFeedbackDelegator;
class VexoIconButton;

// What a line edit shows at its ends, through any number of actions. Each of them owns the widget;
// one that goes takes it along, and the line edit does without. The toolkit gives it a place, but
// one as large as its own small icons: it makes itself as high as the field, and wide enough.

/// A label for showIcon().
QLabel *makeLeadingLabel(QLineEdit *field);
/// Shows \a icon at \a px, the width of \a label; an icon that no screen could take is left out.
void showIcon(QLabel *label, const QIcon &icon, const QSize &px);

/// A button called "trailingButton" that rings \a tone, whatever is installed now.
VexoIconButton *makeTrailingButton(QLineEdit *field, VexoFeedbackDelegator *tone);

/// Shows \a widget at an end of \a field through a further action, a child of the field.
QWidgetAction *addSideWidget(
    QLineEdit *field, QWidget *widget, QLineEdit::ActionPosition end, const QString &name);

} // namespace vexo::hox::qt::ui
