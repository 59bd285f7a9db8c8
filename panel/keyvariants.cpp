// SPDX-License-Identifier: MIT
#include "panel/keyvariants_p.h"

#include "panel/keylook_p.h"
#include "panel/mm_p.h"
#include "panel/over_p.h"

#include <VexoKeyboardButton>

namespace vexo::hox::qt::panel {

namespace {

const int unused_ms = 4000;
const double least_width_mm = 8;
const double gap_mm = 1;

} // namespace

KeyVariants::KeyVariants(QWidget *window)
    : QWidget(Over(window))
{
    setObjectName(QStringLiteral("keyVariants"));
    setAutoFillBackground(true);
    m_close_timer.setSingleShot(true);
    m_close_timer.setInterval(unused_ms);
    connect(&m_close_timer, &QTimer::timeout, this, &KeyVariants::dismiss);
    hide();
}

void KeyVariants::open(const Button &key, const QStringList &variants, const QColor &ground)
{
    dismiss();
    setPalette(ground);
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
    button->setText(variant);
    button->setCheckable(true);
    connect(button, &Button::clicked, this, [this, variant] { Q_EMIT tapped(variant); });
    return button;
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
