// SPDX-License-Identifier: MIT
#include "options.h"
#include "panelwindow.h"
#include "walk/walk.h"

#include <Panel>
#include <ScalingInfo>

#include <QApplication>
#include <QPainter>
#include <QTest>

#include <cstdio>
#include <stdexcept>

using namespace vexo::hox::qt::ui;

namespace {

const int columns = 4;
const int frame_width = 400; // px
const int gap = 16;
const int caption_height = 30;

struct Frame
{
    QPixmap picture;
    QString caption;
};

QImage strip(const QVector<Frame> &frames)
{
    const QSize cell(frame_width + gap, frames.first().picture.height() + caption_height + gap);
    const int rows = (frames.size() + columns - 1) / columns;
    QImage image(gap + columns * cell.width(), gap + rows * cell.height(), QImage::Format_RGB32);
    image.fill(QColor(24, 24, 24));
    QPainter painter(&image);
    QFont font;
    font.setPixelSize(15);
    font.setStretch(QFont::Unstretched);
    painter.setFont(font);
    painter.setPen(Qt::white);
    for (int i = 0; i < frames.size(); ++i) {
        const QPoint at(gap + i % columns * cell.width(), gap + i / columns * cell.height());
        painter.drawPixmap(at, frames.at(i).picture);
        painter.drawText(QRect(at + QPoint(0, frames.at(i).picture.height()),
                             QSize(frame_width, caption_height)),
            Qt::AlignVCenter, QString("%1  %2").arg(i + 1).arg(frames.at(i).caption));
    }
    return image;
}

void film(PanelWindow *panel, const QString &file)
{
    panel->show();
    if (!QTest::qWaitForWindowExposed(panel))
        throw std::runtime_error("the window does not come up");
    QVector<Frame> frames;
    walk(panel, [&](const QString &step) {
        QTest::qWait(100);
        frames.append({ panel->grab().scaledToWidth(frame_width, Qt::SmoothTransformation), step });
    });
    if (!strip(frames).save(file))
        throw std::runtime_error("cannot write " + file.toStdString());
}

} // namespace

/// panelwalk FILE [--panel WxH@WxH]: a film strip of a visitor's walk.
int main(int argc, char *argv[])
{
    try {
        QApplication application(argc, argv);
        const QStringList arguments = QApplication::arguments();
        if (arguments.size() < 2)
            throw std::invalid_argument("which file?");
        setUpPanel(&application, Options::read(arguments.mid(2)));
        PanelWindow panel;
        panel.resize(ScalingInfo::inst()->m_pixels);
        film(&panel, arguments.at(1));
        return EXIT_SUCCESS;
    } catch (const std::exception &error) {
        std::fprintf(stderr, "panelwalk: %s\n", error.what());
        return EXIT_FAILURE;
    }
}
