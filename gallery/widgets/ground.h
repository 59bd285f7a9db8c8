#pragma once
// SPDX-License-Identifier: MIT

class QColor;
class QWidget;

/// Fills \a widget with \a color; the rest of its palette stays.
void setGround(QWidget *widget, const QColor &color);
/// A level line of 1 px.
QWidget *createLine();
