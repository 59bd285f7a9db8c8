// SPDX-License-Identifier: MIT
#include "ui/scrolling/rowlist.h"

#include "ui/foundation/pixels_p.h"
#include "ui/scrolling/rowcolumn_p.h"
#include "ui/scrolling/rowlistrow_p.h"
#include "ui/scrolling/vexoverticalbuttonscrollarea.h"

#include <QEvent>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QScrollPrepareEvent>

#include <cmath>

namespace vexo::hox::qt::ui {

namespace {

// Without its accent, in upper case.
QChar firstLetter(const QString &text)
{
    const QString first = text.trimmed().left(1);
    return first.isEmpty() ? QChar()
                           : first.normalized(QString::NormalizationForm_D).at(0).toUpper();
}

} // namespace

RowList::RowList(QWidget *parent, bool scroll_bar_enabled)
    : VexoVerticalScrollArea(parent, scroll_bar_enabled)
    , m_column(new RowColumn(this))
{
    connect(m_column, &QObject::destroyed, this, [this] { m_column = nullptr; });
    connect(this, &RowList::scrollerStateChanged, this, [this](QScroller::State state) {
        if (m_column && state != QScroller::Pressed)
            m_column->letGo();
    });
    setWidget(m_column);
    setMmRowHeight(m_mm_row_height);
}

RowList::~RowList()
{
    if (m_model)
        m_model->disconnect(this); // it may be a child
    delete m_column; // its rows may hand on the focus
}

void RowList::setModel(QAbstractItemModel *model)
{
    if (m_model)
        m_model->disconnect(this);
    m_model = model;
    if (m_model)
        connectModel();
    reset();
}

void RowList::setRootIndex(const QModelIndex &root)
{
    if (root.isValid() && root.model() != m_model)
        return;
    start(root);
}

void RowList::setMmRowHeight(double mm)
{
    if (std::isnan(mm))
        return;
    holdTop();
    m_mm_row_height = mm;
    if (m_column)
        m_column->setRowHeight(qMax(1, pxY(*ScalingInfo::inst(), mm)));
    follow(m_top_place);
}

void RowList::setRowFactory(const RowFactory &factory)
{
    if (m_column)
        m_column->setRowFactory(factory);
    layOut();
}

void RowList::setRowBinder(const RowBinder &binder)
{
    if (m_column)
        m_column->setRowBinder(binder);
}

void RowList::setSeparatorFactory(const SeparatorFactory &factory)
{
    holdTop();
    if (m_column)
        m_column->setSeparatorFactory(factory);
    follow(m_top_place);
}

void RowList::scrollTo(const QModelIndex &index, QAbstractItemView::ScrollHint hint)
{
    const int place = placeOf(index);
    if (place < 0)
        return;
    m_wanted = isVisible() ? QModelIndex() : index;
    m_wanted_hint = hint;
    if (getScroller()->state() == QScroller::Scrolling)
        getScroller()->stop(); // a flick would go on from where it was
    const int before_px = verticalScrollBar()->value();
    verticalScrollBar()->setValue(valueFor(place, hint));
    takeScrollerAlong(verticalScrollBar()->value() - before_px);
}

int RowList::valueFor(int place, QAbstractItemView::ScrollHint hint) const
{
    const int top_px = place * m_column->pitch();
    const int bottom_px = top_px + m_column->rowHeight() - viewport()->height();
    switch (hint) {
    case QAbstractItemView::PositionAtTop:
        return top_px;
    case QAbstractItemView::PositionAtBottom:
        return bottom_px;
    case QAbstractItemView::PositionAtCenter:
        return (top_px + bottom_px) / 2;
    default:
        return qMin(top_px, qMax(bottom_px, verticalScrollBar()->value()));
    }
}

QModelIndex RowList::firstOf(const QString &letter) const
{
    const QChar wanted = firstLetter(letter);
    const int count = m_model ? m_model->rowCount(m_root) : 0;
    for (int place = 0; place < count; ++place) {
        const QModelIndex index = m_model->index(place, 0, m_root);
        const QChar first = firstLetter(index.data().toString());
        if (wanted == QLatin1Char('#') ? !first.isLetter() : first == wanted)
            return index;
    }
    return QModelIndex();
}

void RowList::connectJumpBar(VexoVerticalButtonScrollArea *bar)
{
    if (bar)
        bar->setButtonConnection(this, [this] { jump(); });
}

QWidget *RowList::rowAt(const QModelIndex &index) const
{
    const int place = placeOf(index);
    return place < 0 ? nullptr : m_column->rowAt(place);
}

QModelIndex RowList::indexOf(const QWidget *part) const
{
    return m_column ? QModelIndex(m_column->indexOf(part)) : QModelIndex();
}

// The toolkit asks the content to lay out whenever a row is shown or hidden. There is nothing to
// lay out, and OpaqueRows would let the next step draw all rows anew.
bool RowList::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_column && event->type() == QEvent::LayoutRequest)
        return true;
    return VexoVerticalScrollArea::eventFilter(watched, event);
}

bool RowList::event(QEvent *event)
{
    const auto state = getScroller()->state();
    const bool is_held = state == QScroller::Pressed || state == QScroller::Dragging;
    if (m_column && event->type() == QEvent::ScrollPrepare && !is_held) {
        const QPointF place = static_cast<QScrollPrepareEvent *>(event)->startPos();
        m_column->touch(m_column->mapFrom(this, place.toPoint()));
    }
    return VexoVerticalScrollArea::event(event);
}

void RowList::resizeEvent(QResizeEvent *event)
{
    VexoVerticalScrollArea::resizeEvent(event);
    m_is_laid_out = true; // now it has its place, and rows are styled only once
    layOut();
}

void RowList::showEvent(QShowEvent *event)
{
    VexoVerticalScrollArea::showEvent(event);
    if (m_wanted.isValid())
        scrollTo(m_wanted, m_wanted_hint);
}

// Rows that come into sight are in their places before the toolkit moves what is seen: it draws
// only them.
void RowList::scrollContentsBy(int dx, int dy)
{
    const bool is_ready = m_column && !m_is_changing;
    if (is_ready)
        m_column->cover(verticalScrollBar()->value());
    VexoVerticalScrollArea::scrollContentsBy(dx, dy);
    if (is_ready)
        fetch();
}

// The next row that can take the focus must be there to get it.
bool RowList::focusNextPrevChild(bool next)
{
    const int step = next ? 1 : -1;
    QModelIndex index = indexOf(focusWidget());
    while (index.isValid()) {
        index = index.sibling(index.row() + step, 0);
        if (index.flags() & Qt::ItemIsEnabled) {
            scrollTo(index);
            break;
        }
    }
    return VexoVerticalScrollArea::focusNextPrevChild(next);
}

void RowList::connectModel()
{
    using Model = QAbstractItemModel;
    const Model *model = m_model;
    connect(model, &Model::rowsAboutToBeInserted, this, &RowList::holdTop);
    connect(model, &Model::rowsAboutToBeRemoved, this, &RowList::holdTop);
    connect(model, &Model::rowsAboutToBeMoved, this, &RowList::rowsAreLeaving);
    connect(model, &Model::layoutAboutToBeChanged, this, &RowList::holdPlace);
    connect(model, &Model::rowsInserted, this, &RowList::rowsCame);
    connect(model, &Model::rowsRemoved, this, &RowList::rowsWent);
    connect(model, &Model::rowsMoved, this, [this] { follow(m_top_place); });
    connect(model, &Model::layoutChanged, this, [this] { follow(m_top_place); });
    connect(model, &Model::dataChanged, this, &RowList::showAnew);
    connect(model, &Model::modelReset, this, &RowList::reset);
    connect(model, &Model::columnsInserted, this, &RowList::reset);
    connect(model, &Model::columnsRemoved, this, &RowList::reset);
    connect(model, &Model::columnsMoved, this, &RowList::reset);
    connect(model, &QObject::destroyed, this, [this] {
        m_model = nullptr;
        reset();
    });
}

void RowList::reset()
{
    start(QModelIndex());
}

void RowList::start(const QModelIndex &root)
{
    m_root = root;
    m_has_root = root.isValid();
    m_top = QPersistentModelIndex();
    m_top_px = 0;
    if (m_column)
        m_column->forgetRows();
    if (getScroller()->state() == QScroller::Scrolling)
        getScroller()->stop();
    follow(0);
}

// While the rows of the model change, the first one that is seen stays where it is; but at the top
// of the list what comes is seen.
void RowList::holdTop()
{
    holdPlace();
    if (m_model && verticalScrollBar()->value() > 0)
        m_top = m_model->index(m_top_place, 0, m_root);
}

// The same, but for the row that is seen there.
void RowList::holdPlace()
{
    const int value = verticalScrollBar()->value();
    m_top = QPersistentModelIndex();
    m_top_place = m_column ? value / m_column->pitch() : 0;
    m_top_px = m_column ? value % m_column->pitch() : 0;
}

// It is not followed to where it goes.
void RowList::rowsAreLeaving(const QModelIndex &parent, int first, int last)
{
    holdTop();
    if (parent == m_root && first <= m_top_place && m_top_place <= last)
        m_top = QPersistentModelIndex();
}

void RowList::rowsCame(const QModelIndex &parent)
{
    if (parent == m_root)
        follow(m_top_place);
}

void RowList::rowsWent(const QModelIndex &parent, int first)
{
    if (m_has_root && !m_root.isValid())
        reset();
    else if (parent == m_root)
        follow(qMin(first, m_top_place));
}

void RowList::showAnew(const QModelIndex &from, const QModelIndex &to)
{
    if (m_column && from.isValid() && from.column() == 0 && from.parent() == m_root)
        m_column->showAnew(from.row(), to.row());
}

void RowList::follow(int top_place)
{
    if (!m_column)
        return;
    if (m_column->isFilling()) { // it is in the midst of the rows
        QMetaObject::invokeMethod(
            this, [=] { follow(top_place); }, Qt::QueuedConnection);
        return;
    }
    const bool is_held = m_top.isValid() && m_top.parent() == m_root;
    const int place = is_held ? m_top.row() : top_place;
    m_top = QPersistentModelIndex();
    m_is_changing = true;
    QScrollBar *bar = verticalScrollBar();
    const int before = bar->value();
    m_column->setCount(m_model ? m_model->rowCount(m_root) : 0);
    bar->setValue(place * m_column->pitch() + m_top_px);
    m_is_changing = false;
    takeScrollerAlong(bar->value() - before);
    layOut();
}

// The scroller would go on from where it was.
void RowList::takeScrollerAlong(int px)
{
    QScroller *scroller = getScroller();
    if (px == 0 || scroller->state() == QScroller::Inactive)
        return;
    if (scroller->state() != QScroller::Scrolling) {
        scroller->resendPrepareEvent();
        return;
    }
    const QPointF end = scroller->finalPosition();
    const double speed = qAbs(scroller->velocity().y() * scroller->pixelPerMeter().y());
    const double way_px = qAbs(end.y() - (verticalScrollBar()->value() - px));
    scroller->stop(); // a new flick: asked to move, the toolkit's would run off the other way
    if (speed > 1)
        scroller->scrollTo(end + QPointF(0, px), int(1000 * way_px / speed));
}

void RowList::layOut()
{
    if (!m_column || !m_is_laid_out)
        return;
    if (m_column->isFilling()) {
        QMetaObject::invokeMethod(this, &RowList::layOut, Qt::QueuedConnection);
        return;
    }
    m_column->layOut(verticalScrollBar()->value());
    fetch();
}

// Models of a database bring their rows bit by bit.
void RowList::fetch()
{
    const QScrollBar *bar = verticalScrollBar();
    if (!m_model || bar->value() < bar->maximum() || !m_model->canFetchMore(m_root))
        return;
    const auto fetch_more = [this] {
        if (m_model && m_model->canFetchMore(m_root))
            m_model->fetchMore(m_root);
    };
    QMetaObject::invokeMethod(this, fetch_more, Qt::QueuedConnection);
}

void RowList::tap(QWidget *row)
{
    const QPointer<RowList> self(this);
    const QPersistentModelIndex index = indexOf(row);
    RowListRow::write(row, index, m_model);
    if (!self || placeOf(index) < 0)
        return;
    m_column->showAnew(index.row(), index.row());
    Q_EMIT clicked(index);
}

void RowList::jump()
{
    if (const auto *button = qobject_cast<QPushButton *>(sender()))
        scrollTo(firstOf(button->text()), QAbstractItemView::PositionAtTop);
}

// -1 for one that the list does not show.
int RowList::placeOf(const QModelIndex &index) const
{
    const bool is_here = m_column && index.isValid() && index.model() == m_model
        && index.parent() == m_root && index.row() < m_column->count();
    return is_here ? index.row() : -1;
}

} // namespace vexo::hox::qt::ui
