#include "gallery/widgets/ground.h"

#include <QPalette>
#include <QWidget>

void setGround(QWidget *widget, const QColor &color)
{
    QPalette colors = widget->palette();
    colors.setColor(QPalette::Window, color);
    widget->setPalette(colors);
    widget->setAutoFillBackground(true);
}
