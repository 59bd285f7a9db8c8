// SPDX-License-Identifier: MIT
#include "panel/pagestack.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPropertyAnimation>

namespace vexo::hox::qt::panel {

PageStack::PageStack(QWidget *parent)
    : QWidget(parent)
{
}

PageStack::~PageStack() = default;

void PageStack::setSlideMs(int ms)
{
    m_slide_ms = qMax(0, ms);
    update();
}

void PageStack::addPage(const QString &name, const Make &make, Life life)
{
    Page &page = m_pages[name];
    page.make = make;
    page.life = life;
    page.is_replaced = page.widget && name == m_name;
    if (!page.widget || page.is_replaced)
        return;
    page.widget->deleteLater();
    page.widget = nullptr;
}

bool PageStack::open(const QString &name)
{
    if (name == m_name && page())
        return false;
    QStringList history = m_history;
    if (!m_name.isEmpty() && name != m_name)
        history += m_name;
    return goTo(name, history, false);
}

void PageStack::back()
{
    if (m_history.isEmpty())
        return;
    const QString name = m_history.last();
    goTo(name, m_history.mid(0, m_history.size() - 1), true);
}

void PageStack::home()
{
    if (!m_history.isEmpty())
        goTo(QString(m_history.first()), QStringList(), true);
}

bool PageStack::goTo(const QString &name, const QStringList &history, bool is_back)
{
    const auto found = m_pages.find(name);
    const QPointer<PageStack> self(this);
    QWidget *shown = found == m_pages.end() ? nullptr : made(name, found->second);
    if (!self || !shown)
        return false;
    if (shown != page())
        leave(is_back);
    const bool could_go_back = canGoBack();
    m_name = name;
    m_history = history;
    shown->setGeometry(rect());
    shown->lower(); // below the picture of the last one
    shown->show();
    updateGeometry();
    if (could_go_back != canGoBack())
        Q_EMIT canGoBackChanged(canGoBack());
    if (self)
        Q_EMIT opened(name);
    return true;
}

QWidget *PageStack::made(const QString &name, Page &page)
{
    if (page.widget || !page.make)
        return page.widget;
    const Make make = page.make; // it may add pages, or take this one away
    const QPointer<PageStack> self(this);
    QWidget *widget = make();
    if (!self || !widget)
        return nullptr;
    widget->hide(); // else it would come up before it has its size
    widget->setParent(this);
    if (widget->accessibleName().isEmpty())
        widget->setAccessibleName(widget->windowTitle().isEmpty() ? name : widget->windowTitle());
    m_pages[name].widget = widget;
    return widget;
}

QWidget *PageStack::page() const
{
    const auto found = m_pages.find(m_name);
    return found == m_pages.end() ? nullptr : found->second.widget.data();
}

void PageStack::leave(bool is_back)
{
    delete m_curtain;
    QWidget *last = page();
    if (!last)
        return;
    if (last->isAncestorOf(window()->focusWidget()))
        setFocus(); // else the toolkit would hand it to the next widget
    if (m_slide_ms > 0 && isVisible())
        slideAway(last, is_back);
    last->hide();
    Page &left = m_pages[m_name];
    if (left.life == Kept && !left.is_replaced)
        return;
    left.widget = nullptr;
    left.is_replaced = false;
    last->move(width(), 0); // the toolkit repaints what lay below a widget that is deleted
    last->deleteLater();
}

// The picture moves, and what it uncovers is painted once. The toolkit moves its pixels on the
// screen as long as it is opaque.
void PageStack::slideAway(QWidget *page, bool is_back)
{
    m_curtain = new QLabel(this);
    m_curtain->setAttribute(Qt::WA_OpaquePaintEvent);
    m_curtain->setPixmap(page->grab());
    m_curtain->setGeometry(rect());
    m_curtain->show();
    auto *slide = new QPropertyAnimation(m_curtain, "pos", m_curtain);
    slide->setDuration(m_slide_ms);
    slide->setEasingCurve(QEasingCurve::OutCubic);
    slide->setEndValue(QPoint(is_back ? width() : -width(), 0));
    connect(slide, &QAbstractAnimation::finished, m_curtain, &QObject::deleteLater);
    slide->start();
}

QSize PageStack::sizeHint() const
{
    return page() ? page()->sizeHint() : QWidget::sizeHint();
}

QSize PageStack::minimumSizeHint() const
{
    return page() ? page()->minimumSizeHint() : QWidget::minimumSizeHint();
}

void PageStack::resizeEvent(QResizeEvent *)
{
    delete m_curtain;
    if (page())
        page()->setGeometry(rect());
}

void PageStack::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Back && canGoBack())
        back();
    else
        QWidget::keyPressEvent(event);
}

} // namespace vexo::hox::qt::panel
