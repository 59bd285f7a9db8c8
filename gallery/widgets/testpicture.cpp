// SPDX-License-Identifier: MIT
#include "gallery/widgets/testpicture.h"

#include <VexoColors>

#include <QFont>
#include <QPainter>

#include <initializer_list>

using vexo::hox::qt::ui::VexoColors;

namespace {

const QSize frame_px(1280, 720);
const int cell_px = 80;
const QRect dial(480, 200, 320, 320);
const int frames_per_turn = 100;

// Without the stretch of the panel's font: the pixels of a camera are square.
QFont cameraFont(int px)
{
    QFont font;
    font.setPixelSize(px);
    font.setStretch(QFont::Unstretched);
    font.setWeight(QFont::Medium);
    return font;
}

QRect cell(int column, int row)
{
    return QRect(column * cell_px, row * cell_px, cell_px, cell_px);
}

void drawCells(QPainter &painter, const QSize &cells)
{
    painter.setFont(cameraFont(28));
    painter.setPen(QPen(VexoColors::C5, 4));
    for (int row = 0; row < cells.height(); ++row) {
        for (int column = 0; column < cells.width(); ++column) {
            painter.drawRect(cell(column, row));
            painter.drawText(cell(column, row), Qt::AlignCenter,
                QString("%1%2").arg(QChar('A' + column)).arg(row + 1));
        }
    }
}

void drawCorners(QPainter &painter, const QSize &cells)
{
    const int right = cells.width() - 1;
    const int bottom = cells.height() - 1;
    painter.fillRect(cell(0, 0), VexoColors::C9);
    painter.fillRect(cell(right, 0), VexoColors::C7);
    painter.fillRect(cell(0, bottom), VexoColors::C10);
    painter.fillRect(cell(right, bottom), VexoColors::C8);
}

void drawRings(QPainter &painter)
{
    painter.setPen(QPen(VexoColors::C0, 6));
    const QPoint middle = dial.center();
    for (const int radius_px : { 240, 330 })
        painter.drawEllipse(middle, radius_px, radius_px);
}

void drawColors(QPainter &painter)
{
    const std::initializer_list<QColor> colors{ VexoColors::C9, VexoColors::C8, VexoColors::C7,
        VexoColors::C10, VexoColors::C11, VexoColors::C12 };
    int column = 5;
    for (const QColor &color : colors)
        painter.fillRect(cell(column++, 1), color);
}

QImage createCard()
{
    QImage card(frame_px, QImage::Format_RGB32);
    card.fill(VexoColors::C4);
    QPainter painter(&card);
    painter.setRenderHint(QPainter::Antialiasing);
    const QSize cells = frame_px / cell_px;
    drawCells(painter, cells);
    drawCorners(painter, cells);
    drawColors(painter);
    drawRings(painter);
    painter.setPen(QPen(VexoColors::C0, 6));
    painter.setBrush(VexoColors::C3);
    painter.drawEllipse(dial.adjusted(3, 3, -3, -3));
    return card;
}

} // namespace

TestPicture::TestPicture()
    : m_card(createCard())
    , m_frame(m_card.copy())
{
    drawDial();
}

void TestPicture::advance()
{
    ++m_count;
    drawDial();
}

// Only the dial is drawn anew.
void TestPicture::drawDial()
{
    QPainter painter(&m_frame);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawImage(dial, m_card, dial);
    painter.translate(dial.center());
    painter.rotate(m_count * 360.0 / frames_per_turn);
    painter.setPen(QPen(VexoColors::C7, 12, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(0, 0, 0, -132);
    painter.resetTransform();
    painter.setPen(VexoColors::C0);
    painter.setFont(cameraFont(72));
    painter.drawText(dial.translated(0, 70), Qt::AlignCenter, QString::number(m_count));
}
