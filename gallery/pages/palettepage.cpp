// SPDX-License-Identifier: MIT
#include "gallery/pages/palettepage.h"

#include "gallery/measures.h"
#include "gallery/widgets/tilelayout.h"

#include <VexoColors>

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

using vexo::hox::qt::ui::VexoColors;

namespace {

struct PaletteColor
{
    QString name;
    QColor color;
    QString purpose;
};

QVector<PaletteColor> paletteColors()
{
    return {
        { "C0", VexoColors::C0, "Text and icons on dark ground" },
        { "C1", VexoColors::C1, "Ground of buttons, rows and fields" },
        { "C2", VexoColors::C2, "Ground of labels" },
        { "C3", VexoColors::C3, "Text, icons, outlines" },
        { "C4", VexoColors::C4, "Ground of what is pressed or checked" },
        { "C5", VexoColors::C5, "Secondary text, lines" },
        { "C6", VexoColors::C6, "What is disabled" },
        { "C7", VexoColors::C7, "Lime, for applications" },
        { "C8", VexoColors::C8, "Orange, for applications" },
        { "C9", VexoColors::C9, "Red, for applications" },
        { "C10", VexoColors::C10, "Blue, for applications" },
        { "C11", VexoColors::C11, "Olive, for applications" },
        { "C12", VexoColors::C12, "Outline of push buttons" },
        { "C13", VexoColors::C13, "Ground of special keys" },
    };
}

// A patch of colour with a hairline, so that white is seen on white.
class ColorPatch : public QWidget
{
public:
    explicit ColorPatch(const QColor &color)
        : m_color(color)
    {
        setFixedHeight(mmY(14));
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setPen(VexoColors::C13);
        painter.setBrush(m_color);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }

private:
    QColor m_color;
};

// What a pen draws: lines in three directions, a box and a circle.
class PenSample : public ColorPatch
{
public:
    PenSample(const QPen &pen, const QColor &ground)
        : ColorPatch(ground)
        , m_pen(pen)
    {
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        ColorPatch::paintEvent(event);
        QPainter painter(this);
        painter.setPen(m_pen);
        const QSize shape = mmSize(8, 8);
        QRect cell(QPoint(width() / 6 - shape.width() / 2, (height() - shape.height()) / 2), shape);
        painter.drawRect(cell);
        cell.translate(width() / 3, 0);
        painter.drawLine(cell.bottomLeft(), cell.topRight());
        painter.drawLine(cell.left(), cell.center().y(), cell.right(), cell.center().y());
        painter.drawLine(cell.center().x(), cell.top(), cell.center().x(), cell.bottom());
        cell.translate(width() / 3, 0);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.drawEllipse(cell);
    }

private:
    QPen m_pen;
};

// Stacks a patch, and what is said about it, in a tile.
QWidget *createTile(QWidget *patch, QLayout *heading, QWidget *text)
{
    auto *tile = new QWidget;
    auto *layout = new QVBoxLayout(tile);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(patch);
    layout->addSpacing(mmY(1.2));
    if (heading)
        layout->addLayout(heading);
    layout->addWidget(text);
    layout->addStretch();
    return tile;
}

} // namespace

PalettePage::PalettePage()
    : Page("Palette and pens",
        "All drawing of the library takes its colours from here. Lime to olive and the pens are "
        "free for applications.")
{
    TileLayout *swatches = addTiles("Colours", 23, { 4, 5 });
    const QVector<PaletteColor> colors = paletteColors();
    for (const PaletteColor &color : colors) {
        auto *heading = new QHBoxLayout;
        heading->addWidget(createText(color.name, 9, QFont::Medium));
        QLabel *hex = createText(color.color.name().toUpper(), 7, QFont::Normal);
        heading->addWidget(hex, 0, Qt::AlignRight);
        swatches->addWidget(
            createTile(new ColorPatch(color.color), heading, createText(color.purpose)));
    }

    TileLayout *pens = addTiles("Pens", 44, { 4, 5 });
    const auto add = [pens](const QPen &pen, const QColor &ground, const QString &text) {
        pens->addWidget(createTile(new PenSample(pen, ground), nullptr, createText(text)));
    };
    add(VexoColors::pen, VexoColors::C1, "pen on light ground");
    add(VexoColors::inversePen, VexoColors::C4, "inversePen on dark ground");
    add(VexoColors::pen, VexoColors::C4, "pen on dark ground: hardly to be seen");
    add(VexoColors::inversePen, VexoColors::C1, "inversePen on light ground: hardly to be seen");
}
