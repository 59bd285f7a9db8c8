#pragma once
// SPDX-License-Identifier: MIT

#include <QObject>

class QWidget;

/// Makes a container in Designer place what is dropped into it at once, as it does in a form that
/// is loaded.
class FormPlacement : public QObject
{
public:
    /// Belongs to \a container.
    explicit FormPlacement(QWidget *container);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void place();
};

/// Whether \a widget is edited in Designer, and not shown by an application or a preview.
bool isInForm(const QWidget *widget);
