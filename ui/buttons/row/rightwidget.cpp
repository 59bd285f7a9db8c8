// SPDX-License-Identifier: MIT
#include "ui/buttons/row/rightwidget_p.h"

#include "ui/buttons/row/arrowlabel_p.h"
#include "ui/buttons/row/choicepress_p.h"
#include "ui/buttons/vexocheckbox.h"
#include "ui/buttons/vexoiconbutton.h"
#include "ui/buttons/vexoradiobutton.h"

namespace vexo::hox::qt::ui {

namespace {

using Row = VexoFunctionButton;

QWidget *makeTickBox(QWidget *row)
{
    auto *box = new VexoIconButton(row);
    box->setCheckable(true);
    box->addIcon(QLatin1String(ActiveButton::DEFAULT_STATE_NAME),
        QStringLiteral(":widgetimages/Checkbox_Blank.svg"));
    box->addIcon(QLatin1String(ActiveButton::CLICKED_STATE_NAME),
        QStringLiteral(":widgetimages/RoundButton_S_Tick_Active.svg"));
    const double height_mm = 6;
    box->setMmIconSize(QSizeF(0, height_mm));
    return box;
}

QWidget *makeByType(RightWidget::Type type, QWidget *row)
{
    switch (type) {
    case Row::CheckboxType:
        return new VexoCheckBox(row);
    case Row::RadiobuttonType:
        return new VexoRadioButton(row);
    case Row::TickAgreementType:
        return makeTickBox(row);
    default:
        return new ArrowLabel(row);
    }
}

} // namespace

QWidget *RightWidget::make(Type type, QWidget *row)
{
    QWidget *widget = makeByType(type, row);
    widget->setFocusPolicy(Qt::NoFocus);
    widget->setObjectName(QStringLiteral("vexoFunctionButtonWidgetRight"));
    return widget;
}

bool RightWidget::isArrow(Type type)
{
    return type == Row::ActionType || type == Row::FullsizeRadiobuttonType;
}

double RightWidget::gapMm(Type type)
{
    return type == Row::CheckboxType || type == Row::RadiobuttonType ? 2.0 : 3.0;
}

void RightWidget::toggle(QWidget *widget)
{
    if (auto *tick_box = qobject_cast<VexoIconButton *>(widget))
        Q_EMIT tick_box->clicked(true); // which ticks it
    else if (auto *button = qobject_cast<QAbstractButton *>(widget))
        ChoicePress::toggle(button);
}

} // namespace vexo::hox::qt::ui
