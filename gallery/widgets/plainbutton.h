#pragma once
// SPDX-License-Identifier: MIT

#include <QFontMetrics>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>

/// The toolkit's style without any stylesheet. The application's stylesheet reaches each widget,
/// whatever style is set on it: a widget without it has to paint and measure itself by this one.
const QStyle &plainStyle();

/// \a Button, a check box, radio button or push button, as it is without the application's
/// stylesheet.
template <typename Button, QStyle::ControlElement element, QStyle::ContentsType contents>
class PlainButton : public Button
{
public:
    QSize sizeHint() const override
    {
        QStyleOptionButton option;
        this->initStyleOption(&option);
        const QFontMetrics metrics = this->fontMetrics();
        const QSize text(metrics.horizontalAdvance(this->text()), metrics.height());
        return plainStyle().sizeFromContents(contents, &option, text, nullptr);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QStyleOptionButton option;
        this->initStyleOption(&option);
        QPainter painter(this);
        plainStyle().drawControl(element, &option, &painter);
    }
};

template <typename Button>
using PlainCheckBox = PlainButton<Button, QStyle::CE_CheckBox, QStyle::CT_CheckBox>;
template <typename Button>
using PlainRadioButton = PlainButton<Button, QStyle::CE_RadioButton, QStyle::CT_RadioButton>;
template <typename Button>
using PlainPushButton = PlainButton<Button, QStyle::CE_PushButton, QStyle::CT_PushButton>;
