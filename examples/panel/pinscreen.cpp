// SPDX-License-Identifier: MIT
#include "pinscreen.h"

#include <OnScreenKeyboard>
#include <PageStack>
#include <ScalingInfo>
#include <VexoLineEdit>

#include <QLabel>
#include <QVBoxLayout>

using namespace vexo::hox::qt::panel;
using namespace vexo::hox::qt::ui;

namespace {

const char *const right_pin = "2026"; // a product asks its safe
const int digits_of_pin = 4;

} // namespace

PinScreen::PinScreen(PanelWindow *panel)
    : Screen(panel)
    , m_field(new VexoLineEdit)
{
    addHead([] { return tr("PIN"); });
    QLabel *hint = createText(9, QFont::Normal);
    hint->setAlignment(Qt::AlignCenter);
    m_field->setMaxLength(digits_of_pin);
    m_field->setInputMethodHints(Qt::ImhDigitsOnly);
    m_field->setDrawPasswordSecured(true);
    m_field->setFixedWidth(mmX(40));
    m_field->setMmMargin(QSizeF(1, 0));
    m_field->setMmRadius(ScalingInfo::inst()->m_size_mm.height() < 70 ? 4 : 5);
    auto *keyboard = new OnScreenKeyboard;
    keyboard->setReceiver(m_field);
    column()->addStretch(1);
    column()->addWidget(hint);
    column()->addSpacing(mmY(2));
    column()->addWidget(m_field, 0, Qt::AlignHCenter);
    column()->addStretch(1);
    column()->addWidget(keyboard);
    connect(m_field, &VexoLineEdit::textChanged, this, &PinScreen::check);
    follow([=] {
        hint->setText(tr("An update needs the PIN of the owner."));
        m_field->setAccessibleName(tr("PIN"));
        m_field->setBackgroundColor(look().surface);
        m_field->setBorderColor(look().faint);
        m_field->setTextColor(look().ink);
        keyboard->setDark(this->panel()->isNight());
    });
}

void PinScreen::check(const QString &digits)
{
    if (digits.size() < digits_of_pin)
        return;
    m_field->repaint(); // what was painted last shakes: with the fourth dot
    m_field->clear();
    if (digits != QLatin1String(right_pin)) {
        m_field->shake(600, 5, uint(mmX(1.5)), false);
        return;
    }
    panel()->stack()->home(); // the way back does not lead here again
    panel()->stack()->open("update");
}
