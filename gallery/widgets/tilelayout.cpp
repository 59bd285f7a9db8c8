// SPDX-License-Identifier: MIT
#include "gallery/widgets/tilelayout.h"

TileLayout::TileLayout(int column_width, const QSize &gap)
    : m_column_width(column_width)
    , m_gap(gap)
{
}

// A nested layout takes itself out of its parent when it is deleted: out of the list first.
TileLayout::~TileLayout()
{
    while (QLayoutItem *item = TileLayout::takeAt(0))
        delete item;
}

void TileLayout::addLayout(QLayout *tile)
{
    addChildLayout(tile);
    addItem(tile);
}

void TileLayout::addItem(QLayoutItem *item)
{
    m_items.emplace_back(item);
}

QLayoutItem *TileLayout::itemAt(int index) const
{
    return index >= 0 && index < int(m_items.size()) ? m_items[size_t(index)].get() : nullptr;
}

QLayoutItem *TileLayout::takeAt(int index)
{
    if (index < 0 || index >= int(m_items.size()))
        return nullptr;
    QLayoutItem *item = m_items[size_t(index)].release();
    m_items.erase(m_items.begin() + index);
    return item;
}

int TileLayout::heightForWidth(int width) const
{
    return place(QRect(0, 0, width, 0), false);
}

QSize TileLayout::sizeHint() const
{
    return minimumSize();
}

QSize TileLayout::minimumSize() const
{
    return QSize(columnWidth(), m_items.empty() ? 0 : m_items.front()->minimumSize().height());
}

void TileLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    place(rect, true);
}

int TileLayout::columnWidth() const
{
    int width = m_column_width;
    for (const auto &item : m_items)
        width = qMax(width, item->minimumSize().width());
    return width;
}

int TileLayout::columns(int width) const
{
    return qMax(1, (width + m_gap.width()) / (columnWidth() + m_gap.width()));
}

int TileLayout::rowHeight(int first, int columns, int tile_width) const
{
    int height = 0;
    for (int i = first; i < qMin(first + columns, count()); ++i) {
        const QLayoutItem *item = m_items[size_t(i)].get();
        height = qMax(height,
            item->hasHeightForWidth() ? item->heightForWidth(tile_width)
                                      : item->sizeHint().height());
    }
    return height;
}

// The height of all rows; moves the tiles on request.
int TileLayout::place(const QRect &rect, bool moves) const
{
    const int columns = this->columns(rect.width());
    const int tile_width = (rect.width() - (columns - 1) * m_gap.width()) / columns;
    int y = rect.y();
    for (int first = 0; first < count(); first += columns) {
        const int height = rowHeight(first, columns, tile_width);
        for (int i = first; moves && i < qMin(first + columns, count()); ++i) {
            const int x = rect.x() + (i - first) * (tile_width + m_gap.width());
            m_items[size_t(i)]->setGeometry(QRect(x, y, tile_width, height));
        }
        y += height + m_gap.height();
    }
    return m_items.empty() ? 0 : y - m_gap.height() - rect.y();
}
