// SPDX-License-Identifier: MIT
#include "panel/textsender_p.h"

#include <VexoLineEdit>

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>

QT_BEGIN_NAMESPACE
// Shortcuts are found by the platform, before a key reaches a widget. The toolkit's own tests,
// which type as a keyboard does, declare this way to them in a header that they install.
Q_GUI_EXPORT bool qt_sendShortcutOverrideEvent(QObject *receiver, ulong timestamp, int key,
    Qt::KeyboardModifiers modifiers, const QString &text = QString(), bool repeats = false,
    ushort count = 1);
QT_END_NAMESPACE

namespace vexo::hox::qt::panel {

namespace {

QVariant ask(QObject *field, Qt::InputMethodQuery query)
{
    QInputMethodQueryEvent event(query);
    if (field)
        QCoreApplication::sendEvent(field, &event);
    return event.value(query);
}

int selectionStart(QObject *field)
{
    const int cursor = ask(field, Qt::ImCursorPosition).toInt();
    const QVariant anchor = ask(field, Qt::ImAnchorPosition);
    return anchor.isValid() ? qMin(cursor, anchor.toInt()) : cursor;
}

// Its own cursor stands at the end, wherever a touch has put that of the toolkit.
void goToEnd(QObject *receiver)
{
    if (auto *field = qobject_cast<ui::VexoLineEdit *>(receiver))
        field->end(false);
}

int keyOf(const QString &text)
{
    const QChar letter = text.size() == 1 ? text.at(0).toUpper() : QChar();
    return letter.unicode() >= Qt::Key_Space && letter.unicode() <= Qt::Key_ydiaeresis
        ? int(letter.unicode())
        : Qt::Key_unknown;
}

void sendKey(QObject *to, int key, const QString &text)
{
    QPointer<QObject> receiver(to);
    if (to == QGuiApplication::focusObject()) {
        if (qt_sendShortcutOverrideEvent(to, 0, key, Qt::NoModifier, text))
            return;
        if (QWidget *popup = QApplication::activePopupWidget())
            receiver = popup; // of a completer, which knows what is for the field
    }
    for (const QEvent::Type type : { QEvent::KeyPress, QEvent::KeyRelease }) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        if (receiver)
            QCoreApplication::sendEvent(receiver, &event);
    }
}

bool endsSentence(const QString &text)
{
    const QString before = text.trimmed();
    const bool is_divided = before.size() < text.size();
    return before.isEmpty() || (is_divided && QStringLiteral(".!?…").contains(before.back()));
}

} // namespace

QObject *TextSender::receiver() const
{
    return m_receiver ? m_receiver.data() : QGuiApplication::focusObject();
}

int TextSender::commit(const QString &text, int replaced) const
{
    const QPointer<QObject> to = receiver();
    if (!to)
        return 0;
    goToEnd(to);
    const int before = selectionStart(to) - replaced;
    if (ask(to, Qt::ImEnabled).toBool()) {
        QInputMethodEvent event;
        event.setCommitString(text, -replaced, replaced);
        QCoreApplication::sendEvent(to, &event);
    } else {
        sendKey(to, keyOf(text), text);
    }
    return selectionStart(to) - before == text.size() ? text.size() : 0;
}

void TextSender::press(Qt::Key key, const QString &text) const
{
    QObject *to = receiver();
    if (!to)
        return;
    goToEnd(to);
    sendKey(to, key, text);
}

Qt::InputMethodHints TextSender::hints() const
{
    return Qt::InputMethodHints(QFlag(ask(receiver(), Qt::ImHints).toInt()));
}

bool TextSender::isAtSentence() const
{
    QObject *asked = receiver();
    const QVariant position = ask(asked, Qt::ImCursorPosition);
    if (!position.isValid() || hints() & (Qt::ImhHiddenText | Qt::ImhSensitiveData))
        return false;
    const QString text = ask(asked, Qt::ImSurroundingText).toString();
    const bool is_at_end = qobject_cast<ui::VexoLineEdit *>(asked);
    return endsSentence(is_at_end ? text : text.left(position.toInt()));
}

} // namespace vexo::hox::qt::panel
