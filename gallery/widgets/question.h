#pragma once
// SPDX-License-Identifier: MIT

#include <QWidget>

/// What is to be asked, and what the two buttons say.
struct QuestionTexts
{
    QString question;
    QString explanation;
    QString no;
    QString yes;
};

/// A question that lies over a whole screen and takes its touches until one of two push buttons
/// answers it. Deletes itself then.
class Question : public QWidget
{
    Q_OBJECT

public:
    Question(const QuestionTexts &texts, QWidget *screen);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void answered(bool yes);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QWidget *createBox(const QuestionTexts &texts);
    QWidget *createButton(const QString &text, bool yes);
};
