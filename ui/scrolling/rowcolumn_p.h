#pragma once
// SPDX-License-Identifier: MIT

#include "ui/scrolling/rowlist.h"

#include <QPointer>

#include <vector>

namespace vexo::hox::qt::ui {

/// What a RowList scrolls: as high as all rows would be, with widgets only where it is looked at.
/// A place is the number of a row.
class RowColumn : public QWidget
{
public:
    explicit RowColumn(RowList *list);

    void setRowHeight(int px);
    void setRowFactory(const RowList::RowFactory &factory);
    void setRowBinder(const RowList::RowBinder &binder);
    void setSeparatorFactory(const RowList::SeparatorFactory &factory);
    /// From the top of a row to that of the next one, px.
    int pitch() const { return m_row_px + m_separator_px; }
    int rowHeight() const { return m_row_px; }
    int count() const { return m_count; }
    /// How many rows the list has; what would not fit into a widget is left out.
    void setCount(int count);

    /// Takes leave of what the rows show.
    void forgetRows();
    /// The model or the size has changed: puts all rows into their places, and fills what is seen
    /// when it is scrolled to \a top_px, and some places beside it.
    void layOut(int top_px);
    /// When it is scrolled to \a top_px: puts rows from elsewhere to where none is.
    void cover(int top_px);
    /// What the model says of these places has changed.
    void showAnew(int first, int last);
    /// A finger is at \a place: what it touches may get the press later, when the scroller hands it
    /// on, so it shows nothing else until letGo().
    void touch(const QPoint &place);
    void letGo() { m_touched.clear(); }
    /// A row of the application is asked something, which may change the model.
    bool isFilling() const { return m_is_filling; }

    QWidget *rowAt(int place) const;
    QPersistentModelIndex indexOf(const QWidget *part) const;
    /// In the order of their places.
    QVector<QWidget *> rows() const;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    // Places from first to last, none if last lies before first.
    struct Span
    {
        int first;
        int last;
    };
    struct Row
    {
        QPointer<QWidget> widget;
        QPointer<QWidget> separator; // above it
        int type = 0;
        int place = 0;
        QPersistentModelIndex index;
    };
    using Rows = std::vector<Row>;

    int viewHeight() const;
    Span seen(int top_px) const;
    void cover(const Span &span);
    Row make(int type) const;
    void setSize(const Row &row) const;
    void move(const Row &row) const;
    bool isHeld(const Row &row) const;
    Row take(int type);
    void release(Rows::iterator row);
    void put(int place, const Span &span);
    void show(const Row &row) const;
    void removeWhatIsGone();
    Rows::iterator position(int place);
    Rows::iterator farthestFrom(const Span &span);
    void hideSpare();
    void deleteRows();
    void orderTabs(Rows::iterator row);

    RowList *const m_list;
    RowList::RowFactory m_row_factory;
    RowList::RowBinder m_row_binder;
    RowList::SeparatorFactory m_separator_factory;
    Rows m_rows; // sorted by place
    Rows m_spare; // show nothing
    QPointer<QWidget> m_touched;
    int m_row_px = 1;
    int m_separator_px = 0;
    int m_count = 0;
    std::size_t m_capacity = 0; // more rows than that are not kept
    bool m_is_filling = false;
};

} // namespace vexo::hox::qt::ui
