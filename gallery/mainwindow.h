#pragma once

#include <QVector>
#include <QWidget>

class QListWidget;
class QScrollArea;
class QStackedWidget;

/// The shell: pages in a list at the left, the page at the right, the panel's figures at the foot.
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

private:
    QWidget *createSideBar();
    void setUpList();
    QScrollArea *createArea();
    void buildPage(int page);

    QListWidget *m_list;
    QStackedWidget *m_stack;
    QVector<QScrollArea *> m_areas;
};
