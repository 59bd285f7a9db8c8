#pragma once
// SPDX-License-Identifier: MIT

#include "support/pixels.h"

#include <QCoreApplication>
#include <QImage>
#include <QPixmap>
#include <QScreen>
#include <QTest>
#include <QWidget>
#include <QWindow>

/// What the screen shows of \a window.
inline QImage shownOnScreen(const QWidget &window)
{
    return window.screen()
        ->grabWindow(window.winId())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

/// Lets everything that is due be laid out and painted.
inline void settle()
{
    const int rounds = 4;
    for (int i = 0; i < rounds; ++i) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

/// Empty where the screen shows what a full repaint of \a window would paint, within \a step of
/// 255: the toolkit smoothes a shape otherwise where only a part of it is repainted.
inline QRect wrongPixels(QWidget &window, int step = 0)
{
    const QImage shown = shownOnScreen(window);
    const QImage painted = window.grab().toImage().convertToFormat(QImage::Format_RGB32);
    if (shown.size() != painted.size())
        return QRect(QPoint(), painted.size().expandedTo(QSize(1, 1)));
    QRect wrong;
    for (int y = 0; y < shown.height(); ++y) {
        const auto *left = reinterpret_cast<const QRgb *>(shown.constScanLine(y));
        const auto *right = reinterpret_cast<const QRgb *>(painted.constScanLine(y));
        for (int x = 0; x < shown.width(); ++x) {
            if (differ(left[x], right[x], step))
                wrong |= QRect(x, y, 1, 1);
        }
    }
    return wrong;
}
