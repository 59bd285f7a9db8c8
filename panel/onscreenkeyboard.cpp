// SPDX-License-Identifier: MIT
#include "panel/onscreenkeyboard.h"

#include "panel/keyboardlanguages_p.h"
#include "panel/keyfinger_p.h"
#include "panel/keygrid_p.h"
#include "panel/keylook_p.h"
#include "panel/keyvariants_p.h"
#include "panel/mm_p.h"
#include "panel/textsender_p.h"

#include <BounceFilter>
#include <ScalingInfo>
#include <VexoKeyboardButton>

#include <QApplication>
#include <QLocale>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

namespace vexo::hox::qt::panel {

namespace {

const double margin_mm = 1.5;
const double least_width_mm = 60;
const double least_line_mm = 5;
const double usual_letter_mm = 10;
const float slide_mm = 2.5; // less is the trembling of a finger that holds a key
const float swipe_mm = 12; // across the space bar
const unsigned int repeat_ms = 90;
const ulong double_tap_ms = 400;

const QString symbols = QStringLiteral("symbols");
const QString more = QStringLiteral("more");

QString padOf(Qt::InputMethodHints hints)
{
    if (hints & Qt::ImhDigitsOnly)
        return QStringLiteral("pin");
    if (hints & Qt::ImhFormattedNumbersOnly)
        return QStringLiteral("digits");
    if (hints & Qt::ImhDialableCharactersOnly)
        return QStringLiteral("phone");
    return QString();
}

QStringList usualLanguages()
{
    QStringList codes{ QLocale().name().section(QLatin1Char('_'), 0, 0), QStringLiteral("en") };
    codes.removeDuplicates();
    return codes;
}

} // namespace

OnScreenKeyboard::OnScreenKeyboard(QWidget *parent)
    : QWidget(parent)
    , m_languages(std::make_unique<KeyboardLanguages>())
    , m_sender(std::make_unique<TextSender>())
    , m_grid(std::make_unique<KeyGrid>([this](int function) { return makeButton(function); }))
    , m_finger(std::make_unique<KeyFinger>(
          this, [this](const QPoint &place) { return m_grid->nearest(place); }))
    , m_layer(KeyboardLayout::lowerLayer())
{
    setAttribute(Qt::WA_AcceptTouchEvents);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    nameItself();
    ui::BounceFilter::install(); // also for the touch that brings the keyboard up
    watchFinger();
    setLanguages(usualLanguages());
    // A touch on a key is none on what lies around the keyboard and would take the focus.
    connect(qApp, &QApplication::focusChanged, this,
        [this](QWidget *, QWidget *now) { setFocusProxy(now); });
    connect(qApp, &QApplication::focusObjectChanged, this, [this] {
        if (isVisible())
            readReceiver();
    });
}

OnScreenKeyboard::~OnScreenKeyboard()
{
    disconnect(qApp, nullptr, this, nullptr);
    setFocusProxy(nullptr); // whose focus would be taken for the keyboard's, and cleared
    delete m_variants;
}

QStringList OnScreenKeyboard::languages() const
{
    return m_languages->codes();
}

void OnScreenKeyboard::setLanguages(const QStringList &codes)
{
    const QString before = language();
    m_languages->offer(codes);
    showLayout();
    if (language() != before)
        Q_EMIT languageChanged(language());
}

QString OnScreenKeyboard::language() const
{
    return m_languages->code();
}

void OnScreenKeyboard::setLanguage(const QString &code)
{
    if (!m_languages->choose(code))
        return;
    showLayout();
    Q_EMIT languageChanged(code);
}

void OnScreenKeyboard::setKeyHeightInMm(double mm)
{
    if (!(mm > 0))
        return;
    m_key_height_mm = mm;
    updateGeometry();
}

void OnScreenKeyboard::setBackgroundColor(const QColor &color)
{
    m_background_color = color;
    update();
}

void OnScreenKeyboard::setHasHideKey(bool has)
{
    m_has_hide_key = has;
    showKeys();
}

QString OnScreenKeyboard::addLayoutFile(const QString &file)
{
    const KeyboardLayout layout = KeyboardLayout::languageFromFile(file);
    m_languages->add(layout);
    showLayout();
    return layout.code;
}

QStringList OnScreenKeyboard::builtInLanguages()
{
    return KeyboardLayout::builtInLanguages();
}

void OnScreenKeyboard::setReceiver(QObject *receiver)
{
    m_sender->setReceiver(receiver);
    readReceiver();
}

QObject *OnScreenKeyboard::receiver() const
{
    return m_sender->receiver();
}

QSize OnScreenKeyboard::sizeHint() const
{
    const double height
        = rowCount() * (m_key_height_mm + KeyGrid::GAP_MM) - KeyGrid::GAP_MM + 2 * margin_mm;
    return QSize(mmX(11 * usual_letter_mm + 2 * margin_mm), mmY(height));
}

QSize OnScreenKeyboard::minimumSizeHint() const
{
    return QSize(mmX(least_width_mm), mmY(rowCount() * least_line_mm + 2 * margin_mm));
}

void OnScreenKeyboard::readReceiver()
{
    const Qt::InputMethodHints hints = m_sender->hints();
    if (hints != m_hints) {
        m_hints = hints;
        m_pad = padOf(hints);
        m_shift = hints & (Qt::ImhUppercaseOnly | Qt::ImhPreferUppercase) ? Locked : Off;
        m_layer = hints & Qt::ImhPreferNumbers ? symbols : KeyboardLayout::lowerLayer();
        showLayout();
    }
    shiftAsNeeded();
}

bool OnScreenKeyboard::event(QEvent *event)
{
    if (event->type() == QEvent::ChildRemoved)
        m_grid->forget(static_cast<QChildEvent *>(event)->child());
    return m_finger->take(event) || QWidget::event(event);
}

void OnScreenKeyboard::paintEvent(QPaintEvent *event)
{
    QPainter(this).fillRect(event->rect(), m_background_color);
}

void OnScreenKeyboard::resizeEvent(QResizeEvent *)
{
    dismissVariants();
    m_grid->place(keyArea());
}

void OnScreenKeyboard::showEvent(QShowEvent *)
{
    setFocusProxy(QApplication::focusWidget());
    readReceiver();
}

void OnScreenKeyboard::hideEvent(QHideEvent *)
{
    dismissVariants();
    m_finger->takeBack();
}

void OnScreenKeyboard::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        nameItself();
        nameKeys();
    }
    QWidget::changeEvent(event);
}

void OnScreenKeyboard::repeatDelete()
{
    if (m_repeats)
        deleteBackwards();
}

void OnScreenKeyboard::watchFinger()
{
    connect(m_finger.get(), &KeyFinger::pressing, this, &OnScreenKeyboard::dismissVariants);
    connect(m_finger.get(), &KeyFinger::moved, this, &OnScreenKeyboard::fingerMoved);
    connect(m_finger.get(), &KeyFinger::lifting, this, &OnScreenKeyboard::fingerLifting);
}

OnScreenKeyboard::Button *OnScreenKeyboard::makeButton(int number)
{
    const auto function = KeyboardKey::Function(number);
    auto *button = new Button(this);
    dressKey(button, function);
    if (function == KeyboardKey::Delete)
        setUpDelete(button);
    m_finger->watch(button);
    connect(button, &Button::clicked, this, [this, button] { click(button); });
    connect(button, &Button::keyPressHandling, this, [this, button](uint, bool, bool is_held) {
        if (is_held)
            held(button);
    });
    return button;
}

void OnScreenKeyboard::setUpDelete(Button *button)
{
    button->pulse(repeat_ms, this, SLOT(repeatDelete()));
    button->enablePulse(true);
    connect(button, &Button::pressed, this, [this] {
        m_repeats = false; // until it is a long press
        deleteBackwards();
    });
}

void OnScreenKeyboard::click(const Button *button)
{
    const KeyboardKey *key = m_grid->find(button);
    if (!key)
        return;
    if (key->function != KeyboardKey::Shift)
        m_shift_ms = 0;
    act(KeyboardKey(*key)); // the keys may be others afterwards
}

void OnScreenKeyboard::held(const Button *button)
{
    const KeyboardKey *key = m_grid->find(button);
    if (!key)
        return;
    m_repeats = key->function == KeyboardKey::Delete;
    if (!key->variants.isEmpty())
        openVariants(button, key->variants);
}

void OnScreenKeyboard::act(const KeyboardKey &key)
{
    switch (key.function) {
    case KeyboardKey::Character:
        return type(key.text);
    case KeyboardKey::Comma:
        return type(commaText());
    case KeyboardKey::Space:
        return type(QStringLiteral(" "));
    case KeyboardKey::Enter:
        return press(Qt::Key_Return, QStringLiteral("\r"));
    case KeyboardKey::Tab:
        return press(Qt::Key_Tab, QStringLiteral("\t"));
    case KeyboardKey::Shift:
        return tapShift();
    case KeyboardKey::Letters:
        return showLayer(KeyboardLayout::lowerLayer());
    case KeyboardKey::Symbols:
        return showLayer(symbols);
    case KeyboardKey::More:
        return showLayer(more);
    case KeyboardKey::Next:
        return goToLanguage(1);
    case KeyboardKey::Hide:
        Q_EMIT hideRequested();
        return;
    case KeyboardKey::Delete:
        return; // at the press
    }
}

void OnScreenKeyboard::type(const QString &text)
{
    const QPointer<OnScreenKeyboard> self(this);
    const int replaceable = m_sender->commit(text);
    if (!self)
        return;
    m_replaceable = replaceable;
    m_finger->watchPopup(QApplication::activePopupWidget()); // of a completer
    if (m_shift == Once)
        setShift(Off);
    shiftAsNeeded();
}

void OnScreenKeyboard::deleteBackwards()
{
    press(Qt::Key_Backspace, QStringLiteral("\b"));
}

void OnScreenKeyboard::press(Qt::Key key, const QString &text)
{
    const QPointer<OnScreenKeyboard> self(this);
    m_sender->press(key, text);
    if (!self)
        return;
    m_finger->watchPopup(QApplication::activePopupWidget());
    shiftAsNeeded();
}

void OnScreenKeyboard::replace(const QString &variant)
{
    const QPointer<OnScreenKeyboard> self(this);
    m_sender->commit(variant, m_replaceable);
    if (self)
        dismissVariants();
}

void OnScreenKeyboard::tapShift()
{
    const ulong ms = m_finger->pressTime();
    const bool is_double = m_shift_ms != 0 && ms - m_shift_ms <= double_tap_ms;
    m_shift_ms = is_double ? 0 : ms;
    m_shift_is_needed = false;
    if (is_double)
        setShift(Locked);
    else
        setShift(m_shift == Off ? Once : Off);
}

void OnScreenKeyboard::setShift(Shift shift)
{
    const bool is_same_layer = (shift == Off) == (m_shift == Off);
    m_shift = shift;
    if (is_same_layer)
        showShift();
    else
        showKeys();
}

void OnScreenKeyboard::shiftAsNeeded()
{
    const Qt::InputMethodHints as_typed = Qt::ImhNoAutoUppercase | Qt::ImhPreferLowercase
        | Qt::ImhLowercaseOnly | Qt::ImhEmailCharactersOnly | Qt::ImhUrlCharactersOnly;
    if (m_shift == Locked || !m_pad.isEmpty())
        return;
    const bool is_needed = !(m_hints & as_typed) && m_sender->isAtSentence();
    if (is_needed && m_shift == Off)
        setShift(Once);
    else if (!is_needed && m_shift == Once && m_shift_is_needed)
        setShift(Off);
    m_shift_is_needed = is_needed;
}

void OnScreenKeyboard::showShift()
{
    if (Button *button = m_grid->button(KeyboardKey::Shift))
        showShiftOn(button, m_shift != Off, m_shift == Locked);
}

void OnScreenKeyboard::showLayer(const QString &layer)
{
    m_layer = layer;
    showKeys();
}

void OnScreenKeyboard::showLayout()
{
    dismissVariants();
    showKeys();
    updateGeometry();
}

void OnScreenKeyboard::showKeys()
{
    const KeyboardLayout layout = shownLayout();
    const bool is_upper = m_shift != Off && m_layer == KeyboardLayout::lowerLayer();
    const QString layer = is_upper ? KeyboardLayout::upperLayer() : m_layer;
    KeyboardRows rows = layout.layers.value(layer);
    if (rows.empty())
        rows = KeyboardLayout::builtIn(symbols).layers.value(layer);
    const bool has_next = hasNextLanguage();
    const auto is_unwanted = [&](const KeyboardKey &key) {
        return (key.function == KeyboardKey::Next && !has_next)
            || (key.function == KeyboardKey::Hide && !m_has_hide_key);
    };
    for (KeyboardRow &row : rows)
        row.erase(std::remove_if(row.begin(), row.end(), is_unwanted), row.end());
    m_grid->show(rows, [this](const KeyboardKey &key) { return labelOf(key); });
    if (!testAttribute(Qt::WA_PendingResizeEvent)) // which comes before it is seen
        m_grid->place(keyArea());
    showShift();
    nameKeys();
}

void OnScreenKeyboard::nameItself()
{
    if (accessibleName() == m_own_name)
        setAccessibleName(tr("Keyboard"));
    m_own_name = tr("Keyboard");
}

void OnScreenKeyboard::nameKeys()
{
    const std::pair<KeyboardKey::Function, QString> names[] = {
        { KeyboardKey::Space, tr("Space") },
        { KeyboardKey::Shift, tr("Shift") },
        { KeyboardKey::Delete, tr("Delete") },
        { KeyboardKey::Enter, tr("Enter") },
        { KeyboardKey::Tab, tr("Tab") },
        { KeyboardKey::Next, tr("Next language") },
        { KeyboardKey::Hide, tr("Hide keyboard") },
    };
    for (const auto &[function, name] : names) {
        Button *button = m_grid->button(function);
        if (button && button->accessibleName() != name)
            button->setAccessibleName(name);
    }
}

QString OnScreenKeyboard::labelOf(const KeyboardKey &key) const
{
    switch (key.function) {
    case KeyboardKey::Character:
        return key.text;
    case KeyboardKey::Comma:
        return commaText();
    case KeyboardKey::Space:
        return shownLayout().name;
    case KeyboardKey::Letters:
        return shownLayout().letters;
    case KeyboardKey::Symbols:
        return QStringLiteral("123");
    case KeyboardKey::More:
        return QStringLiteral("#+=");
    default:
        return QString();
    }
}

QString OnScreenKeyboard::commaText() const
{
    if (m_hints & Qt::ImhEmailCharactersOnly)
        return QStringLiteral("@");
    return m_hints & Qt::ImhUrlCharactersOnly ? QStringLiteral("/") : QStringLiteral(",");
}

KeyboardLayout OnScreenKeyboard::shownLayout() const
{
    return m_pad.isEmpty() ? m_languages->shown(m_hints) : KeyboardLayout::builtIn(m_pad);
}

bool OnScreenKeyboard::hasNextLanguage() const
{
    return m_pad.isEmpty() && m_languages->usable(m_hints).size() > 1;
}

void OnScreenKeyboard::goToLanguage(int step)
{
    m_layer = KeyboardLayout::lowerLayer();
    setLanguage(m_languages->next(m_hints, step));
}

void OnScreenKeyboard::openVariants(const Button *button, const QStringList &variants)
{
    KeyVariants *strip = m_variants;
    if (!strip || strip->parentWidget() != window()) {
        delete strip;
        strip = new KeyVariants(window());
        m_variants = strip;
        connect(strip, &KeyVariants::tapped, this, &OnScreenKeyboard::replace);
    }
    m_replaceable = 0;
    strip->open(*button, variants, m_background_color);
}

void OnScreenKeyboard::dismissVariants()
{
    if (KeyVariants *strip = m_variants)
        strip->dismiss();
}

void OnScreenKeyboard::fingerMoved(const QPoint &px)
{
    KeyVariants *strip = m_variants;
    if (!strip || !strip->isVisible())
        return;
    const bool has_slid = qAbs(px.x()) > mmX(slide_mm) || -px.y() > mmY(slide_mm);
    strip->choose(mapToGlobal(m_finger->place()), has_slid);
}

void OnScreenKeyboard::fingerLifting(const QPoint &px)
{
    const KeyVariants *strip = m_variants;
    const QString chosen = strip ? strip->chosen() : QString();
    if (!chosen.isEmpty()) {
        dismissVariants();
        m_finger->takeBack();
        return type(chosen);
    }
    const KeyboardKey *key = m_grid->find(m_finger->key());
    const bool is_on_space = key && key->function == KeyboardKey::Space;
    if (!is_on_space || qAbs(px.x()) < mmX(swipe_mm) || !hasNextLanguage())
        return;
    m_finger->takeBack();
    goToLanguage(px.x() < 0 ? 1 : -1);
}

QRect OnScreenKeyboard::keyArea() const
{
    return rect().adjusted(mmX(margin_mm), mmY(margin_mm), -mmX(margin_mm), -mmY(margin_mm));
}

int OnScreenKeyboard::rowCount() const
{
    return qMax(1, m_grid->rowCount());
}

} // namespace vexo::hox::qt::panel
