#pragma once

class QColor;
class QWidget;

/// Fills \a widget with \a color; the rest of its palette stays.
void setGround(QWidget *widget, const QColor &color);
