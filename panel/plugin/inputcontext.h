#pragma once
// SPDX-License-Identifier: MIT

#include "panel/plugin/keyboarddock.h"

#include <QBasicTimer>
#include <qpa/qplatforminputcontext.h>

/// The input method "hoxqui": a keyboard in the window of the field that has the focus. It comes
/// and goes when no finger is on the screen, since it moves what a finger may be on.
class InputContext : public QPlatformInputContext
{
    Q_OBJECT

public:
    InputContext();

    bool isValid() const override { return true; }
    void setFocusObject(QObject *object) override;
    void update(Qt::InputMethodQueries queries) override;
    void showInputPanel() override;
    void hideInputPanel() override;
    bool isInputPanelVisible() const override { return m_dock.isOpen(); }
    QRectF keyboardRect() const override { return m_dock.placeInWindow(); }
    QLocale locale() const override;

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    void settleSoon();
    void settle();

    KeyboardDock m_dock;
    QBasicTimer m_timer;
    bool m_is_changing = false; // the focus has gone to another object
    bool m_is_dismissed = false; // until another field, or a tap into this one
};
