#pragma once
// SPDX-License-Identifier: MIT

#include "panel/keyboardlayout_p.h"

#include <QObject>
#include <QPoint>
#include <QRect>

#include <functional>
#include <map>
#include <vector>

namespace vexo::hox::qt::ui {
class VexoKeyboardButton;
}

namespace vexo::hox::qt::panel {

/// The buttons of a keyboard: those of one layer are shown, placed in rows. Buttons are made once
/// and bear what the next layer needs.
class KeyGrid
{
public:
    using Button = ui::VexoKeyboardButton;
    /// Makes a hidden button for a KeyboardKey::Function, and owns it.
    using Make = std::function<Button *(int)>;

    static constexpr double GAP_MM = 1.0;

    explicit KeyGrid(Make make);

    /// Shows these keys, with \a label on each that needs one. They are placed by the next place().
    void show(const KeyboardRows &rows, const std::function<QString(const KeyboardKey &)> &label);
    /// For one that somebody else deletes; its place stays free until the next show().
    void forget(const QObject *button);
    /// Calls \a visit for each button that was made, with its function.
    void forEach(const std::function<void(Button *, int)> &visit) const;
    int rowCount() const { return m_row_count; }
    /// Shares out \a px. Letters are never wider than those of a large keyboard.
    void place(const QRect &px);
    /// Width of a letter with its gap, px; 0 before place().
    double pitch() const { return m_pitch; }

    /// What \a button bears; null if it is none of those shown.
    const KeyboardKey *find(const QObject *button) const;
    /// The button at or next to \a place; null farther than a gap away from all.
    Button *nearest(const QPoint &place) const;
    /// The first button that bears \a function, or null.
    Button *button(KeyboardKey::Function function) const;

private:
    struct Cap
    {
        KeyboardKey key;
        Button *button;
        int row;
        double left; // in letters
        double width;
    };

    void addRow(const KeyboardRow &row, int index, double columns);
    Button *take(KeyboardKey::Function function, std::map<int, std::size_t> *taken);
    void setTextSize(const Cap &cap) const;
    void setImageSize();
    double fitting(double width) const;
    void sizeImage(Button *button) const;

    const Make m_make;
    std::map<int, std::vector<Button *>> m_made; // by function
    std::vector<Cap> m_caps;
    int m_row_count = 0;
    double m_columns = 1;
    double m_pitch = 0;
    double m_row_pitch = 0;
    double m_image_mm = 0;
};

} // namespace vexo::hox::qt::panel
