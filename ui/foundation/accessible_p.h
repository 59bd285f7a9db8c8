#pragma once

#include <QWidget>

namespace vexo::hox::qt::ui {

/// Lets assistive technology call \a widget what it shows: \a now instead of \a before. A name that
/// the application gave stays.
inline void followName(QWidget *widget, const QString &before, const QString &now)
{
    if (widget->accessibleName() == before)
        widget->setAccessibleName(now);
}

/// The same for the description, which is read after the name.
inline void followDescription(QWidget *widget, const QString &before, const QString &now)
{
    if (widget->accessibleDescription() == before)
        widget->setAccessibleDescription(now);
}

} // namespace vexo::hox::qt::ui
