// SPDX-License-Identifier: MIT
#include "gallery/mainwindow.h"

#include "gallery/measures.h"
#include "gallery/page.h"
#include "gallery/pagelist.h"
#include "gallery/panelfoot.h"
#include "gallery/widgets/fingerscroll.h"
#include "gallery/widgets/ground.h"

#include <CachedVectorIcon>
#include <VexoColors>
#include <VexoFunctionButton>
#include <VexoVerticalScrollArea>

#include <QCoreApplication>
#include <QFontMetrics>
#include <QGridLayout>
#include <QLabel>
#include <QScrollBar>
#include <QStackedWidget>
#include <QVBoxLayout>

using namespace vexo::hox::qt::ui;

namespace {

const double least_side_bar_width_in_mm = 38;
const double indent_in_mm = 5;

// Wide enough for the longest title on one line, its arrow and the scroll bar.
int sideBarWidth(const QFont &font)
{
    int title_px = 0;
    for (const PageEntry &page : pageList())
        title_px = qMax(title_px, QFontMetrics(font).horizontalAdvance(page.title));
    return qMax(mmX(least_side_bar_width_in_mm), title_px + mmX(indent_in_mm + 8.5));
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

QScrollArea *createRowArea()
{
    auto *area = new VexoVerticalScrollArea;
    setNarrowScrollBar(area);
    area->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    return area;
}

QScrollArea *createArea(Page::Kind kind)
{
    if (kind == Page::Rows)
        return createRowArea();
    auto *area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    if (kind == Page::Controls)
        scrollByFinger(area);
    return area;
}

} // namespace

MainWindow::MainWindow()
    : m_row_area(createRowArea())
    , m_stack(new QStackedWidget)
    , m_areas(pageList().size())
{
    setWindowTitle("HoxqUi gallery");
    setAttribute(Qt::WA_StyledBackground);

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
    m_rows.at(page)->setChecked(true);
    bringRowIntoView();
}

void MainWindow::showWholePage()
{
    QScrollArea *area = m_areas.at(m_page);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QCoreApplication::sendPostedEvents(); // lays out
    const QSize hidden(
        area->horizontalScrollBar()->maximum(), area->verticalScrollBar()->maximum());
    resize(size() + hidden);
    QCoreApplication::sendPostedEvents();
}

void MainWindow::resizeEvent(QResizeEvent *)
{
    bringRowIntoView();
}

void MainWindow::showEvent(QShowEvent *)
{
    bringRowIntoView(); // the rows have their places only now
}

QWidget *MainWindow::createSideBar()
{
    m_row_area->setWidget(createRows());
    auto *bar = new QWidget;
    setGround(bar, VexoColors::C1);
    bar->setFixedWidth(sideBarWidth(m_rows.first()->getLabelInstance()->font()));
    auto *layout = new QVBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(createLogo());
    layout->addWidget(m_row_area, 1);
    return bar;
}

QWidget *MainWindow::createRows()
{
    auto *rows = new QWidget;
    auto *column = new QVBoxLayout(rows);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    for (int page = 0; page < pageList().size(); ++page) {
        auto *row = new Row(rows, Row::FullsizeRadiobuttonType);
        row->setText(pageList().at(page).title);
        row->setMmIndent(indent_in_mm);
        row->setMmRightSpacer(1);
        connect(row, &Row::stateChanged, this, [this, page](bool is_chosen) {
            if (is_chosen)
                buildPage(page);
        });
        column->addWidget(row);
        m_rows += row;
    }
    column->addStretch();
    return rows;
}

void MainWindow::buildPage(int index)
{
    QScrollArea *&area = m_areas[index];
    if (!area) {
        Page *page = pageList().at(index).build();
        area = createArea(page->kind());
        m_stack->addWidget(area);
        area->ensurePolished(); // else what is inside would inherit the ground of the sheet
        area->setWidget(page);
    }
    m_page = index;
    m_stack->setCurrentWidget(area);
}

void MainWindow::bringRowIntoView()
{
    m_row_area->ensureWidgetVisible(m_rows.at(m_page), 0, 0);
}
