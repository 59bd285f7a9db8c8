#include "gallery/mainwindow.h"

#include "gallery/measures.h"
#include "gallery/page.h"
#include "gallery/pagelist.h"
#include "gallery/panelfoot.h"
#include "gallery/widgets/fingerscroll.h"

#include <CachedVectorIcon>
#include <VexoColors>

#include <QCoreApplication>
#include <QFontMetrics>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>

using namespace vexo::hox::qt::ui;

namespace {

const double side_bar_width_in_mm = 40;
const int toolkit_margin_px = 3; // in front of an item's text

QString listSheet()
{
    const QString sheet = "QListWidget { border: none; outline: none; }"
                          "QListWidget::item { color: %1; padding-left: %2px;"
                          " border-left: %3px solid transparent; }"
                          "QListWidget::item:selected { color: %4; background: %5;"
                          " border-left-color: %6; }";
    return sheet.arg(VexoColors::C3.name())
        .arg(qMax(0, mmX(4) - toolkit_margin_px))
        .arg(mmX(1))
        .arg(VexoColors::C0.name(), VexoColors::C4.name(), VexoColors::C7.name());
}

// Wide enough for the longest word: the titles wrap.
int sideBarWidth(const QFont &font)
{
    int word_px = 0;
    for (const PageEntry &page : pageList()) {
        const QStringList words = page.title.split(' ');
        for (const QString &word : words)
            word_px = qMax(word_px, QFontMetrics(font).horizontalAdvance(word));
    }
    return qMax(mmX(side_bar_width_in_mm), word_px + mmX(10));
}

QLabel *createLogo()
{
    CachedVectorIcon icon(":/widgetimages/vexo.svg");
    icon.setMmHeight(7);
    auto *logo = new QLabel;
    logo->setPixmap(icon.toPixmap());
    logo->setContentsMargins(mmX(4.1), mmY(6), 0, mmY(6));
    logo->setAccessibleName("vexo");
    return logo;
}

} // namespace

MainWindow::MainWindow()
    : m_list(new QListWidget)
    , m_stack(new QStackedWidget)
{
    setWindowTitle("HoxqUi gallery");
    setAttribute(Qt::WA_StyledBackground);
    for (int page = 0; page < pageList().size(); ++page)
        m_areas += createArea();
    setUpList();

    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->setSizeConstraint(QLayout::SetNoConstraint); // a small panel stays small
    layout->addWidget(createSideBar(), 0, 0);
    layout->addWidget(m_stack, 0, 1);
    layout->addWidget(new PanelFoot, 1, 0, 1, 2);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(0, 1);
}

void MainWindow::showPage(int page)
{
    m_list->setCurrentRow(page);
}

void MainWindow::showWholePage()
{
    QScrollArea *area = m_areas.at(m_stack->currentIndex());
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QCoreApplication::sendPostedEvents(); // lays out
    const QSize hidden(
        area->horizontalScrollBar()->maximum(), area->verticalScrollBar()->maximum());
    resize(size() + hidden);
    QCoreApplication::sendPostedEvents();
}

QWidget *MainWindow::createSideBar()
{
    auto *bar = new QWidget;
    bar->setFixedWidth(sideBarWidth(m_list->font()));
    bar->setAutoFillBackground(true);
    QPalette colors = palette();
    colors.setColor(QPalette::Window, VexoColors::C1);
    bar->setPalette(colors);

    auto *layout = new QVBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(createLogo());
    layout->addWidget(m_list, 1);
    return bar;
}

void MainWindow::setUpList()
{
    m_list->setStyleSheet(listSheet());
    m_list->setFont(ptFont(9, QFont::Normal));
    m_list->setWordWrap(true);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scrollByFinger(m_list);
    for (const PageEntry &page : pageList()) {
        auto *item = new QListWidgetItem(page.title, m_list);
        item->setSizeHint(mmSize(10, 10));
    }
    connect(m_list, &QListWidget::currentRowChanged, this, &MainWindow::buildPage);
}

QScrollArea *MainWindow::createArea()
{
    auto *area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    scrollByFinger(area);
    m_stack->addWidget(area);
    return area;
}

void MainWindow::buildPage(int page)
{
    if (page < 0)
        return;
    QScrollArea *area = m_areas.at(page);
    if (!area->widget())
        area->setWidget(pageList().at(page).build());
    m_stack->setCurrentIndex(page);
}
