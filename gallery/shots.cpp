// SPDX-License-Identifier: MIT
#include "gallery/shots.h"

#include "gallery/mainwindow.h"
#include "gallery/pagelist.h"

#include <ScalingInfo>

#include <QApplication>
#include <QDir>
#include <QImage>

#include <cstdio>
#include <stdexcept>

using vexo::hox::qt::ui::ScalingInfo;

namespace {

QImage picture(MainWindow &window)
{
    QImage image = window.grab().toImage();
    const ScalingInfo &scaling = *ScalingInfo::inst();
    image.setDotsPerMeterX(qRound(scaling.m_px_per_mm_x * 1000));
    image.setDotsPerMeterY(qRound(scaling.m_px_per_mm_y * 1000));
    return image;
}

} // namespace

QString shotName(int page)
{
    return QString("%1-%2.png").arg(page + 1, 2, 10, QChar('0')).arg(pageList().at(page).name);
}

void takeShots(MainWindow &window, const QVector<int> &pages, const QString &folder)
{
    const QSize panel = window.size();
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.show();
    QApplication::setActiveWindow(&window); // some grounds are those of an active window
    for (const int page : pages) {
        window.showPage(page);
        window.resize(panel);
        window.showWholePage();
        const QString file = QDir(folder).filePath(shotName(page));
        if (!picture(window).save(file))
            throw std::runtime_error("cannot write " + file.toStdString());
        std::printf("%s\n", qPrintable(file));
    }
}
