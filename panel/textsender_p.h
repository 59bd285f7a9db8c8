#pragma once
// SPDX-License-Identifier: MIT

#include <QPointer>
#include <QString>

namespace vexo::hox::qt::panel {

/// Speaks to a field as an input method and a keyboard do, and asks it what an input method may
/// ask. It keeps nothing of what is typed. Whatever a field does with an event may delete the
/// sender, which is not touched afterwards.
class TextSender
{
public:
    /// Null, and one that is destroyed: what has the focus.
    void setReceiver(QObject *receiver) { m_receiver = receiver; }
    QObject *receiver() const;

    /// Puts in \a text, in place of the last \a replaced UTF-16 units before the cursor. Returns
    /// how many units a later call has to replace to take it out again: 0 if the field refused it.
    int commit(const QString &text, int replaced = 0) const;
    /// Presses and releases a key that has no text, or one that a shortcut may have.
    void press(Qt::Key key, const QString &text) const;

    Qt::InputMethodHints hints() const;
    /// Whether a sentence begins at the cursor. Not asked of a field with secrets.
    bool isAtSentence() const;

private:
    QPointer<QObject> m_receiver;
};

} // namespace vexo::hox::qt::panel
