// SPDX-License-Identifier: MIT
#include "ui/scrolling/rowcolumn_p.h"

#include "ui/foundation/accessible_p.h"
#include "ui/scrolling/opaquerows_p.h"
#include "ui/scrolling/rowlistaccessible_p.h"
#include "ui/scrolling/rowlistrow_p.h"
#include "ui/touch/press_p.h"

#include <QAbstractButton>
#include <QApplication>
#include <QResizeEvent>
#include <QScopedValueRollback>

#include <algorithm>

namespace vexo::hox::qt::ui {

namespace {

const int reserve = 6; // rows beside those that are seen; a finger that goes to and fro fills none

bool isOrHolds(const QWidget *whole, const QWidget *part)
{
    return whole && part && (whole == part || whole->isAncestorOf(part));
}

// Those that take the focus by the tab key.
QVector<QWidget *> tabStops(QWidget *row)
{
    if (!row)
        return {};
    if (row->focusPolicy() & Qt::TabFocus)
        return { row };
    QVector<QWidget *> stops;
    const auto children = row->findChildren<QWidget *>();
    for (QWidget *child : children) {
        if (child->focusPolicy() & Qt::TabFocus)
            stops += child;
    }
    return stops;
}

} // namespace

RowColumn::RowColumn(RowList *list)
    : m_list(list)
{
    setAttribute(Qt::WA_StyledBackground);
    installAccessible<RowColumn, RowListAccessible>();
    new OpaqueRows(this);
}

void RowColumn::setRowHeight(int px)
{
    m_row_px = px;
    for (const Rows *rows : { &m_rows, &m_spare }) {
        for (const Row &row : *rows)
            setSize(row);
    }
}

void RowColumn::setRowFactory(const RowList::RowFactory &factory)
{
    m_row_factory = factory;
    deleteRows();
}

void RowColumn::setRowBinder(const RowList::RowBinder &binder)
{
    m_row_binder = binder;
    showAnew(0, m_count - 1);
}

void RowColumn::setSeparatorFactory(const RowList::SeparatorFactory &factory)
{
    deleteRows();
    m_separator_factory = factory;
    m_separator_px = 0;
    if (!factory)
        return;
    const std::unique_ptr<QWidget> sample(factory());
    if (sample)
        m_separator_px = sample->sizeHint().expandedTo(sample->minimumSize()).height();
}

void RowColumn::setCount(int count)
{
    m_count = qMin(count, (QWIDGETSIZE_MAX + m_separator_px) / pitch());
    const int height_px = qMax(0, m_count * pitch() - m_separator_px);
    setMinimumHeight(height_px);
    resize(width(), qMax(height_px, viewHeight()));
}

void RowColumn::forgetRows()
{
    const QScopedValueRollback<bool> filling(m_is_filling, true);
    while (!m_rows.empty())
        release(m_rows.end() - 1);
    hideSpare();
}

void RowColumn::layOut(int top_px)
{
    const Span seen = this->seen(top_px);
    const int most = viewHeight() / pitch() + 2 + reserve;
    const int first = qBound(0, seen.first - reserve / 2, qMax(0, m_count - most));
    const Span span{ first, first + most - 1 };
    m_capacity = std::size_t(most);
    removeWhatIsGone();
    for (const Row &row : m_rows)
        move(row);
    cover(span);
    for (auto row = farthestFrom(span); row != m_rows.end(); row = farthestFrom(span))
        release(row);
    hideSpare();
}

void RowColumn::cover(int top_px)
{
    cover(seen(top_px));
}

void RowColumn::showAnew(int first, int last)
{
    if (m_is_filling)
        return;
    {
        const QScopedValueRollback<bool> filling(m_is_filling, true);
        for (const Row &row : Rows(m_rows)) {
            if (row.place < first || row.place > last || !row.widget || !row.index.isValid())
                continue;
            if (row.type == RowListRow::typeOf(row.index)) {
                show(row);
            } else if (rowAt(row.place) == row.widget) {
                release(position(row.place));
                put(row.place, { row.place, row.place });
            }
        }
    }
    hideSpare();
}

void RowColumn::touch(const QPoint &place)
{
    const QWidget *part = childAt(place);
    m_touched.clear();
    for (const Row &row : m_rows) {
        if (isOrHolds(row.widget, part))
            m_touched = row.widget;
    }
}

QWidget *RowColumn::rowAt(int place) const
{
    const auto row = const_cast<RowColumn *>(this)->position(place);
    return row != m_rows.end() && row->place == place ? row->widget.data() : nullptr;
}

QPersistentModelIndex RowColumn::indexOf(const QWidget *part) const
{
    for (const Row &row : m_rows) {
        if (isOrHolds(row.widget, part))
            return row.index;
    }
    return QPersistentModelIndex();
}

QVector<QWidget *> RowColumn::rows() const
{
    QVector<QWidget *> widgets;
    for (const Row &row : m_rows) {
        if (row.widget)
            widgets += row.widget;
    }
    return widgets;
}

void RowColumn::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (event->size().width() != event->oldSize().width())
        setRowHeight(m_row_px);
}

int RowColumn::viewHeight() const
{
    return parentWidget() ? parentWidget()->height() : 0;
}

// With the row of which only the separator is seen.
RowColumn::Span RowColumn::seen(int top_px) const
{
    return { top_px / pitch(), (top_px + viewHeight() - 1 + m_separator_px) / pitch() };
}

void RowColumn::cover(const Span &span)
{
    if (m_is_filling)
        return;
    {
        const QScopedValueRollback<bool> filling(m_is_filling, true);
        const int last = qMin(span.last, m_count - 1);
        for (int place = qMax(0, span.first); place <= last; ++place) {
            if (!rowAt(place))
                put(place, span);
        }
    }
    hideSpare();
}

RowColumn::Row RowColumn::make(int type) const
{
    Row row;
    row.type = type;
    row.widget = m_row_factory ? m_row_factory(type) : nullptr;
    if (!row.widget)
        row.widget = RowListRow::make(type);
    row.widget->setParent(const_cast<RowColumn *>(this));
    RowListRow::prepare(row.widget);
    if (const QAbstractButton *button = RowListRow::buttonOf(row.widget))
        connect(button, &QAbstractButton::clicked, m_list,
            [list = m_list, widget = row.widget.data()] { list->tap(widget); });
    if (m_separator_px > 0)
        row.separator = m_separator_factory();
    if (row.separator)
        row.separator->setParent(const_cast<RowColumn *>(this));
    setSize(row);
    return row;
}

// Of a widget whose size cannot change the toolkit does not ask those around it to lay out anew.
void RowColumn::setSize(const Row &row) const
{
    if (row.widget)
        row.widget->setFixedSize(width(), m_row_px);
    if (row.separator)
        row.separator->setFixedSize(width(), m_separator_px);
}

// Above the first row a separator is out of sight.
void RowColumn::move(const Row &row) const
{
    const int y = row.place * pitch();
    if (row.widget)
        row.widget->move(0, y);
    if (row.separator)
        row.separator->move(0, y - m_separator_px);
}

RowColumn::Row RowColumn::take(int type)
{
    const auto spare = std::find_if(m_spare.begin(), m_spare.end(),
        [&](const Row &row) { return row.type == type && row.widget && !isHeld(row); });
    if (spare == m_spare.end())
        return make(type);
    Row row = *spare;
    m_spare.erase(spare);
    return row;
}

void RowColumn::release(Rows::iterator row)
{
    row->index = QPersistentModelIndex();
    m_spare.push_back(*row);
    m_rows.erase(row);
}

void RowColumn::put(int place, const Span &span)
{
    const QAbstractItemModel *model = m_list->model();
    const QModelIndex index = model ? model->index(place, 0, m_list->rootIndex()) : QModelIndex();
    if (!index.isValid())
        return;
    const auto farthest = m_rows.size() < m_capacity ? m_rows.end() : farthestFrom(span);
    if (farthest != m_rows.end())
        release(farthest);
    Row row = take(RowListRow::typeOf(index));
    row.place = place;
    row.index = index;
    move(row);
    auto at = position(place);
    if (at != m_rows.end() && at->place == place)
        *at = row; // the application has deleted what was there
    else
        at = m_rows.insert(at, row);
    orderTabs(at);
    show(row);
}

void RowColumn::show(const Row &row) const
{
    RowListRow::show(row.widget, row.index);
    if (m_row_binder)
        m_row_binder(row.widget, row.index);
    for (QWidget *widget : { row.widget.data(), row.separator.data() }) {
        if (widget && widget->isHidden())
            widget->show();
    }
}

// Removed or moved away, by the model or by the application.
void RowColumn::removeWhatIsGone()
{
    const QModelIndex root = m_list->rootIndex();
    const Rows rows = std::move(m_rows);
    m_rows.clear();
    for (Row row : rows) {
        const bool is_here = row.widget && row.index.isValid() && row.index.parent() == root
            && row.index.row() < m_count;
        row.place = is_here ? row.index.row() : -1;
        m_rows.push_back(row);
    }
    std::sort(m_rows.begin(), m_rows.end(),
        [](const Row &left, const Row &right) { return left.place < right.place; });
    while (!m_rows.empty() && m_rows.front().place < 0)
        release(m_rows.begin());
}

RowColumn::Rows::iterator RowColumn::position(int place)
{
    return std::lower_bound(m_rows.begin(), m_rows.end(), place,
        [](const Row &row, int wanted) { return row.place < wanted; });
}

// The focus and the finger stay with what they were given to.
bool RowColumn::isHeld(const Row &row) const
{
    return row.widget == m_touched || isOrHolds(row.widget, QApplication::focusWidget())
        || (row.widget && Press::isWithin(row.widget));
}

// The one outside of it that is last seen again.
RowColumn::Rows::iterator RowColumn::farthestFrom(const Span &span)
{
    auto farthest = m_rows.end();
    int most = 0;
    for (auto row = m_rows.begin(); row != m_rows.end(); ++row) {
        const int distance = qMax(span.first - row->place, row->place - span.last);
        if (distance > most && !isHeld(*row)) {
            most = distance;
            farthest = row;
        }
    }
    return farthest;
}

// One that had the focus hands it on, which may scroll and take another one.
void RowColumn::hideSpare()
{
    const auto is_shown = [](const QWidget *widget) { return widget && !widget->isHidden(); };
    for (;;) {
        const auto row = std::find_if(m_spare.begin(), m_spare.end(),
            [&](const Row &spare) { return is_shown(spare.widget) || is_shown(spare.separator); });
        if (row == m_spare.end())
            return;
        QWidget *const widget = is_shown(row->separator) ? row->separator : row->widget;
        widget->hide();
    }
}

// A slot of one of them may be at work.
void RowColumn::deleteRows()
{
    forgetRows();
    for (const Row &row : m_spare) {
        for (QWidget *widget : { row.widget.data(), row.separator.data() }) {
            if (widget)
                widget->deleteLater();
        }
    }
    m_spare.clear();
}

void RowColumn::orderTabs(Rows::iterator row)
{
    QWidget *before = m_list;
    for (auto other = row; other != m_rows.begin() && before == m_list;) {
        const QVector<QWidget *> stops = tabStops((--other)->widget);
        before = stops.isEmpty() ? before : stops.last();
    }
    const QVector<QWidget *> stops = tabStops(row->widget);
    for (QWidget *stop : stops) {
        setTabOrder(before, stop);
        before = stop;
    }
}

} // namespace vexo::hox::qt::ui
