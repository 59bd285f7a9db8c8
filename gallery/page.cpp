// SPDX-License-Identifier: MIT
#include "gallery/page.h"

#include "gallery/measures.h"
#include "gallery/widgets/tilelayout.h"

#include <QLabel>
#include <QVBoxLayout>

Page::Page(const QString &title, const QString &summary, Kind kind)
    : m_layout(new QVBoxLayout)
    , m_kind(kind)
{
    auto *frame = new QVBoxLayout(this);
    frame->setContentsMargins(mmX(6), mmY(6), mmX(6), mmY(8));
    frame->setSpacing(0);
    frame->addLayout(m_layout);
    frame->addStretch(1);
    m_layout->addWidget(createText(title, 13, QFont::Medium));
    m_layout->addSpacing(mmY(1));
    m_layout->addWidget(createText(summary));
}

Page::Page()
    : m_layout(new QVBoxLayout(this))
    , m_kind(Screen)
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
}

void Page::addSection(const QString &heading)
{
    m_layout->addSpacing(mmY(7));
    m_layout->addWidget(createText(heading, 9, QFont::Medium));
}

void Page::addBlock(QWidget *block)
{
    m_layout->addSpacing(mmY(3));
    m_layout->addWidget(block);
}

void Page::addBlock(QLayout *block)
{
    m_layout->addSpacing(mmY(3));
    m_layout->addLayout(block);
}

TileLayout *Page::addTiles(double column, const QSizeF &gap)
{
    auto *tiles = new TileLayout(mmX(column), mmSize(gap.width(), gap.height()));
    addBlock(tiles);
    return tiles;
}

TileLayout *Page::addTiles(const QString &heading, double column, const QSizeF &gap)
{
    addSection(heading);
    return addTiles(column, gap);
}

QLabel *Page::createText(const QString &text, double pt, int weight)
{
    auto *label = new QLabel(text);
    label->setFont(ptFont(pt, weight));
    label->setWordWrap(true);
    return label;
}

QLayout *Page::createCaptioned(QWidget *widget, const QString &caption, Qt::Alignment alignment)
{
    auto *tile = new QVBoxLayout;
    tile->setSpacing(mmY(1));
    tile->addWidget(widget, 0, alignment);
    if (caption.isEmpty())
        tile->addStretch();
    else
        tile->addWidget(createText(caption), 1, Qt::AlignTop);
    return tile;
}
