// SPDX-License-Identifier: MIT
#include "gallery/widgets/keyboard.h"

#include "gallery/measures.h"

#include <VexoKeyboardButton>

using namespace vexo::hox::qt::ui;

namespace {

const int row_count = 4;
const double gap_in_mm = 1;
const unsigned int repeat_ms = 200;

const char *const language_key = "languageKey";
const char *const layer_key = "layerKey";
const char *const reset_key = "resetKey";
const char *const enter_key = "enterKey";

// The capital of sharp s is a letter of its own, not the "SS" of a sentence in capitals.
QString capital(const QString &letter)
{
    return letter == QString::fromUtf8("ß") ? QString::fromUtf8("ẞ") : letter.toUpper();
}

} // namespace

Keyboard::Keyboard(QWidget *parent)
    : QWidget(parent)
{
    addLetters(German,
        { QString::fromUtf8("qwertzuiopü"), QString::fromUtf8("asdfghjklöä"),
            QString::fromUtf8("yxcvbnmß") });
    addLetters(English, { "qwertyuiop", "asdfghjkl", "zxcvbnm" });
    addSymbols();
    const int key_height = m_places[German].first().key->height();
    setFixedHeight(row_count * key_height + (row_count - 1) * mmY(gap_in_mm));
    showLayer(German);
}

void Keyboard::resizeEvent(QResizeEvent *)
{
    const int gap = mmX(gap_in_mm);
    for (const QVector<Place> &places : qAsConst(m_places)) {
        const double columns = places.last().left + places.last().width;
        const double pitch = (width() + gap) / columns;
        for (const Place &place : places) {
            const int left = qRound(place.left * pitch);
            const int right = qRound((place.left + place.width) * pitch);
            const int top = place.row * (place.key->height() + mmY(gap_in_mm));
            place.key->setGeometry(left, top, right - left - gap, place.key->height());
        }
    }
}

void Keyboard::addLetters(Layer layer, const QStringList &rows)
{
    const double columns = rows.at(0).size();
    for (int i = 0; i < 2; ++i) {
        Row row{ layer, i, (columns - rows.at(i).size()) / 2 };
        addCharacters(&row, rows.at(i));
    }
    Row row{ layer, 2, 0 };
    addShift(&row);
    addCharacters(&row, rows.at(2));
    addReset(&row);
    addLastRow(layer, "123", layer == German ? "DE" : "EN", columns - 6.5);
}

void Keyboard::addSymbols()
{
    const QStringList rows{ "1234567890", QString::fromUtf8("@#€&%+-=()"), "*/\"':;!?" };
    for (int i = 0; i < 3; ++i) {
        Row row{ Symbols, i, 0 };
        addCharacters(&row, rows.at(i));
        if (i == 2)
            addReset(&row);
    }
    addLastRow(Symbols, "ABC", QString(), 5);
}

void Keyboard::addCharacters(Row *row, const QString &characters)
{
    for (const QChar character : characters) {
        Key *key = addTextKey(row, 1, character);
        key->setObjectName(VexoKeyboardButton::STANDARD_KEY_OBJECT_NAME);
        connect(key, &Key::clicked, this, [this, key] { type(key->text()); });
    }
}

void Keyboard::addLastRow(
    Layer layer, const QString &switch_text, const QString &language, double space)
{
    Row row{ layer, 3, 0 };
    Key *layers = addTextKey(&row, 1.5, switch_text);
    layers->setObjectName(layer_key);
    connect(layers, &Key::clicked, this, &Keyboard::toggleSymbols);
    if (!language.isEmpty()) {
        Key *languages = addTextKey(&row, 1.5, language);
        languages->setObjectName(language_key);
        connect(languages, &Key::clicked, this, &Keyboard::toggleLanguage);
    }
    addCharacters(&row, ",");
    Key *bar = addKey(&row, space, VexoKeyboardButton::SPACE_BUTTON_OBJECT_NAME);
    bar->setAccessibleName("Space");
    connect(bar, &Key::clicked, this, [this] { type(" "); });
    addCharacters(&row, ".");
    addEnter(&row);
}

Keyboard::Key *Keyboard::addKey(Row *row, double width, const QString &name)
{
    auto *key = new Key(this);
    key->setObjectName(name);
    m_places[row->layer].append({ key, row->index, row->end, width });
    row->end += width;
    return key;
}

Keyboard::Key *Keyboard::addTextKey(Row *row, double width, const QString &text)
{
    Key *key = addKey(row, width, QString());
    key->setText(text);
    if (text.size() > 1)
        key->setButtonTextFontSizeInPt(9);
    return key;
}

Keyboard::Key *Keyboard::addIconKey(
    Row *row, double width, const QString &name, const QString &icon)
{
    Key *key = addKey(row, width, name);
    key->addIcon(Key::DEFAULT_STATE_NAME, icon);
    key->addInverseIcon(Key::DEFAULT_STATE_NAME, icon + "C0");
    return key;
}

void Keyboard::addShift(Row *row)
{
    Key *shift = addIconKey(
        row, 1.5, VexoKeyboardButton::SHIFT_LEFT_BUTTON_OBJECT_NAME, ":/VexoIconGeneralShift");
    shift->setAccessibleName("Shift");
    shift->setCheckable(true);
    connect(shift, &Key::clicked, this, &Keyboard::setShifted);
    m_shift_keys += shift;
}

void Keyboard::addReset(Row *row)
{
    Key *reset
        = addIconKey(row, row->layer == Symbols ? 2 : 1.5, reset_key, ":/VexoIconGeneralReset");
    reset->setAccessibleName("Delete");
    connect(reset, &Key::pressed, this, &Keyboard::resetPressed);
    reset->pulse(repeat_ms, this, SIGNAL(resetPressed()));
    reset->enablePulse(true);
}

void Keyboard::addEnter(Row *row)
{
    Key *enter = addIconKey(row, 1.5, enter_key, ":/VexoIconGeneralEnter");
    enter->setAccessibleName("Enter");
    connect(enter, &Key::clicked, this, &Keyboard::enterPressed);
}

void Keyboard::type(const QString &text)
{
    Q_EMIT typed(text);
    setShifted(false);
}

void Keyboard::setShifted(bool shifted)
{
    if (shifted == m_is_shifted)
        return;
    m_is_shifted = shifted;
    for (Key *shift : qAsConst(m_shift_keys))
        shift->onToggle(shifted);
    for (const Layer layer : { German, English }) {
        for (const Place &place : qAsConst(m_places[layer])) {
            if (place.key->objectName() == VexoKeyboardButton::STANDARD_KEY_OBJECT_NAME)
                place.key->setText(
                    shifted ? capital(place.key->text()) : place.key->text().toLower());
        }
    }
}

void Keyboard::showLayer(Layer layer)
{
    m_shown = layer;
    setShifted(false);
    for (auto places = m_places.cbegin(); places != m_places.cend(); ++places) {
        for (const Place &place : places.value())
            place.key->setVisible(places.key() == layer);
    }
}

void Keyboard::toggleSymbols()
{
    showLayer(m_shown == Symbols ? m_language : Symbols);
}

void Keyboard::toggleLanguage()
{
    m_language = m_language == German ? English : German;
    showLayer(m_language);
}
