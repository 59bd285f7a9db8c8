// SPDX-License-Identifier: MIT
#include "panel/plugin/inputcontext.h"

#include <BounceFilter>
#include <PanelTranslations>

#include <QApplication>
#include <QInputMethodQueryEvent>
#include <QLocale>

#include <stdexcept>

namespace {

const int touch_ms = 20; // between two looks whether a finger is still down

// An application without widgets has no field for it.
QWidget *focusedField()
{
    auto *field = qobject_cast<QWidget *>(QGuiApplication::focusObject());
    if (!field || !qobject_cast<QApplication *>(QCoreApplication::instance()))
        return nullptr;
    QInputMethodQueryEvent query(Qt::ImEnabled);
    QCoreApplication::sendEvent(field, &query);
    return query.value(Qt::ImEnabled).toBool() ? field : nullptr;
}

} // namespace

// Before there are widgets, whose texts a change of the language would set anew.
InputContext::InputContext()
{
    // The first touch of the application may bring a keyboard up where the finger is.
    vexo::hox::qt::ui::BounceFilter::install();
    vexo::hox::qt::panel::PanelTranslations::setLocale();
    connect(&m_dock, &KeyboardDock::changed, this, &InputContext::emitKeyboardRectChanged);
    connect(&m_dock, &KeyboardDock::changed, this, &InputContext::emitInputPanelVisibleChanged);
    connect(&m_dock, &KeyboardDock::languageChanged, this, &InputContext::emitLocaleChanged);
    connect(&m_dock, &KeyboardDock::hideRequested, this, &InputContext::hideInputPanel);
}

void InputContext::setFocusObject(QObject *)
{
    m_is_dismissed = false;
    m_is_changing = true;
    settleSoon();
}

void InputContext::update(Qt::InputMethodQueries queries)
{
    if (queries & Qt::ImEnabled)
        settleSoon();
    if (m_dock.isOpen())
        m_dock.follow();
}

void InputContext::showInputPanel()
{
    m_is_dismissed = false;
    settleSoon();
}

void InputContext::hideInputPanel()
{
    // A field calls it, too, that loses the focus to another one or to the list of a completer.
    m_is_dismissed = !m_is_changing && !QApplication::activePopupWidget();
    settleSoon();
}

QLocale InputContext::locale() const
{
    return m_dock.language().isEmpty() ? QLocale() : QLocale(m_dock.language());
}

void InputContext::timerEvent(QTimerEvent *)
{
    if (QGuiApplication::mouseButtons() != Qt::NoButton)
        return m_timer.start(touch_ms, this);
    m_timer.stop();
    settle();
}

// The focus goes by nothing on its way from field to field.
void InputContext::settleSoon()
{
    m_timer.start(0, this);
}

void InputContext::settle()
{
    m_is_changing = false;
    if (QApplication::activePopupWidget())
        return; // it comes and goes beside the keyboard
    QWidget *field = m_is_dismissed ? nullptr : focusedField();
    try {
        if (field)
            m_dock.open(field);
        else
            m_dock.close();
    } catch (const std::range_error &error) {
        qWarning("hoxqui: %s", error.what()); // the screen tells no size
    }
}
