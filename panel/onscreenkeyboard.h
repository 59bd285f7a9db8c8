#pragma once
// SPDX-License-Identifier: MIT

#include "panel/hoxqpanel_export.h"

#include <VexoColors>

#include <QColor>
#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <memory>

namespace vexo::hox::qt::ui {
class VexoKeyboardButton;
}

namespace vexo::hox::qt::panel {

class KeyboardLanguages;
class KeyFinger;
class KeyGrid;
class KeyVariants;
class TextSender;
struct KeyboardKey;
struct KeyboardLayout;

/// An on-screen keyboard of VexoKeyboardButtons. It types into what has the focus, or into a field
/// of its own, as an input method does (commit strings; keys for enter, tab and backspace), so that
/// masks, validators, completers and shortcuts work. It takes no focus and keeps nothing of what is
/// typed.
///
/// It follows the field's Qt::InputMethodHints: ImhDigitsOnly, ImhFormattedNumbersOnly and
/// ImhDialableCharactersOnly show a block of digits, ImhLatinOnly passes over Greek and Russian,
/// e-mail and web addresses get a key of their own. Sentences begin with a capital but for
/// ImhNoAutoUppercase, secrets and addresses; a secret's text is not even asked for.
///
/// Shift holds for one letter, tapped twice for all until it is tapped again. The delete key
/// repeats while it is held. A letter that is held offers its variants above itself: slide to one,
/// or lift and tap one. The language changes with its key, and with a swipe across the space bar.
///
/// Height is that of its rows, 45 mm with the usual four; in less room the keys are lower. They
/// share the width, from about 60 mm; in more than they need they stay in the middle. Languages are
/// de, en, fr, es, it, pl, cs, el and ru, and what addLayoutFile() brings.
///
/// The input method "hoxqui" (QT_IM_MODULE=hoxqui) shows one in the windows of any application
/// that uses Qt Widgets, languages as in HOXQUI_KEYBOARDS, say "de,en,/etc/panel/swiss.txt".
class HOXQPANEL_EXPORT OnScreenKeyboard : public QWidget
{
    Q_OBJECT

    /// Codes of the languages that are offered, in their order. Default: that of the locale, if
    /// there is a layout, and English. Unknown ones are left out; without any it is English. A
    /// change shows the first.
    Q_PROPERTY(QStringList languages READ languages WRITE setLanguages)
    /// Height of a key, mm, where there is room. Default 9.0. Ignored unless above 0.
    Q_PROPERTY(double key_height_in_mm READ keyHeightInMm WRITE setKeyHeightInMm)
    /// Ground between the keys. Default C6.
    Q_PROPERTY(QColor background_color READ backgroundColor WRITE setBackgroundColor)
    /// Whether there is a key that emits hideRequested(). Default false.
    Q_PROPERTY(bool has_hide_key READ hasHideKey WRITE setHasHideKey)

public:
    explicit OnScreenKeyboard(QWidget *parent = nullptr);
    ~OnScreenKeyboard() override;

    QStringList languages() const;
    void setLanguages(const QStringList &codes);
    /// The code of the language that is shown, such as "de".
    QString language() const;
    /// One that is not offered is ignored.
    void setLanguage(const QString &code);
    double keyHeightInMm() const { return m_key_height_mm; }
    void setKeyHeightInMm(double mm);
    QColor backgroundColor() const { return m_background_color; }
    void setBackgroundColor(const QColor &color);
    bool hasHideKey() const { return m_has_hide_key; }
    void setHasHideKey(bool has);

    /// Offers the language of \a file after the others, or in place of the one with the same code.
    /// Throws std::runtime_error "FILE:LINE: why" for a file that cannot be read or is broken, and
    /// changes nothing then. Returns the code. See docs/keyboard.md for the format.
    QString addLayoutFile(const QString &file);
    /// The codes of the languages that are compiled in.
    static QStringList builtInLanguages();

    /// Types into \a receiver, whatever has the focus; null, the default, and a destroyed one: into
    /// what has the focus. Not owned.
    void setReceiver(QObject *receiver);
    /// What is typed into now; may be null.
    QObject *receiver() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    /// Looks at the receiver's hints and its cursor again; needed only after the application has
    /// changed them.
    void readReceiver();

Q_SIGNALS:
    /// Another language is shown, by the user or by a call.
    void languageChanged(const QString &code);
    /// The key that hides the keyboard was tapped; hiding it is up to the application.
    void hideRequested();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void repeatDelete();

private:
    using Button = ui::VexoKeyboardButton;
    enum Shift { Off, Once, Locked };

    void watchFinger();
    Button *makeButton(int function);
    void setUpDelete(Button *button);
    void click(const Button *button);
    void held(const Button *button);
    void act(const KeyboardKey &key);
    void type(const QString &text);
    void deleteBackwards();
    void press(Qt::Key key, const QString &text);
    void replace(const QString &variant);

    void tapShift();
    void setShift(Shift shift);
    void shiftAsNeeded();
    void showShift();
    void showLayer(const QString &layer);
    void showLayout();
    void showKeys();
    void nameItself();
    void nameKeys();
    QString labelOf(const KeyboardKey &key) const;
    QString commaText() const;
    KeyboardLayout shownLayout() const;
    bool hasNextLanguage() const;
    void goToLanguage(int step);

    void openVariants(const Button *button, const QStringList &variants);
    void dismissVariants();
    void fingerMoved(const QPoint &px);
    void fingerLifting(const QPoint &px);
    QRect keyArea() const;
    int rowCount() const;

    const std::unique_ptr<KeyboardLanguages> m_languages;
    const std::unique_ptr<TextSender> m_sender;
    const std::unique_ptr<KeyGrid> m_grid;
    const std::unique_ptr<KeyFinger> m_finger;
    QPointer<KeyVariants> m_variants; // owned by the window
    QString m_own_name; // unless the application gave another
    QString m_pad; // name of the block of digits; empty for letters
    QString m_layer;
    Qt::InputMethodHints m_hints;
    Shift m_shift = Off;
    bool m_shift_is_needed = false; // once, and not by the user
    ulong m_shift_ms = 0; // of the tap on shift before, 0 after another key
    bool m_repeats = false; // the delete key is held
    int m_replaceable = 0; // UTF-16 units that a variant replaces
    double m_key_height_mm = 9.0;
    QColor m_background_color = ui::VexoColors::C6;
    bool m_has_hide_key = false;
};

} // namespace vexo::hox::qt::panel
