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
    return name.endsWith(QLatin1String("text"))
        || (name.endsWith(QLatin1String("title")) && name != QLatin1String("windowtitle"));
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
        keepTexts(widget);
    for (const Text &text : qAsConst(m_texts)) {
        const QString longer = pseudoText(text.was, factor);
        if (text.widget && isGivenText(text.property) && longer != text.was)
            text.property.write(text.widget, longer);
    }
    for (QWidget *widget : shown)
        lengthenTabs(qobject_cast<QTabBar *>(widget), factor);
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
    restoreTexts();
    for (const auto &restore : qAsConst(m_restorers))
        restore();
    m_restorers.clear();
    layOut();
    restoreScrollBars();
}

// Names for assistive technology too, which follow a text.
void LayoutTrial::keepTexts(QWidget *widget)
{
    const QMetaObject *meta = widget->metaObject();
    for (int i = 0; i < meta->propertyCount() && !isForTyping(widget); ++i) {
        const QMetaProperty property = meta->property(i);
        if (property.userType() == QMetaType::QString && property.isWritable()
            && !property.isUser())
            m_texts.append({ widget, property, property.read(widget).toString() });
    }
    auto *button = qobject_cast<QAbstractButton *>(widget);
    if (!button)
        return;
    const QPointer<QAbstractButton> guard(button);
    const QKeySequence shortcut = button->shortcut(); // a text brings its own
    m_restorers.append([=] {
        if (guard && guard->shortcut() != shortcut)
            guard->setShortcut(shortcut);
    });
}

// Twice, since what one sets may change another.
void LayoutTrial::restoreTexts()
{
    for (int round = 0; round < 2; ++round) {
        for (const Text &text : qAsConst(m_texts)) {
            if (text.widget && text.property.read(text.widget).toString() != text.was)
                text.property.write(text.widget, text.was);
        }
    }
    m_texts.clear();
}

void LayoutTrial::lengthenTabs(QTabBar *tabs, double factor)
{
    const QPointer<QTabBar> bar(tabs);
    for (int i = 0; bar && i < bar->count(); ++i) {
        const QString text = bar->tabText(i);
        bar->setTabText(i, pseudoText(text, factor));
        m_restorers.append([=] {
            if (bar)
                bar->setTabText(i, text);
        });
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
