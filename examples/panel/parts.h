#pragma once
// SPDX-License-Identifier: MIT

#include <QColor>
#include <QFont>
#include <QSize>
#include <QString>

class QLabel;
class QWidget;

namespace vexo::hox::qt::ui {
class VexoHorizontalTextIconButton;
class VexoIconButton;
} // namespace vexo::hox::qt::ui

/// The colours of all screens, by day or by night.
struct Look
{
    QColor ground; ///< of a screen
    QColor surface; ///< of a head, a row, a tile
    QColor ink; ///< of texts and icons
    QColor faint; ///< of what is less important
    QColor line; ///< between surfaces
    QColor pressed; ///< surface under a finger
    QColor pressed_ink; ///< what is written on it
    QString folder; ///< of the images

    static const Look &day();
    static const Look &night();

    /// The file of an image in the ink of this look.
    QString icon(const QString &name) const;
    /// The same as it looks on a pressed surface.
    QString pressedIcon(const QString &name) const;
};

/// Whole pixels of the panel.
int mmX(double mm);
int mmY(double mm);
QSize mmSize(double width, double height);
/// The application's font, \a pt high.
QFont ptFont(double pt, int weight = QFont::Medium);

void setGround(QWidget *widget, const QColor &color);
void setInk(QLabel *label, const QColor &color);
/// A label without a text.
QLabel *createText(double pt, int weight = QFont::Medium);

/// A row with a value at the right and an arrow; dress() gives it colours.
vexo::hox::qt::ui::VexoHorizontalTextIconButton *createRow();
void dress(vexo::hox::qt::ui::VexoHorizontalTextIconButton *row, const Look &look);
/// A button of an icon alone, 12 mm wide and high.
vexo::hox::qt::ui::VexoIconButton *createIconButton();
void dress(vexo::hox::qt::ui::VexoIconButton *button, const Look &look, const QString &icon);
