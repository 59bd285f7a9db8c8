// SPDX-License-Identifier: MIT
#include "gallery/widgets/question.h"

#include "gallery/measures.h"
#include "gallery/page.h"
#include "gallery/widgets/ground.h"

#include <VexoColors>
#include <VexoPushButton>

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>

using namespace vexo::hox::qt::ui;

Question::Question(const QuestionTexts &texts, QWidget *screen)
    : QWidget(screen)
{
    auto *row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(createBox(texts), 1000); // up to its greatest width
    row->addStretch(1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(mmX(3), mmY(1), mmX(3), mmY(1));
    layout->addStretch();
    layout->addLayout(row);
    layout->addStretch();
    screen->installEventFilter(this);
    setGeometry(screen->rect());
    show();
}

bool Question::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return QWidget::eventFilter(watched, event);
}

void Question::mousePressEvent(QMouseEvent *event)
{
    event->accept(); // what lies below is not touched
}

void Question::paintEvent(QPaintEvent *)
{
    QColor shade = VexoColors::C3;
    shade.setAlphaF(0.6);
    QPainter(this).fillRect(rect(), shade);
}

QWidget *Question::createBox(const QuestionTexts &texts)
{
    auto *box = new QWidget;
    setGround(box, VexoColors::C1); // that of the buttons
    box->setMaximumWidth(mmX(90));
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(0);
    buttons->addWidget(createButton(texts.no, false));
    buttons->addWidget(createButton(texts.yes, true));
    auto *column = new QVBoxLayout(box);
    column->setContentsMargins(mmX(3), mmY(4), mmX(3), mmY(1));
    column->setSpacing(mmY(2));
    for (QLabel *label : { Page::createText(texts.question, 9, QFont::Medium),
             Page::createText(texts.explanation) }) {
        label->setContentsMargins(mmX(3), 0, mmX(3), 0);
        column->addWidget(label);
    }
    column->addLayout(buttons);
    return box;
}

QWidget *Question::createButton(const QString &text, bool yes)
{
    auto *button = new VexoPushButton;
    button->setText(text);
    connect(button, &VexoPushButton::clicked, this, [this, yes] {
        Q_EMIT answered(yes);
        deleteLater();
    });
    return button;
}
