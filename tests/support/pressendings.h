#pragma once
// SPDX-License-Identifier: MIT

#include "support/touchscreen.h"

#include <QDialog>
#include <QMenu>
#include <QPointer>

/// A press that goes on, and what comes between.
struct Held
{
    TouchScreen *screen;
    Finger *finger;
    QWidget *touched;
    QPointer<QWidget> over = nullptr; ///< a dialog or menu
};

/// What ends a press, and what makes all as it was.
struct PressEnding
{
    enum Kind {
        Passing,
        Cover, ///< keeps fingers from all that lies below
        PassingCover, ///< the same until the next touch
        WholePage, ///< no finger gets through, which a list does not know that holds a press back
        OnePart ///< the same, of what is touched
    };
    using Action = void (*)(Held &held);

    const char *name;
    Action end;
    Action undo;
    Kind kind = Passing;
};

inline void popUpMenu(Held &held, QWidget *parent)
{
    auto *menu = new QMenu(parent);
    menu->addAction(QStringLiteral("Item"));
    menu->popup(QPoint(300, 560)); // below all that is touched
    held.over = menu;
}

template <Qt::WindowModality modality>
void openDialog(Held &held)
{
    held.over = new QDialog(held.screen);
    held.over->setWindowModality(modality);
    held.over->show();
}

inline void closeOver(Held &held)
{
    delete held.over;
}

// The right button opens the menu of a field.
inline void clickRight(Held &held)
{
    held.finger->clickRight();
}

inline void closePopup(Held &)
{
    if (QWidget *popup = QApplication::activePopupWidget())
        popup->close();
}

// In a list, which then takes the press back; it leaves sliders alone.
inline void swipe(Held &held)
{
    if (held.screen->list && !qobject_cast<QAbstractSlider *>(held.touched))
        held.finger->move(QPoint(0, -150)); // in one leap
    else
        held.finger->clickRight();
}

inline void grabOfAnother(Held &held)
{
    QWidget *other = held.screen->pages->widget(1);
    other->show();
    other->setGeometry(390, 490, 10, 10);
    other->grabMouse();
    held.finger->move(QPoint(1, 0));
}

inline void releaseGrab(Held &held)
{
    held.screen->pages->widget(1)->releaseMouse();
    held.screen->pages->widget(1)->hide();
}

inline void tellOfLostGrab(Held &held)
{
    QEvent event(QEvent::UngrabMouse);
    QCoreApplication::sendEvent(held.touched, &event);
}

/// All that ends a press.
inline const std::vector<PressEnding> &pressEndings()
{
    using E = PressEnding;
    static const auto nothing = [](Held &) {};
    static const std::vector<PressEnding> endings = {
        { "scroller, or another button", swipe, closePopup },
        { "hidden", [](Held &held) { held.touched->hide(); },
            [](Held &held) { held.touched->show(); }, E::OnePart },
        { "page left", [](Held &held) { held.screen->pages->setCurrentIndex(1); },
            [](Held &held) { held.screen->pages->setCurrentIndex(0); }, E::Cover },
        { "disabled", [](Held &held) { held.touched->setEnabled(false); },
            [](Held &held) { held.touched->setEnabled(true); }, E::OnePart },
        { "page disabled", [](Held &held) { held.screen->page->setEnabled(false); },
            [](Held &held) { held.screen->page->setEnabled(true); }, E::WholePage },
        { "dialog of the application", openDialog<Qt::ApplicationModal>, closeOver, E::Cover },
        { "dialog of the window", openDialog<Qt::WindowModal>, closeOver, E::Cover },
        { "menu", [](Held &held) { popUpMenu(held, held.screen); }, closeOver, E::PassingCover },
        { "menu of the widget", [](Held &held) { popUpMenu(held, held.touched); }, closeOver },
        { "grab told", tellOfLostGrab, nothing },
        { "grab found out", grabOfAnother, releaseGrab },
        { "right button", clickRight, closePopup },
        { "release lost", [](Held &held) { held.finger->press(QPoint(395, 495)); }, nothing },
    };
    return endings;
}
