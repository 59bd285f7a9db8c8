#pragma once
// SPDX-License-Identifier: MIT

#include "ui/buttons/measuredpushbutton.h"

#include <QHash>
#include <QIcon>
#include <QRect>
#include <QString>

namespace vexo::hox::qt::ui {

/// A button that knows named visual states, each with an icon and optionally an inverse icon for a
/// dark ground. The application switches states by name; a checkable button switches by itself
/// between "DEFAULT" and "CLICKED". Icons of two states can blink in step with other buttons, or
/// follow each other once. It takes no keyboard focus unless the application lets it.
///
/// Icons may be added, removed and rendered anew at any time, also during a blink, a one-shot or a
/// press: the button keeps names of states and looks the icons up at each use. An unknown state is
/// ignored.
///
/// A tooltip also becomes the accessible name of a button that has neither text nor name.
///
/// It may not be deleted in stateChanged(), nor in toggled(); use deleteLater() there.
class HOXQUI_EXPORT ActiveButton : public MeasuredPushButton
{
    Q_OBJECT

public:
    static const char *DEFAULT_STATE_NAME; ///< "DEFAULT": shown as soon as its icon is added
    static const char *CLICKED_STATE_NAME; ///< "CLICKED": pressed or checked
    static const char *INACTIVE_STATE_NAME; ///< "INACTIVE": disabled
    static const char *TEMPORARY_STATE_NAME; ///< "TEMPORARY": for applications
    static const char *ALTERNATIVE_STATE_NAME; ///< "ALTERNATIVE": for applications
    static const char *BLINKING_STATE_NAME; ///< "BLINKING": for applications

    explicit ActiveButton(QWidget *parent = nullptr);

    /// Lets the ticks of \a timer pace the blinking. The timer stays the application's, which also
    /// starts it. Each call adds a connection: a timer set twice ticks the button twice.
    virtual void setTimer(const QTimer *timer);
    /// Makes the icon of \a state from \a file. A state that has an icon keeps it until the next
    /// rerenderAll(). The icon of "DEFAULT" is shown at once.
    virtual void addIcon(const QString &state, const QString &file);
    /// Makes the inverse icon of \a state from \a file, in place of an earlier one. Shows nothing.
    virtual void addInverseIcon(const QString &state, const QString &file);
    /// Generates an inverse icon for each state that has an icon and neither an inverse icon nor a
    /// file for one.
    virtual void createMissingInverseIcons();
    /// Shows the icon of \a state (the inverse one if the button is inverted and there is one),
    /// makes it current and ends a blink or one-shot. A state that has only an inverse icon becomes
    /// current without being shown.
    virtual void setState(const QString &state);
    /// Whether \a state has an icon; an inverse icon does not count.
    virtual bool hasState(const QString &state) const;
    /// Shows \a state1 now and alternates both states on the ticks of the timer, until a state is
    /// set. The current state stays. Without an icon for both nothing happens.
    virtual void blink(const QString &state1, const QString &state2);
    /// Shows \a state1 now and makes it current, and shows \a state2 1000 ms later; \a state1 stays
    /// current. Without an icon for both nothing happens.
    virtual void oneShot(const QString &state1, const QString &state2);
    /// Whether the next state, tick or end of a one-shot shows inverse icons. Default false.
    virtual bool inverseState() const;
    /// Shows nothing by itself, see inverseState().
    virtual void setInverseState(bool inverse);
    /// Drops all icons and inverse icons and the files of the icons. What is shown stays.
    virtual void removeIcons();
    /// Drops icon, inverse icon and icon file of \a state. What is shown stays.
    virtual void removeIcon(const QString &state);

public Q_SLOTS:
    /// The end of a one-shot.
    virtual void timeout();
    /// One tick of the blinking.
    virtual void timerEvent();

public:
    /// Makes an icon from a file, called for each icon and inverse icon that is added or rendered
    /// anew. Override it to make icons of your own kind, in the size in which they are drawn.
    virtual QIcon compute(const QString &file);
    /// Inverts the colours of the first rendering that \a icon holds; null when it holds none.
    virtual QIcon generateInverseIcon(const QIcon &icon);
    /// Called when the checked state has changed: sets "CLICKED" or "DEFAULT".
    virtual void updateStateVisualization(bool checked);

    /// The icon of \a state, null when it has none.
    QIcon getStateIcon(const QString &state) const;
    /// The inverse icon of what is shown, for drawing it on a dark ground: see
    /// getInverseIconObject(). Null when there is none. After a one-shot that is the inverse icon
    /// of its second state until the next tick of a timer, then that of the current state.
    QIcon inverseIcon();
    /// The inverse icon of \a state, or else its icon, or else null. Valid until icons are added,
    /// removed or rendered anew.
    const QIcon *getInverseIconObject(const QString &state);
    /// Makes all icons anew from their files and shows the current state, which ends a blink or
    /// one-shot. With \a create_inverse missing inverse icons are generated.
    void rerenderAll(bool create_inverse);
    /// The state set last; empty at first.
    QString currentState() const { return m_state; }

Q_SIGNALS:
    /// The checked state has changed, by touch or by a call.
    void stateChanged(bool has_state_changed);

protected:
    using QToolButton::timerEvent;
    bool event(QEvent *event) override;
    void checkStateSet() override;
    void nextCheckState() override;
    /// Where the subclass draws the icon; a tick of the blinking then repaints only there. Null,
    /// the default: the whole button.
    void setIconArea(const QRect &px) { m_icon_area = px; }

private:
    enum class Mode { Steady, OneShot, FirstDue, SecondDue };

    bool hasIcons(const QString &state1, const QString &state2) const;
    bool showState(const QString &state);
    void showIcon(const QIcon &icon);
    void showSteadily(const QString &state, const QIcon &icon);
    void endOneShot();
    void forgetInverseIcon();
    void takeNameFromTooltip();
    void log(const char *what, const QString &state1, const char *arrow, const QString &state2);

    QString m_first_state; // of the running blink or one-shot
    QString m_second_state;
    QString m_inverse_icon_state; // what inverseIcon() is of; empty: of the current state
    QString m_state;
    Mode m_mode = Mode::Steady;
    QHash<QString, QString> m_state_files;
    QHash<QString, QIcon> m_state_icons;
    QHash<QString, QString> m_inverse_files;
    QHash<QString, QIcon> m_inverse_icons;
    QTimer m_one_shot_timer;
    bool m_checked = false;
    bool m_inverse = false;
    QRect m_icon_area; // px
    QString m_tooltip_name; // accessible name taken from the tooltip
};

} // namespace vexo::hox::qt::ui
