#pragma once
// SPDX-License-Identifier: MIT

#include <QLayout>
#include <QSize>

#include <memory>
#include <vector>

/// Tiles of equal width in as many columns as fit, row by row. A tile is never narrower than what
/// it shows. The columns share the whole width; a row is as high as its highest tile.
class TileLayout : public QLayout
{
public:
    /// px: the least width of a column, and the gaps between columns and rows.
    TileLayout(int column_width, const QSize &gap);
    ~TileLayout() override;

    void addLayout(QLayout *tile);
    void addItem(QLayoutItem *item) override;
    int count() const override { return int(m_items.size()); }
    QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }
    void setGeometry(const QRect &rect) override;

private:
    int columnWidth() const;
    int columns(int width) const;
    int rowHeight(int first, int columns, int tile_width) const;
    int place(const QRect &rect, bool moves) const;

    int m_column_width;
    QSize m_gap;
    std::vector<std::unique_ptr<QLayoutItem>> m_items;
};
