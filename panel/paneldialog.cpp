// SPDX-License-Identifier: MIT
#include "panel/paneldialog.h"

#include "panel/coverfollower_p.h"
#include "panel/mm_p.h"
#include "panel/roles_p.h"
#include "panel/roundground_p.h"

#include <VexoColors>
#include <VexoPushButton>

#include <QAccessible>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>

namespace vexo::hox::qt::panel {

using ui::VexoColors;
using ui::VexoPushButton;

namespace {

bool takesTab(const QWidget &widget)
{
    return widget.isVisible() && widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus);
}

bool focusIn(const QWidget *widget)
{
    const QWidget *focused = widget->window()->focusWidget();
    return focused && (focused == widget || widget->isAncestorOf(focused));
}

} // namespace

PanelDialog::PanelDialog(const QString &question, QWidget *screen)
    : QWidget(screen)
    , m_box(new RoundGround(VexoColors::C1, 2, this))
    , m_question(createText(9, QFont::Medium, m_box))
    , m_explanation(createText(7.5, QFont::Normal, m_box))
    , m_column(new QVBoxLayout(m_box))
    , m_buttons_layout(new QBoxLayout(QBoxLayout::LeftToRight))
{
    installRoles();
    hide();
    m_column->setContentsMargins(mmMargins(3, 0));
    m_column->setSpacing(mmY(2));
    m_column->addSpacing(mmY(2.5));
    for (QLabel *label : { m_question, m_explanation }) {
        label->setContentsMargins(mmMargins(3, 0)); // as far in as the outline of the buttons
        m_column->addWidget(label);
    }
    m_buttons_layout->setSpacing(0);
    m_column->addLayout(m_buttons_layout);
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(mmMargins(3, 1));
    layout->addWidget(m_box, 1, 1);
    for (const int beside : { 0, 2 }) {
        layout->setRowStretch(beside, 1);
        layout->setColumnStretch(beside, 1);
    }
    layout->setColumnStretch(1, 1000); // up to its greatest width
    setMmWidth(m_mm_width);
    setQuestion(question);
    setExplanation(QString());
    setTextColor(VexoColors::C3);
    setShadeColor(QColor::fromRgbF(0, 0, 0, 0.6));
    new CoverFollower(this);
}

// The toolkit repaints what lay below a widget that is deleted, also long after it was hidden.
PanelDialog::~PanelDialog()
{
    if (isHidden())
        move(-width(), 0);
}

QString PanelDialog::question() const
{
    return m_question->text();
}

void PanelDialog::setQuestion(const QString &text)
{
    m_question->setText(text);
    setAccessibleName(text);
}

QString PanelDialog::explanation() const
{
    return m_explanation->text();
}

void PanelDialog::setExplanation(const QString &text)
{
    m_explanation->setText(text);
    m_explanation->setVisible(!text.isEmpty());
    setAccessibleDescription(text);
}

void PanelDialog::setMmWidth(double mm)
{
    m_mm_width = mm >= 0 ? mm : 0;
    m_box->setMaximumWidth(mmX(m_mm_width));
}

QColor PanelDialog::backgroundColor() const
{
    return m_box->color();
}

void PanelDialog::setBackgroundColor(const QColor &color)
{
    m_box->setColor(color);
    for (const auto &button : qAsConst(m_buttons))
        dressButton(button);
}

void PanelDialog::setTextColor(const QColor &color)
{
    m_text_color = color;
    setInk(m_question, color);
    setInk(m_explanation, color);
    for (const auto &button : qAsConst(m_buttons))
        dressButton(button);
}

void PanelDialog::setShadeColor(const QColor &color)
{
    m_shade_color = color;
    update();
}

void PanelDialog::setClosesBeside(bool closes)
{
    m_closes_beside = closes;
    update();
}

VexoPushButton *PanelDialog::addButton(const QString &text)
{
    auto *button = new VexoPushButton(m_box);
    // The panel's sheet would lay a ground of its own around each button.
    button->setStyleSheet(QStringLiteral("background: transparent"));
    button->setText(text);
    dressButton(button);
    const int index = m_buttons.size();
    connect(button, &VexoPushButton::clicked, this, [this, index] { answer(index); });
    m_buttons += button;
    m_buttons_layout->addWidget(button);
    if (m_buttons.size() > 2)
        m_buttons_layout->setDirection(QBoxLayout::TopToBottom);
    return button;
}

void PanelDialog::dressButton(VexoPushButton *button) const
{
    if (!button)
        return;
    button->setBackgroundColor(m_box->color());
    button->setTextColor(m_text_color);
}

void PanelDialog::setContent(QWidget *content)
{
    if (content == m_content)
        return;
    delete m_content;
    m_content = content;
    if (content)
        m_column->insertWidget(m_column->indexOf(m_buttons_layout), content);
}

void PanelDialog::open()
{
    if (isVisible())
        return;
    if (QWidget *screen = parentWidget())
        endPresses(screen);
    m_focus_before = window()->focusWidget();
    m_is_pressed_beside = false;
    raise();
    show();
    setFocus();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void PanelDialog::answer(int button)
{
    const QPointer<PanelDialog> self(this);
    close();
    if (self)
        Q_EMIT answered(button);
}

// Among what lies in the dialog, round and round.
bool PanelDialog::focusNextPrevChild(bool next)
{
    QWidget *const now = focusIn(this) ? window()->focusWidget() : this;
    const auto following = [next](const QWidget *widget) {
        return next ? widget->nextInFocusChain() : widget->previousInFocusChain();
    };
    for (QWidget *other = following(now); other && other != now; other = following(other)) {
        if (isAncestorOf(other) && takesTab(*other)) {
            other->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            break;
        }
    }
    return true;
}

void PanelDialog::hideEvent(QHideEvent *)
{
    QWidget *before = m_focus_before;
    if (before && before->isVisible() && focusIn(this))
        before->setFocus();
}

void PanelDialog::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape || event->key() == Qt::Key_Back)
        answer(-1);
    event->accept(); // the screen below takes no keys
}

void PanelDialog::mousePressEvent(QMouseEvent *event)
{
    m_is_pressed_beside = !m_box->geometry().contains(event->pos());
}

void PanelDialog::mouseReleaseEvent(QMouseEvent *event)
{
    const bool is_beside = m_is_pressed_beside && !m_box->geometry().contains(event->pos());
    m_is_pressed_beside = false;
    if (is_beside && m_closes_beside)
        answer(-1);
}

void PanelDialog::wheelEvent(QWheelEvent *event)
{
    event->accept();
}

void PanelDialog::paintEvent(QPaintEvent *)
{
    QPainter(this).fillRect(rect(), m_shade_color);
}

} // namespace vexo::hox::qt::panel
