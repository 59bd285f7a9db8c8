#pragma once
// SPDX-License-Identifier: MIT

#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <QString>

/// Makes icons of one colour, the "file" being its name: what a button shows can be read back.
template <typename Button>
class ColorButton : public Button
{
public:
    using Button::Button;

    QIcon compute(const QString &file) override
    {
        QPixmap pixmap(4, 4);
        pixmap.fill(QColor(file));
        return file.isEmpty() ? QIcon() : QIcon(pixmap);
    }
};

/// The colour of an icon's first pixel as "#rrggbb", empty for a null icon.
inline QString colorOf(const QIcon &icon)
{
    const QPixmap pixmap = icon.pixmap(4, 4);
    return pixmap.isNull() ? QString() : pixmap.toImage().pixelColor(0, 0).name();
}
