#pragma once
// SPDX-License-Identifier: MIT

#include "ui/hoxqui_export.h"

#include <QIcon>
#include <QPointer>
#include <QSizeF>
#include <QWidget>

#include <functional>

class QPushButton;

namespace vexo::hox::qt::ui {

class VexoVerticalScrollArea;

/// A jump bar beside a long list: a column of letters or digits that scrolls by a finger, between
/// an up and a down button that page it. It is 60 px wide, or what m_mm_button_size says. What a
/// letter does is up to the application, see setButtonConnection().
///
/// A handler may delete the letter that was touched; to delete the bar use deleteLater() there,
/// since the toolkit is still at the gesture.
///
/// Stylesheets find the buttons by the object names "letterButton", "upButton" and "downButton".
class HOXQUI_EXPORT VexoVerticalButtonScrollArea : public QWidget
{
    Q_OBJECT
    // The checker misreads a property that is broken before its type.
    // clazy:excludeall=qproperty-type-mismatch

    /// Which buttons the column holds. Default Alphabetic. A change replaces them, and ends their
    /// connections.
    Q_PROPERTY(VexoVerticalButtonScrollAreaType m_type MEMBER m_type WRITE setType)
    /// Of the up button. Default back.svg of the library.
    Q_PROPERTY(QIcon m_up_icon MEMBER m_up_icon WRITE setUpIcon)
    /// Of the down button. Default forward.svg of the library.
    Q_PROPERTY(QIcon m_down_icon MEMBER m_down_icon WRITE setDownIcon)
    /// Size of each button, mm, those to come too; the bar is as wide, and icons are half as high.
    /// Up and down move the column by two and a half buttons. Default 0 x 0, as for any other size
    /// without an area: 60 x 60 px on each panel. Negative ones and NaN are ignored, and a side
    /// has at most 1024 px.
    Q_PROPERTY(QSizeF m_mm_button_size READ mmButtonSize WRITE setMmButtonSize)

public:
    enum class VexoVerticalButtonScrollAreaType {
        None, ///< none
        Alphabetic, ///< A to Z
        Numbers, ///< 0 to 9
        AlphabeticWithHash ///< #, then A to Z
    };
    Q_ENUM(VexoVerticalButtonScrollAreaType)
    /// Its name in forms, which know no name of the enumeration.
    static constexpr auto None = VexoVerticalButtonScrollAreaType::None;
    /// Its name in forms.
    static constexpr auto Alphabetic = VexoVerticalButtonScrollAreaType::Alphabetic;
    /// Its name in forms.
    static constexpr auto Numbers = VexoVerticalButtonScrollAreaType::Numbers;
    /// Its name in forms.
    static constexpr auto AlphabeticWithHash = VexoVerticalButtonScrollAreaType::AlphabeticWithHash;

    /// A jump bar with the buttons of \a type.
    explicit VexoVerticalButtonScrollArea(QWidget *parent = nullptr,
        VexoVerticalButtonScrollAreaType type = VexoVerticalButtonScrollAreaType::Alphabetic);

    void setType(VexoVerticalButtonScrollAreaType type);
    QSizeF mmButtonSize() const { return m_mm_button_size; }
    void setMmButtonSize(const QSizeF &mm);
    /// Appends a button with \a text, translated in the context of this class.
    void addButton(const QString &text);
    /// Appends the buttons A to Z, behind one of # if \a with_hash.
    void addAlphabeticButtons(bool with_hash);
    /// Appends the buttons 0 to 9.
    void addNumericButtons();
    /// Appends the buttons of the type.
    void addScrollAreaContent();
    /// Deletes all buttons of the column.
    void removeScrollAreaContent();
    /// Calls \a handler for a click on each button that is now in the column, as long as
    /// \a receiver lives; in it, the sender is the button. Call it again after setType(); each call
    /// adds a connection. A null receiver or an empty handler is ignored.
    void setButtonConnection(QObject *receiver, std::function<void()> handler);
    void setUpIcon(const QIcon &icon);
    void setDownIcon(const QIcon &icon);
    /// Shows or hides the up and the down button.
    void setNavigationButtonVisibility(bool visible);
    /// The column, which belongs to the bar; null once it was deleted. Then, and while another
    /// content without a layout is set on it, buttons are neither added nor removed.
    VexoVerticalScrollArea *verticalScrollArea() const;

private Q_SLOTS:
    void onUpButtonClicked();
    void onDownButtonClicked();

private:
    void setupUi();
    void page(int direction);
    QLayout *column() const;

    const QPointer<VexoVerticalScrollArea> m_scroll_area;
    QPushButton *const m_up_button;
    QPushButton *const m_down_button;
    QIcon m_up_icon;
    QIcon m_down_icon;
    VexoVerticalButtonScrollAreaType m_type;
    QSizeF m_mm_button_size = QSizeF(0, 0);
    QSize m_button_px = QSize(60, 60);
};

} // namespace vexo::hox::qt::ui
