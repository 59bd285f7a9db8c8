#pragma once
// SPDX-License-Identifier: MIT

#include <QTimer>
#include <QWidget>

namespace vexo::hox::qt::ui {
class VexoKeyboardButton;
}

namespace vexo::hox::qt::panel {

/// The strip above a held key that offers its variants. It is a child of the keyboard's window, so
/// that it can lie above the keyboard's top row, and no window of its own. The finger that holds
/// the key slides to a variant, or is lifted and taps one. It closes by itself when nothing is
/// chosen.
class KeyVariants : public QWidget
{
    Q_OBJECT

public:
    explicit KeyVariants(QWidget *window);

    /// Shows \a variants above \a key, in keys of its size or of 8 mm.
    void open(const ui::VexoKeyboardButton &key, const QStringList &variants, bool is_dark);
    void dismiss();
    /// The variant above or below \a global is dark, if \a is_chosen.
    void choose(const QPoint &global, bool is_chosen);
    /// The dark one; empty if there is none.
    QString chosen() const;

Q_SIGNALS:
    /// A variant was tapped.
    void tapped(const QString &variant);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    using Button = ui::VexoKeyboardButton;

    Button *addButton(const QString &variant);
    void place(const Button &key);

    QVector<Button *> m_buttons;
    QTimer m_close_timer;
    bool m_is_dark = false;
};

} // namespace vexo::hox::qt::panel
