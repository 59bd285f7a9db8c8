// SPDX-License-Identifier: MIT
//! [page]
#include <RotationPixmap>

#include <QLabel>

using namespace vexo::hox::qt::ui;

// A busy sign of 10 x 10 mm that turns until the label is gone.
void showBusy(QLabel *label, const QStringList &files)
{
    auto *rotation = new RotationPixmap(files, 10, 10);
    QObject::connect(rotation, &RotationPixmap::pixmapRotated, label, &QLabel::setPixmap);
    QObject::connect(label, &QObject::destroyed, rotation, [rotation] { delete rotation; });
    rotation->startRotating();
}
//! [page]
