#pragma once
// SPDX-License-Identifier: MIT

#include <QAccessible>
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

/// Makes an \a Interface for a \a Widget; a class derived from it may have another.
template <typename Widget, typename Interface>
QAccessibleInterface *createAccessible(const QString &class_name, QObject *object)
{
    const bool may_be = class_name == QLatin1String(Widget::staticMetaObject.className());
    auto *widget = may_be ? dynamic_cast<Widget *>(object) : nullptr;
    return widget ? new Interface(widget) : nullptr;
}

/// From now on, and until the library is unloaded, assistive technology sees each \a Widget by an
/// \a Interface.
template <typename Widget, typename Interface>
void installAccessible()
{
    static constexpr QAccessible::InterfaceFactory create = createAccessible<Widget, Interface>;
    struct Remover
    {
        Remover() = default;
        ~Remover() { QAccessible::removeFactory(create); }
        Q_DISABLE_COPY(Remover)
    };
    // Counts once; an application that ends takes all factories along, and the next one needs them.
    QAccessible::installFactory(create);
    static const Remover remover;
    Q_UNUSED(remover)
}

} // namespace vexo::hox::qt::ui
