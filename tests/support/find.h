#pragma once
// SPDX-License-Identifier: MIT

#include <QWidget>

/// The first Widget of \a page that was not hidden and bears \a text or that accessible name.
template <typename Widget>
Widget *byText(const QWidget &page, const QString &text)
{
    for (auto *widget : page.findChildren<Widget *>()) {
        const bool was_hidden
            = widget->isHidden() && widget->testAttribute(Qt::WA_WState_ExplicitShowHide);
        if (!was_hidden && (widget->text() == text || widget->accessibleName() == text))
            return widget;
    }
    return nullptr;
}

/// The Widget of that object name.
template <typename Widget>
Widget *byName(const QWidget &page, const char *name)
{
    return page.findChild<Widget *>(QLatin1String(name));
}
