// SPDX-License-Identifier: MIT
#include "gallery/pages/updatewindowpage.h"

#include "gallery/measures.h"
#include "gallery/widgets/busysign.h"

#include <ScalingInfo>
#include <UpdateMainWindow>
#include <UpdatePage>
#include <VexoColors>
#include <VexoPushButton>

#include <QEvent>
#include <QHBoxLayout>
#include <QTimer>

using namespace vexo::hox::qt::ui;

namespace {

const int shown_ms = 8000;

// In mm, from edge to edge of \a window; half a pixel more, since the mm are cut to pixels.
QSizeF sizeInMm(const QWidget *window)
{
    const ScalingInfo *scaling = ScalingInfo::inst();
    return QSizeF(double(scaling->px2mm_X(float(window->width()) + 0.5F)),
        double(scaling->px2mm_Y(float(window->height()) + 0.5F)));
}

// At the foot of \a window, turning for as long as that lives.
void addBusySign(QWidget *window)
{
    auto *sign = new BusySign(BusySign::ringFiles("C0"), 10, 100);
    sign->setParent(window);
    sign->move((window->width() - sign->width()) / 2, window->height() - 2 * sign->height());
    sign->setTurning(true);
}

} // namespace

UpdateWindowPage::UpdateWindowPage()
    : Page("Update window",
        "What a panel shows while an update runs. It has no ground of its own: its logo is made "
        "for a dark one, which a stylesheet of the application gives.")
{
    addUpdatePage();
    addUpdateWindow();
}

bool UpdateWindowPage::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::KeyPress)
        return static_cast<QWidget *>(watched)->close();
    return Page::eventFilter(watched, event);
}

void UpdateWindowPage::addUpdatePage()
{
    addSection("UpdatePage");
    auto *page = new UpdatePage;
    page->setObjectName("updateScreen");
    page->setAttribute(Qt::WA_StyledBackground);
    const QString sheet = "#updateScreen { background: %1; } QLabel { color: %2; }";
    page->setStyleSheet(sheet.arg(VexoColors::C3.name(), VexoColors::C0.name()));
    page->setFixedSize(mmSize(96, 60)); // in the proportions of a window of 152 x 95 mm
    addBlock(page);
}

void UpdateWindowPage::addUpdateWindow()
{
    addSection("UpdateMainWindow");
    auto *button = new VexoPushButton;
    button->setText("Open");
    button->setFixedWidth(mmX(36));
    connect(button, &VexoPushButton::clicked, this, &UpdateWindowPage::openWindow);
    auto *row = new QHBoxLayout;
    row->setSpacing(mmX(4));
    row->addWidget(button);
    row->addWidget(createText("Over the whole window, with a busy animation of the application. "
                              "It closes by itself after 8 s, or when it is touched."),
        1);
    addBlock(row);
}

void UpdateWindowPage::openWindow()
{
    const QSizeF mm = sizeInMm(window());
    auto *update = new UpdateMainWindow(this, float(mm.width()), float(mm.height()));
    const QString sheet = "background: %1; color: %2;";
    update->setStyleSheet(sheet.arg(VexoColors::C3.name(), VexoColors::C0.name()));
    update->setAttribute(Qt::WA_DeleteOnClose);
    update->setWindowFlag(Qt::FramelessWindowHint);
    update->move(window()->geometry().topLeft());
    update->installEventFilter(this);
    addBusySign(update);
    auto *end = new QTimer(update);
    connect(end, &QTimer::timeout, update, &QWidget::close);
    end->start(shown_ms);
    update->show();
}
