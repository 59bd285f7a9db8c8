#pragma once
// SPDX-License-Identifier: MIT

#include "ui/hoxqui_export.h"
#include "ui/scrolling/vexoverticalscrollarea.h"

#include <QAbstractItemView>
#include <QPersistentModelIndex>

#include <functional>

namespace vexo::hox::qt::ui {

class RowColumn;
class VexoVerticalButtonScrollArea;

/// A long list: a VexoVerticalScrollArea over a model, with widgets only for the rows that are seen
/// and some beside them. They are moved and filled anew while it scrolls, so that a list of 10,000
/// names starts as fast and takes as little memory as one of 20. For a screen of a dozen rows use a
/// VexoVerticalScrollContent.
///
/// It shows column 0 of the children of rootIndex(). What the model says of each index:
/// - RowTypeRole: one of RowType, or a number of the application's own from UserRow on. Without it
///   an index with Qt::CheckStateRole is a CheckboxRow, one with SecondTextRole or
///   Qt::DecorationRole a TextIconRow, any other an ActionRow.
/// - Qt::DisplayRole: the text.
/// - Of a TextIconRow, SecondTextRole: the text at the right, and Qt::DecorationRole: the image, as
///   the name of a file, drawn 8 mm high, or as a QPixmap. A file's is inverted while the row is
///   pressed; both are dimmed while it is disabled.
/// - Qt::CheckStateRole: checked or not. A tap of a row that is Qt::ItemIsUserCheckable writes it
///   with setData(), as Qt::Checked except on a CheckboxRow, which toggles. The row then shows what
///   the model answers; that a choice unchecks another one is up to the model.
/// - Qt::ItemIsEnabled: a row without it is disabled.
/// - Qt::AccessibleTextRole: what assistive technology reads instead of the text.
///
/// All rows have the same height. While rows come, go and move, what is seen stays where it is,
/// except that rows close up where one is removed, and a list at its top stays there. A row with
/// the focus or under a finger is kept while it is out of sight.
///
/// A list is at most 16,777,215 px high, which are 170,000 rows at 10 px/mm; what follows is not
/// shown. A slot of clicked() may delete the model or set another one; to delete the list use
/// deleteLater() there, since the toolkit is still at the gesture.
class HOXQUI_EXPORT RowList : public VexoVerticalScrollArea
{
    Q_OBJECT

    /// Height of each row, mm. Default 9.8, that of a VexoFunctionButton. Below 1 px it is 1 px;
    /// NaN is ignored.
    Q_PROPERTY(double m_mm_row_height READ mmRowHeight WRITE setMmRowHeight)

public:
    /// What the list asks a model beside the toolkit's roles.
    enum Role : int {
        SecondTextRole = Qt::UserRole + 1000, ///< QString
        RowTypeRole ///< int
    };
    /// What a row is: a VexoFunctionButton of the type of that name, or a
    /// VexoHorizontalTextIconButton in the same colours.
    enum RowType : int {
        CheckboxRow,
        ActionRow,
        RadiobuttonRow,
        FullsizeRadiobuttonRow,
        TickAgreementRow,
        TextIconRow, ///< two texts and an image
        UserRow = 100 ///< and above: made by the row factory
    };
    Q_ENUM(RowType)

    /// Makes a row of a type of RowTypeRole.
    using RowFactory = std::function<QWidget *(int type)>;
    /// Lets a row show an index.
    using RowBinder = std::function<void(QWidget *row, const QModelIndex &index)>;
    /// Makes what lies between two rows.
    using SeparatorFactory = std::function<QWidget *()>;

    /// An empty list; \a scroll_bar_enabled as the property of that name.
    explicit RowList(QWidget *parent = nullptr, bool scroll_bar_enabled = false);
    ~RowList() override;

    /// Null without one, or once it was deleted.
    QAbstractItemModel *model() const { return m_model; }
    /// Shows the top level of \a model from its first row. Not owned; null empties the list.
    void setModel(QAbstractItemModel *model);
    /// Whose children are shown; invalid at the top level.
    QModelIndex rootIndex() const { return m_root; }
    /// Shows the children of \a root, from the first one. Invalid, the default, are those of the
    /// top level; so it is again once \a root was removed. An index of another model is ignored.
    void setRootIndex(const QModelIndex &root);
    double mmRowHeight() const { return m_mm_row_height; }
    void setMmRowHeight(double mm);

    /// Makes all rows anew, with \a factory: it returns a new widget for each type it knows, and
    /// null for those that it leaves to the list. The list owns them, gives them their size and
    /// reports their clicked() if they are buttons. Few are made: when a type first comes into
    /// sight. A slider in a row needs forwardSliderEvents().
    void setRowFactory(const RowFactory &factory);
    /// Calls \a binder each time a row shows another index or its index has changed, after what the
    /// list does itself. It should only write what differs, and write all that another index may
    /// have left: the same widget shows one index after the other.
    void setRowBinder(const RowBinder &binder);
    /// Puts a widget that \a factory makes between each two rows, such as a VexoRuler. All are as
    /// high as the first one wants to be. An empty function, the default, leaves them out.
    void setSeparatorFactory(const SeparatorFactory &factory);

    /// Scrolls until the row of \a index is seen, at once and without an animation; a flick ends. A
    /// list that is not shown yet does it when it is. An index that the list does not hold is
    /// ignored.
    void scrollTo(const QModelIndex &index,
        QAbstractItemView::ScrollHint hint = QAbstractItemView::EnsureVisible);
    /// The first index whose text begins with \a letter, with or without an accent, in upper or
    /// lower case; with "#", the first one that begins with no letter. Invalid without one.
    QModelIndex firstOf(const QString &letter) const;
    /// Lets the buttons that are now in \a bar scroll to the firstOf() their text. Call it again
    /// after its setType(). Null is ignored.
    void connectJumpBar(VexoVerticalButtonScrollArea *bar);

    /// The widget that shows \a index; null while it is out of sight. It shows another index once
    /// the list has scrolled or the model has changed.
    QWidget *rowAt(const QModelIndex &index) const;
    /// What the row shows that \a part is, or lies in; invalid if it is none.
    QModelIndex indexOf(const QWidget *part) const;

Q_SIGNALS:
    /// The row of \a index was tapped, or clicked by a key. The model has its checked state.
    void clicked(const QModelIndex &index);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    bool focusNextPrevChild(bool next) override;

private:
    friend class RowColumn; // reports taps

    void connectModel();
    void reset();
    void start(const QModelIndex &root);
    void holdTop();
    void holdPlace();
    void rowsAreLeaving(const QModelIndex &parent, int first, int last);
    void rowsCame(const QModelIndex &parent);
    void rowsWent(const QModelIndex &parent, int first);
    void showAnew(const QModelIndex &from, const QModelIndex &to);
    void follow(int top_place);
    void takeScrollerAlong(int px);
    void layOut();
    void fetch();
    void tap(QWidget *row);
    void jump();
    int placeOf(const QModelIndex &index) const;
    int valueFor(int place, QAbstractItemView::ScrollHint hint) const;

    RowColumn *m_column; // null once another content was set
    QAbstractItemModel *m_model = nullptr;
    QPersistentModelIndex m_root;
    bool m_has_root = false;
    double m_mm_row_height = 9.8;
    bool m_is_laid_out = false;
    bool m_is_changing = false;
    QPersistentModelIndex m_top; // the first row that is seen, while the model changes
    int m_top_place = 0;
    int m_top_px = 0; // how much of it is out of sight
    QPersistentModelIndex m_wanted; // by scrollTo() before the list is shown
    QAbstractItemView::ScrollHint m_wanted_hint = QAbstractItemView::EnsureVisible;
};

} // namespace vexo::hox::qt::ui
