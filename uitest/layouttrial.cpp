// SPDX-License-Identifier: MIT
#include "uitest/layouttrial_p.h"

#include "uitest/pseudotext_p.h"
#include "uitest/widgetwalk_p.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QKeySequence>
#include <QMetaProperty>
#include <QPlainTextEdit>
#include <QResizeEvent>
#include <QScrollBar>
#include <QTabBar>
#include <QTextEdit>

namespace vexo::hox::qt::uitest {

namespace {

bool isGivenText(const QMetaProperty &property)
{
    const QString name = QString::fromLatin1(property.name()).toLower();
    const bool is_text = name.endsWith(QLatin1String("text"))
        || (name.endsWith(QLatin1String("title")) && name != QLatin1String("windowtitle"));
    return is_text && property.userType() == QMetaType::QString && property.isWritable()
        && !property.isUser();
}

bool isForTyping(const QWidget *widget)
{
    return qobject_cast<const QTextEdit *>(widget) || qobject_cast<const QPlainTextEdit *>(widget);
}

} // namespace

LayoutTrial::LayoutTrial(QWidget *window)
    : m_window(window)
    , m_silence(window)
    , m_layout(window->window()->layout())
{
    if (QLayout *layout = m_layout) {
        m_constraint = layout->sizeConstraint();
        layout->setSizeConstraint(QLayout::SetNoConstraint);
    }
    const auto bars = window->findChildren<QScrollBar *>();
    for (QScrollBar *bar : bars)
        m_bars.append({ bar, bar->value() });
}

LayoutTrial::~LayoutTrial()
{
    restore();
    if (QLayout *layout = m_layout) {
        layout->setSizeConstraint(m_constraint);
        layOut();
    }
}

// First all are read, then they are written: some give their text to a child.
void LayoutTrial::lengthen(double factor)
{
    const Widgets shown = shownWidgets(m_window);
    for (QWidget *widget : shown)
        lengthenProperties(widget, factor);
    for (const auto &change : qAsConst(m_changes))
        change();
    m_changes.clear();
    layOut();
}

void LayoutTrial::turn()
{
    QWidget *window = m_window;
    if (!window)
        return;
    const bool was_set = window->testAttribute(Qt::WA_SetLayoutDirection);
    const Qt::LayoutDirection before = window->layoutDirection();
    m_restorers.append([=, guard = m_window] {
        if (guard && was_set)
            guard->setLayoutDirection(before);
        else if (guard)
            guard->unsetLayoutDirection();
    });
    window->setLayoutDirection(Qt::RightToLeft);
    layOut();
}

void LayoutTrial::restore()
{
    for (auto it = m_restorers.crbegin(); it != m_restorers.crend(); ++it)
        (*it)();
    m_restorers.clear();
    layOut();
    restoreScrollBars();
}

// With the text of a button goes its shortcut.
void LayoutTrial::lengthenProperties(QWidget *widget, double factor)
{
    const QPointer<QWidget> guard(widget);
    if (auto *button = qobject_cast<QAbstractButton *>(widget)) {
        const QPointer<QAbstractButton> same(button);
        const QKeySequence shortcut = button->shortcut();
        m_restorers.append([=] {
            if (same && same->shortcut() != shortcut)
                same->setShortcut(shortcut);
        });
    }
    const QMetaObject *meta = widget->metaObject();
    for (int i = 0; i < meta->propertyCount() && !isForTyping(widget); ++i) {
        const QMetaProperty property = meta->property(i);
        const QString text = isGivenText(property) ? property.read(widget).toString() : QString();
        if (pseudoText(text, factor) == text)
            continue;
        m_changes.append([=] { property.write(guard, pseudoText(text, factor)); });
        m_restorers.append([=] { property.write(guard, text); });
    }
    const QPointer<QTabBar> bar(qobject_cast<QTabBar *>(widget));
    for (int i = 0; bar && i < bar->count(); ++i) {
        const QString text = bar->tabText(i);
        m_changes.append([=] { bar->setTabText(i, pseudoText(text, factor)); });
        m_restorers.append([=] { bar->setTabText(i, text); });
    }
}

// Of the layouts only, so that nothing is painted on the screen meanwhile.
void LayoutTrial::layOut()
{
    const int rounds = 4; // a label that wraps asks for another height once it knows its width
    for (int i = 0; i < rounds; ++i)
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
}

// A content that shrinks takes the position along; an area hears nothing of its bars now, and
// places its content anew when it is resized.
void LayoutTrial::restoreScrollBars()
{
    for (const auto &entry : qAsConst(m_bars)) {
        QScrollBar *bar = entry.first;
        if (!bar || bar->value() == entry.second)
            continue;
        bar->setValue(entry.second);
        const QWidget *above = bar->parentWidget();
        auto *area = qobject_cast<QAbstractScrollArea *>(above ? above->parentWidget() : nullptr);
        if (!area)
            continue;
        QResizeEvent event(area->viewport()->size(), area->viewport()->size());
        QCoreApplication::sendEvent(area->viewport(), &event);
    }
}

} // namespace vexo::hox::qt::uitest
