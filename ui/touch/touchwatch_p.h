#pragma once
// SPDX-License-Identifier: MIT

#include <QBasicTimer>
#include <QObject>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <optional>

namespace vexo::hox::qt::ui {

/// Tells when the release of a touch will not come any more: the widget is hidden, with its page or
/// alone, or disabled; a dialog blocks its window; a popup opens, which takes the release without
/// a word to the widget; another widget has grabbed the mouse; another button or a new press
/// follows; or, whatever the reason, the widget does not see the release. It filters the events of
/// the whole application, so it should live as long as the touch.
///
/// A list that its finger slides across takes a touch back only along its own direction; limitTo()
/// is for what must not click after a slide across it.
class TouchWatch : public QObject
{
public:
    /// Calls \a lost, which may delete the watch. A touch of a child of \a widget is one of it.
    TouchWatch(QWidget *widget, std::function<void()> lost);

    /// Whether no finger can touch \a widget now.
    static bool isOutOfReach(const QWidget &widget);

    /// Beyond 5 mm of \a place, px of the screen, the touch is a slide and lost.
    void limitTo(const QPoint &place);
    /// The finger has been lifted: the release comes at once or never.
    void endSoon();

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    bool isSlide(const QObject &object, const QEvent &event) const;
    void end();

    const QPointer<QWidget> m_widget;
    const std::function<void()> m_lost;
    QBasicTimer m_soon;
    std::optional<QPoint> m_place; // that it is limited to
};

} // namespace vexo::hox::qt::ui
