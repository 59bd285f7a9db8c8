// SPDX-License-Identifier: MIT
#include "benchmarks/operations/operations.h"

#include <QApplication>
#include <QFrame>
#include <ScalingInfo>
#include <VexoColors>
#include <VexoLabel>
#include <VexoLineSpacer>
#include <VexoRuler>

#include <memory>

using namespace vexo::hox::qt::ui;

namespace bench {

namespace {

const QSize label_px(400, 50); // 40 x 5 mm
const QSize line_px(400, 4);

using Make = QWidget *(*)(QWidget *);

QString text()
{
    return QStringLiteral("Name of the device");
}

QWidget *makeLibraryLabel(QWidget *parent)
{
    return new VexoLabel(text(), parent);
}

// Looks like the library's: 7 pt at 10 px/mm, medium.
QLabel *makeStockLabel(QWidget *parent)
{
    auto *label = new QLabel(text(), parent);
    QFont font;
    font.setPixelSize(24);
    font.setWeight(QFont::Medium);
    label->setFont(font);
    label->setWordWrap(true);
    return label;
}

QWidget *makeFilledLabel(QWidget *parent)
{
    QLabel *label = makeStockLabel(parent);
    QPalette palette;
    palette.setColor(QPalette::Window, VexoColors::C0);
    palette.setColor(QPalette::WindowText, VexoColors::C3);
    label->setPalette(palette);
    label->setAutoFillBackground(true);
    return label;
}

QWidget *makeStyledLabel(QWidget *parent)
{
    QLabel *label = makeStockLabel(parent);
    label->setStyleSheet(QStringLiteral("QLabel { color: #3c3c3c; background: #ffffff; }"));
    return label;
}

QWidget *makeRuler(QWidget *parent)
{
    return new VexoRuler(parent, VexoRuler::MainMiddle);
}

QWidget *makeSpacer(QWidget *parent)
{
    auto *spacer = new VexoLineSpacer(parent);
    spacer->setIsVerticalSpacer(false);
    return spacer;
}

QWidget *makeFrame(QWidget *parent)
{
    auto *frame = new QFrame(parent);
    frame->setFrameShape(QFrame::HLine);
    frame->setFrameShadow(QFrame::Sunken);
    return frame;
}

QWidget *makeStyledFrame(QWidget *parent)
{
    auto *frame = new QFrame(parent);
    frame->setStyleSheet(QStringLiteral("QFrame { border: none; border-top: 1px solid #c8c8c8; "
                                        "border-bottom: 1px solid #ffffff; }"));
    return frame;
}

// A visible window with one of them.
struct Window
{
    Window(Make make, const QSize &px)
        : shown(make(&window))
    {
        shown->setGeometry(QRect(QPoint(0, 0), px));
        window.resize(px);
        window.show();
        QCoreApplication::processEvents();
    }

    QWidget window;
    QWidget *shown;
};

void addWidget(const std::string &what, const char *variant, Make make, const QSize &px)
{
    add(what + "-construct", variant, [=](int) {
        return [window = std::make_shared<Window>(make, px), make] {
            const std::unique_ptr<QWidget> widget(make(&window->window));
            widget->ensurePolished();
        };
    });
    add(what + "-repaint", variant, [=](int) {
        return [window = std::make_shared<Window>(make, px)] { window->shown->repaint(); };
    });
}

} // namespace

void addLabels()
{
    ScalingInfo::inst()->setPixels(1280, 800);
    ScalingInfo::inst()->setSizeMM(128, 80);
    addWidget("label", "library", makeLibraryLabel, label_px);
    addWidget("label", "stock", makeFilledLabel, label_px);
    addWidget("label", "styled", makeStyledLabel, label_px);
    addWidget("ruler", "library", makeRuler, line_px);
    addWidget("ruler", "stock", makeFrame, line_px);
    addWidget("ruler", "styled", makeStyledFrame, line_px);
    addWidget("spacer", "library", makeSpacer, line_px);
    addWidget("spacer", "stock", makeFrame, line_px);
    addWidget("spacer", "styled", makeStyledFrame, line_px);
}

} // namespace bench
