// SPDX-License-Identifier: MIT
#include "ui/input/sidewidget_p.h"

#include "ui/buttons/vexofeedbackdelegator.h"
#include "ui/buttons/vexoiconbutton.h"
#include "ui/files/imagefile_p.h"
#include "ui/foundation/plainlabel_p.h"
#include "ui/painting/iconpixmap_p.h"

#include <QEvent>
#include <QPointer>
#include <QScopedValueRollback>
#include <QWidgetAction>

namespace vexo::hox::qt::ui {

namespace {

/// Leaves the actions of its field before it goes; the line edit would go on with it.
template <typename Base>
class SideWidget : public Base
{
public:
    explicit SideWidget(QLineEdit *field)
        : m_field(field)
    {
    }

    ~SideWidget() override
    {
        const QList<QAction *> actions = m_field ? m_field->actions() : QList<QAction *>();
        for (QAction *action : actions) {
            const auto *shown = qobject_cast<QWidgetAction *>(action);
            if (shown && shown->defaultWidget() == this)
                m_field->removeAction(action);
        }
    }

    void fit()
    {
        const QWidget *field = this->parentWidget();
        if (!field)
            return; // it is not in use yet
        QRect place(this->x(), 0, this->width(), field->height());
        const int least = qMin(this->minimumSizeHint().width(), this->maximumWidth());
        const int missing = qMax(0, least - place.width());
        if (field->layoutDirection() == Qt::RightToLeft)
            place.setRight(place.right() + missing);
        else
            place.setLeft(place.left() - missing);
        this->setGeometry(place);
    }

protected:
    // With each action, size and direction the toolkit gives it another place.
    bool event(QEvent *event) override
    {
        const bool is_handled = Base::event(event);
        if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
            fit();
        return is_handled;
    }

private:
    const QPointer<QLineEdit> m_field;
};

} // namespace

QLabel *makeLeadingLabel(QLineEdit *field)
{
    QLabel *label = showPlain(new SideWidget<IconLabel>(field));
    label->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    return label;
}

void showIcon(QLabel *label, const QIcon &icon, const QSize &px)
{
    const QSize size = px.expandedTo(QSize(0, 0));
    const bool is_sane = qint64(size.width()) * size.height() <= ImageFile::MAX_PIXELS;
    label->setFixedWidth(size.width());
    label->setPixmap(is_sane ? iconPixmap(icon, size, sharpestRatio()) : QPixmap());
}

VexoIconButton *makeTrailingButton(QLineEdit *field, VexoFeedbackDelegator *tone)
{
    const QScopedValueRollback<VexoFeedbackDelegator *> installed(
        VexoFeedbackDelegator::tone_delegator, tone);
    auto *button = new SideWidget<VexoIconButton>(field);
    button->setObjectName(QStringLiteral("trailingButton"));
    button->setAttribute(Qt::WA_NoMousePropagation); // a release beside it is not the field's
    button->setCanChangeBackgroundColor(false);
    QObject::connect(
        button, &VexoIconButton::sizeChanged, button, &SideWidget<VexoIconButton>::fit);
    return button;
}

QWidgetAction *addSideWidget(
    QLineEdit *field, QWidget *widget, QLineEdit::ActionPosition end, const QString &name)
{
    auto *action = new QWidgetAction(field);
    action->setObjectName(name);
    action->setDefaultWidget(widget);
    field->addAction(action, end);
    return action;
}

} // namespace vexo::hox::qt::ui
