// SPDX-License-Identifier: MIT
#include "panel/keyvariants_p.h"

#include "panel/keylook_p.h"
#include "panel/mm_p.h"
#include "panel/over_p.h"

#include <VexoKeyboardButton>

#include <QPainter>

namespace vexo::hox::qt::panel {

namespace {

const int unused_ms = 4000;
const double least_width_mm = 8;
const double gap_mm = 1;
const double corner_mm = 2;
const double line_mm = 0.2;

} // namespace

KeyVariants::KeyVariants(QWidget *window)
    : QWidget(Over(window))
{
    setObjectName(QStringLiteral("keyVariants"));
    m_close_timer.setSingleShot(true);
    m_close_timer.setInterval(unused_ms);
    connect(&m_close_timer, &QTimer::timeout, this, &KeyVariants::dismiss);
    hide();
}

void KeyVariants::open(const Button &key, const QStringList &variants, bool is_dark)
{
    dismiss();
    m_is_dark = is_dark;
    for (const QString &variant : variants)
        m_buttons.append(addButton(variant));
    place(key);
    show();
    raise();
    m_close_timer.start();
}

void KeyVariants::dismiss()
{
    m_close_timer.stop();
    hide();
    for (Button *button : qAsConst(m_buttons))
        button->deleteLater(); // one of them may be the sender
    m_buttons.clear();
}

void KeyVariants::choose(const QPoint &global, bool is_chosen)
{
    m_close_timer.start();
    const int x = mapFromGlobal(global).x();
    int left = 0;
    for (Button *button : qAsConst(m_buttons)) {
        const bool begins = button == m_buttons.constFirst() || x > left;
        left = button->geometry().right();
        const bool ends = button == m_buttons.constLast() || x <= left;
        button->setChecked(is_chosen && begins && ends);
    }
}

QString KeyVariants::chosen() const
{
    for (const Button *button : m_buttons) {
        if (button->isChecked())
            return button->text();
    }
    return QString();
}

KeyVariants::Button *KeyVariants::addButton(const QString &variant)
{
    auto *button = new Button(this);
    dressKey(button, KeyboardKey::Character);
    colorKey(button, KeyboardKey::Character, m_is_dark, KeyColors::of(m_is_dark).key);
    button->setText(variant);
    button->setCheckable(true);
    connect(button, &Button::clicked, this, [this, variant] { Q_EMIT tapped(variant); });
    return button;
}

// One cap as the keys, with an outline that tells it from them.
void KeyVariants::paintEvent(QPaintEvent *)
{
    const KeyColors &colors = KeyColors::of(m_is_dark);
    const QSizeF line = QSizeF(mmX(line_mm), mmY(line_mm)) / 2;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colors.outline, mmX(line_mm)));
    painter.setBrush(colors.key);
    painter.drawRoundedRect(
        QRectF(rect()).adjusted(line.width(), line.height(), -line.width(), -line.height()),
        mmX(corner_mm), mmY(corner_mm));
}

void KeyVariants::place(const Button &key)
{
    const QSize gap(mmX(gap_mm), mmY(gap_mm));
    const int count = m_buttons.size();
    const QRect room = parentWidget()->rect();
    const int fitting = (room.width() - (count + 1) * gap.width()) / count;
    const int wanted = qMax(key.width(), mmX(least_width_mm));
    const QSize cap(qMax(1, qMin(wanted, fitting)), key.height());
    for (int i = 0; i < count; ++i) {
        m_buttons.at(i)->setButtonTextFontSizeInPt(key.buttonTextFontSizeInPt());
        m_buttons.at(i)->setGeometry(
            gap.width() + i * (cap.width() + gap.width()), gap.height(), cap.width(), cap.height());
    }
    resize(count * (cap.width() + gap.width()) + gap.width(), cap.height() + 2 * gap.height());
    const QPoint above = key.mapTo(parentWidget(), QPoint(key.width() / 2, 0));
    move(qBound(0, above.x() - width() / 2, qMax(0, room.width() - width())),
        qMax(0, above.y() - height()));
}

} // namespace vexo::hox::qt::panel
