// SPDX-License-Identifier: MIT
#include "camerapicture.h"

#include "parts.h"

#include <QDateTime>
#include <QLocale>
#include <QPainter>
#include <QPainterPath>
#include <QVariant>

namespace {

const QSize frame_px(1280, 720);
const int ground_y = 560; // where the wall meets the path

void drawWall(QPainter &painter)
{
    painter.fillRect(QRect(QPoint(), frame_px), QColor(214, 202, 186));
    const int brick_w = 80;
    const int brick_h = 32;
    painter.setPen(QPen(QColor(198, 184, 166), 3));
    for (int y = 0, row = 0; y < ground_y; y += brick_h, ++row) {
        painter.drawLine(0, y, frame_px.width(), y);
        for (int x = row % 2 * brick_w / 2; x < frame_px.width(); x += brick_w)
            painter.drawLine(x, y, x, y + brick_h);
    }
    QLinearGradient path(0, ground_y, 0, frame_px.height());
    path.setColorAt(0, QColor(128, 126, 122));
    path.setColorAt(1, QColor(164, 161, 155));
    painter.fillRect(0, ground_y, frame_px.width(), frame_px.height() - ground_y, path);
}

void drawDoor(QPainter &painter)
{
    painter.setPen(Qt::NoPen);
    painter.fillRect(QRect(470, 110, 300, 450), QColor(240, 238, 232));
    painter.fillRect(QRect(490, 130, 260, 430), QColor(52, 84, 92));
    painter.setBrush(QColor(40, 66, 73));
    for (const int y : { 290, 430 })
        painter.drawRoundedRect(QRect(520, y, 200, 110), 6, 6);
    QLinearGradient glass(520, 160, 720, 260);
    glass.setColorAt(0, QColor(196, 218, 226));
    glass.setColorAt(1, QColor(140, 172, 184));
    painter.setBrush(glass);
    painter.drawRoundedRect(QRect(520, 160, 200, 100), 6, 6);
    painter.setBrush(QColor(222, 196, 120));
    painter.drawEllipse(QPoint(728, 352), 11, 11);
    painter.fillRect(QRect(450, 560, 340, 26), QColor(108, 106, 102));
}

void drawLamp(QPainter &painter)
{
    QRadialGradient light(400, 200, 170);
    light.setColorAt(0, QColor(255, 240, 190, 190));
    light.setColorAt(1, QColor(255, 240, 190, 0));
    painter.setBrush(light);
    painter.drawEllipse(QPoint(400, 200), 170, 170);
    painter.setBrush(QColor(60, 58, 54));
    painter.drawRoundedRect(QRect(384, 160, 32, 14), 5, 5);
    painter.setBrush(QColor(255, 246, 214));
    painter.drawRoundedRect(QRect(388, 174, 24, 44), 6, 6);
}

void drawPlant(QPainter &painter, int x)
{
    painter.setBrush(QColor(70, 112, 72));
    const QPoint leaves[] = { { 0, -70 }, { -38, -40 }, { 38, -40 }, { -20, -100 }, { 22, -104 } };
    for (const QPoint &leaf : leaves)
        painter.drawEllipse(QPoint(x, 560) + leaf, 44, 40);
    QPainterPath pot(QPointF(x - 46, 540));
    pot.lineTo(x + 46, 540);
    pot.lineTo(x + 34, 620);
    pot.lineTo(x - 34, 620);
    painter.fillPath(pot, QColor(172, 96, 64));
}

void drawWindow(QPainter &painter)
{
    painter.fillRect(QRect(940, 150, 230, 240), QColor(240, 238, 232));
    painter.setBrush(QColor(120, 150, 164));
    for (const int x : { 956, 1061 })
        for (const int y : { 166, 276 })
            painter.drawRect(x, y, 93, 98);
}

QImage createScene()
{
    QImage scene(frame_px, QImage::Format_RGB32);
    QPainter painter(&scene);
    painter.setRenderHint(QPainter::Antialiasing);
    drawWall(painter);
    drawDoor(painter);
    drawLamp(painter);
    drawWindow(painter);
    drawPlant(painter, 250);
    drawPlant(painter, 860);
    return scene;
}

} // namespace

CameraPicture::CameraPicture(QWidget *parent)
    : QWidget(parent)
    , m_scene(createScene())
    , m_crop(m_scene.rect())
{
    setAttribute(Qt::WA_OpaquePaintEvent); // what lies behind is not painted with each frame
    setProperty("hoxq_blinks", true); // a camera's picture changes by itself
}

void CameraPicture::setCrop(int x, int y, uint width, uint height)
{
    m_crop = QRect(x, y, int(width), int(height));
    update();
}

void CameraPicture::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(rect(), m_scene, m_crop);
    painter.fillRect(stampPlace(), QColor(0, 0, 0, 150));
    painter.setFont(ptFont(7));
    painter.setPen(Qt::white);
    painter.drawText(stampPlace(), Qt::AlignCenter,
        locale().toString(QDateTime::currentDateTime(), "yyyy-MM-dd  hh:mm:ss"));
}

QRect CameraPicture::stampPlace() const
{
    const QSize size = mmSize(44, 5);
    return { QPoint(mmX(2), height() - mmY(2) - size.height()), size };
}

void CameraPicture::showEvent(QShowEvent *)
{
    m_second.start(1000, this);
}

void CameraPicture::hideEvent(QHideEvent *)
{
    m_second.stop();
}

void CameraPicture::timerEvent(QTimerEvent *)
{
    update(stampPlace());
}
