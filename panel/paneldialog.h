#pragma once
// SPDX-License-Identifier: MIT

#include "panel/hoxqpanel_export.h"

#include <QColor>
#include <QPointer>
#include <QString>
#include <QVector>
#include <QWidget>

class QBoxLayout;
class QLabel;

namespace vexo::hox::qt::ui {
class VexoPushButton;
}

namespace vexo::hox::qt::panel {

class RoundGround;

/// A question over a screen, which is darkened and takes no touches until it is answered. It is a
/// child of that screen and no window, so it works where a platform shows one window only; nothing
/// waits in it, the answer is a signal. A touch that goes on below when it opens ends there and
/// clicks nothing. The focus stays in it, and goes back to where it was.
///
/// Texts are plain and wrap. Up to two buttons lie side by side, more of them below each other; set
/// what else they need at what addButton() returns. It may be deleted in its own signal, and with
/// Qt::WA_DeleteOnClose it is after the answer.
class HOXQPANEL_EXPORT PanelDialog : public QWidget
{
    Q_OBJECT

    /// In large letters; assistive technology calls the dialog so. Default that of the constructor.
    Q_PROPERTY(QString m_question READ question WRITE setQuestion)
    /// Below the question. Default empty: it takes no room.
    Q_PROPERTY(QString m_explanation READ explanation WRITE setExplanation)
    /// Greatest width of the box, mm. Default 90; less where the screen is narrower. Negative ones
    /// and NaN count as 0.
    Q_PROPERTY(double m_mm_width READ mmWidth WRITE setMmWidth)
    /// Of the box and the buttons. Default C1.
    Q_PROPERTY(QColor m_background_color READ backgroundColor WRITE setBackgroundColor)
    /// Of the texts and the buttons, whose two colours change places while down. Default C3.
    Q_PROPERTY(QColor m_text_color READ textColor WRITE setTextColor)
    /// Laid over the screen. Default black, 60 % opaque.
    Q_PROPERTY(QColor m_shade_color READ shadeColor WRITE setShadeColor)
    /// A tap beside the box answers with -1, as the keys Escape and Back always do. Default false.
    Q_PROPERTY(bool m_closes_beside READ closesBeside WRITE setClosesBeside)

public:
    /// Over \a screen, which owns it. Not shown before open().
    PanelDialog(const QString &question, QWidget *screen);
    ~PanelDialog() override;

    QString question() const;
    void setQuestion(const QString &text);
    QString explanation() const;
    void setExplanation(const QString &text);
    double mmWidth() const { return m_mm_width; }
    void setMmWidth(double mm);
    QColor backgroundColor() const;
    void setBackgroundColor(const QColor &color);
    QColor textColor() const { return m_text_color; }
    void setTextColor(const QColor &color);
    QColor shadeColor() const { return m_shade_color; }
    void setShadeColor(const QColor &color);
    bool closesBeside() const { return m_closes_beside; }
    void setClosesBeside(bool closes);

    /// Adds a button at the right or below, which the dialog owns. Its answer is the number of
    /// buttons before it.
    ui::VexoPushButton *addButton(const QString &text);
    /// Shows \a content, which the dialog owns from then on, between the texts and the buttons, in
    /// place of an earlier one, which is deleted. Null shows none.
    void setContent(QWidget *content);

public Q_SLOTS:
    /// Comes up above all else on the screen.
    void open();

Q_SIGNALS:
    /// It was answered by a button, or with -1 without one, and is hidden.
    void answered(int button);

protected:
    bool focusNextPrevChild(bool next) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void answer(int button);
    void dressButton(ui::VexoPushButton *button) const;

    RoundGround *const m_box;
    QLabel *const m_question;
    QLabel *const m_explanation;
    QPointer<QWidget> m_content;
    QBoxLayout *m_column;
    QBoxLayout *m_buttons_layout;
    QVector<QPointer<ui::VexoPushButton>> m_buttons;
    QColor m_text_color;
    QColor m_shade_color;
    double m_mm_width = 90;
    bool m_closes_beside = false;
    bool m_is_pressed_beside = false;
    QPointer<QWidget> m_focus_before;
};

} // namespace vexo::hox::qt::panel
