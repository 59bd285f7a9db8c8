#pragma once
// SPDX-License-Identifier: MIT

#include "fuzz/target.h"
#include "ui/files/imagefile_p.h"

#include <QPainter>

/// Properties of an image file: it is read, drawn small, large and flat in time, and is of the size
/// asked for or none at all; read again it gives the same.
inline void checkImage(const uint8_t *data, size_t size, vexo::hox::qt::ui::ImageFile::Kind kind)
{
    using vexo::hox::qt::ui::ImageFile;
    application();
    const InputAsFile input(data, size);
    const TimeLimit limit;
    ImageFile file(input.path(), kind);
    ImageFile again(input.path(), kind);
    const QSize natural = file.read();
    require(natural == again.naturalSize(), "the same size");
    for (const QSize &px : { QSize(40, 30), QSize(700, 500), QSize(3000, 1) }) {
        const QImage image = file.image(px);
        require(image.isNull() || image.size() == px, "the size asked for");
        require(image.isNull() || natural.isValid(), "no picture without a size");
        require(again.pixmap(px).isNull() == image.isNull(), "the same picture");
    }
    QImage page(100, 100, QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    file.draw(&painter, QRectF(-1e6, 20, 2e6, 50));
    file.icon().paint(&painter, QRect(0, 0, 50, 50));
}
