// SPDX-License-Identifier: MIT
//! [page]
#include <EasyAccessButton>

#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>

using namespace vexo::hox::qt::ui;

// A stock button that also clicks when the finger is lifted up to 20 px beside it.
class EasyPushButton : public QPushButton, public EasyAccessButton
{
protected:
    void mouseMoveEvent(QMouseEvent *event) override
    {
        mouseWasMoved(event->x(), event->y(), width(), height());
        QPushButton::mouseMoveEvent(event);
    }

    void mouseReleaseEvent(QMouseEvent *event) override
    {
        const bool is_click = mouseWasReleased();
        const QPointer<EasyPushButton> self(this); // a slot of released() may delete the button
        QPushButton::mouseReleaseEvent(event);
        if (!self || !is_click)
            return;
        event->accept();
        Q_EMIT clicked(false);
    }
};

QPushButton *createStopButton()
{
    return new EasyPushButton;
}
//! [page]
