#pragma once
// SPDX-License-Identifier: MIT

#include "support/emissions.h"
#include "support/touchsubjects.h"
#include "support/virtualclock.h"

#include <VexoVerticalScrollArea>
#include <VexoVerticalScrollContent>

#include <QLayout>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTest>
#include <QWindow>

/// The finger of the real window system. Two quick taps at one place are a double click.
class Finger
{
public:
    explicit Finger(QWidget *screen)
        : m_window(screen->windowHandle())
    {
    }

    void press(const QPoint &at)
    {
        m_at = at;
        tellTime();
        QTest::mousePress(m_window, Qt::LeftButton, Qt::NoModifier, at);
    }

    /// In steps of 10 ms.
    void move(const QPoint &way, int steps = 1)
    {
        const QPoint from = m_at;
        for (int i = 1; i <= steps; ++i) {
            m_at = from + way * i / steps;
            tellTime();
            QTest::mouseMove(m_window, m_at);
            virtualclock::pass(10);
        }
    }

    void lift()
    {
        tellTime();
        QTest::mouseRelease(m_window, Qt::LeftButton, Qt::NoModifier, m_at);
    }

    void clickRight()
    {
        tellTime();
        QTest::mouseClick(m_window, Qt::RightButton, Qt::NoModifier, m_at);
    }

    void setPlace(const QPoint &at) { m_at = at; }
    QPoint place() const { return m_at; }

private:
    static void tellTime() { QTest::lastMouseTimestamp = virtualclock::ms(); }

    QWindow *const m_window;
    QPoint m_at; // px of the window
};

/// A window with two pages; on the first one what is touched, alone or between the rows of a list
/// that can be scrolled.
class TouchScreen : public QWidget
{
public:
    explicit TouchScreen(const QSize &px = QSize(400, 500))
    {
        resize(px);
        pages = new QStackedWidget(this);
        pages->resize(size());
        page = new QWidget;
        pages->addWidget(page);
        pages->addWidget(new QWidget);
    }

    /// In a column of \a width px, with rows of 50 px above and below.
    void addToList(
        const QVector<QWidget *> &widgets, int rows_above, int rows_below, int width = 400)
    {
        list = new vexo::hox::qt::ui::VexoVerticalScrollArea(page);
        list->resize(width, height());
        auto *content = new vexo::hox::qt::ui::VexoVerticalScrollContent;
        addSpace(content, rows_above);
        for (QWidget *widget : widgets)
            content->layout()->addWidget(widget);
        addSpace(content, rows_below);
        list->setWidget(content);
    }

    bool appear()
    {
        show();
        for (int i = 0; i < 10 && !windowHandle()->isExposed(); ++i)
            QCoreApplication::processEvents();
        return windowHandle()->isExposed();
    }

    /// Where \a part is touched, px of the window: near its right end, or for a slider its middle.
    QPoint placeOf(const QWidget *part) const
    {
        const bool is_slider = part->inherits("QSlider");
        return part->mapTo(this,
            QPoint(part->width() / (is_slider ? 2 : 1) - (is_slider ? 0 : 4), part->height() / 2));
    }

    QStackedWidget *pages = nullptr;
    QWidget *page = nullptr;
    vexo::hox::qt::ui::VexoVerticalScrollArea *list = nullptr;

private:
    static void addSpace(QWidget *content, int rows)
    {
        auto *space = new QWidget;
        space->setFixedSize(100, 50 * rows);
        content->layout()->addWidget(space);
    }
};
