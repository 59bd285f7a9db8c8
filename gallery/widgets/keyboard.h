#pragma once
// SPDX-License-Identifier: MIT

#include <QHash>
#include <QVector>
#include <QWidget>

namespace vexo::hox::qt::ui {
class VexoKeyboardButton;
}

/// An on-screen keyboard of VexoKeyboardButtons: German and English letters, digits and symbols.
/// Shift holds for one letter; reset repeats while it is held. Its height is fixed, its keys share
/// the width, with even gaps.
class Keyboard : public QWidget
{
    Q_OBJECT

public:
    using Key = vexo::hox::qt::ui::VexoKeyboardButton;

    explicit Keyboard(QWidget *parent = nullptr);

    /// Shows digits and symbols instead of letters.
    void showSymbols() { showLayer(Symbols); }

Q_SIGNALS:
    /// A character key was clicked.
    void typed(const QString &text);
    /// The reset key was pressed, or is held.
    void resetPressed();
    void enterPressed();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    enum Layer { German, English, Symbols };
    struct Place
    {
        Key *key;
        int row;
        double left; // in key widths
        double width;
    };
    struct Row
    {
        Layer layer;
        int index;
        double end; // in key widths
    };

    void addLetters(Layer layer, const QStringList &rows);
    void addSymbols();
    void addCharacters(Row *row, const QString &characters);
    void addLastRow(Layer layer, const QString &switch_text, const QString &language, double space);
    Key *addKey(Row *row, double width, const QString &name);
    Key *addTextKey(Row *row, double width, const QString &text);
    Key *addIconKey(Row *row, double width, const QString &name, const QString &icon);
    void addShift(Row *row);
    void addReset(Row *row);
    void addEnter(Row *row);

    void type(const QString &text);
    void setShifted(bool shifted);
    void showLayer(Layer layer);
    void toggleSymbols();
    void toggleLanguage();

    QHash<int, QVector<Place>> m_places; // by layer
    QVector<Key *> m_shift_keys;
    Layer m_language = German;
    Layer m_shown = German;
    bool m_is_shifted = false;
};
