#pragma once
// SPDX-License-Identifier: MIT

#include <QVector>
#include <QWidget>

class QScrollArea;
class QStackedWidget;

namespace vexo::hox::qt::ui {
class VexoFunctionButton;
}

/// The shell: pages as rows at the left, the page at the right, the panel's figures at the foot.
/// Its name is the one that the panel's stylesheet gives a ground.
class MainWindow : public QWidget
{
    Q_OBJECT

public:
    MainWindow();

    /// Selects a page, an index into pageList(); it is built at the first time.
    void showPage(int page);
    /// Grows the window until the page is seen without scrolling, and takes its scroll bars away.
    void showWholePage();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    using Row = vexo::hox::qt::ui::VexoFunctionButton;

    QWidget *createSideBar();
    QWidget *createRows();
    void buildPage(int index);
    void bringRowIntoView();

    QScrollArea *m_row_area;
    QStackedWidget *m_stack;
    QVector<Row *> m_rows;
    QVector<QScrollArea *> m_areas; // null until their page is shown
    int m_page = 0;
};
