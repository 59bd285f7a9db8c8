// SPDX-License-Identifier: MIT
#include "uitest/panelaudit.h"

#include "uitest/widgetpath_p.h"
#include "uitest/widgetwalk_p.h"

#include <QAbstractEventDispatcher>
#include <QBackingStore>
#include <QCoreApplication>
#include <QEventLoop>
#include <QHash>
#include <QImage>
#include <QPaintEvent>
#include <QTimer>

namespace vexo::hox::qt::uitest {

namespace {

const double least_waste_mm2 = 100; // less costs no more than it does to find it
const int least_times = 2; // once is no habit

double areaOf(const QRegion &px)
{
    double mm2 = 0;
    for (const QRect &rect : px) {
        const QSizeF mm = mmOf(rect.size());
        mm2 += mm.width() * mm.height();
    }
    return mm2;
}

// Where the toolkit paints a window, before it goes to the screen; null where that is no image.
const QImage *paintedImage(const QWidget *window)
{
    const QBackingStore *store = window ? window->window()->backingStore() : nullptr;
    const QPaintDevice *device
        = store ? const_cast<QBackingStore *>(store)->paintDevice() : nullptr;
    const bool is_image = device && device->devType() == QInternal::Image;
    return is_image ? static_cast<const QImage *>(device) : nullptr;
}

// The smallest rectangle around what differs within \a px.
QRect changeWithin(const QRect &px, const QImage &before, const QImage &after)
{
    QRect change;
    const QRect area = px & before.rect() & after.rect();
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if (before.pixel(x, y) != after.pixel(x, y))
                change |= QRect(x, y, 1, 1);
        }
    }
    return change;
}

const QWidget *widgetOf(const QObject *object)
{
    while (object && !object->isWidgetType())
        object = object->parent();
    return static_cast<const QWidget *>(object);
}

bool hasCursor(const QWidget *widget)
{
    for (; widget && !widget->isWindow(); widget = widget->parentWidget()) {
        if (widget->hasFocus())
            return widget->testAttribute(Qt::WA_InputMethodEnabled);
    }
    return false;
}

bool isDeclared(const QObject *object)
{
    for (const QObject *above = object; above; above = above->parent()) {
        if (above->property("hoxq_blinks").toBool())
            return true;
    }
    return hasCursor(widgetOf(object));
}

QString nameOf(const QObject *object)
{
    const QString name = object->objectName();
    const QString type = QString::fromLatin1(object->metaObject()->className());
    return name.isEmpty() ? type : QStringLiteral("%1 \"%2\"").arg(type, name);
}

Finding warn(QWidget *widget, const QRect &px, const char *rule, const QString &text)
{
    return findingAt(widget, px, rule, Finding::Warning, text);
}

/// Counts what goes on in a window while nobody touches it.
class IdleWatch : public QObject
{
public:
    explicit IdleWatch(QWidget *window);

    void run(int ms);
    QVector<Finding> findings(int ms) const;

protected:
    bool eventFilter(QObject *receiver, QEvent *event) override;

private:
    struct Paints
    {
        QPointer<QWidget> widget;
        int times = 0;
        bool is_declared = false;
        QRegion px; // all of it
        double mm2 = 0;
        int wasted_times = 0;
        double wasted_mm2 = 0;
        double changed_mm2 = 0;
    };
    struct Ticks
    {
        QPointer<QWidget> widget;
        QString name;
        int times = 0;
        bool is_declared = false;
    };

    void sleep();
    void countTick(const QObject *receiver);
    void countPaint(QWidget *widget, const QRegion &px);
    bool isCause(QWidget *widget) const;
    void countWaste(Paints *paints, const QRegion &px);
    void sumUp();
    void tellPaints(const QWidget *window, int ms, QVector<Finding> *findings) const;
    void tellTicks(const QWidget *window, int ms, QVector<Finding> *findings) const;
    void tellWakeUps(QWidget *window, int ms, QVector<Finding> *findings) const;

    const QPointer<QWidget> m_window;
    QTimer m_end;
    QHash<QWidget *, QRegion> m_round; // painted since the last sleep, px of the screen's window
    QHash<QWidget *, Paints> m_paints;
    QHash<const QObject *, Ticks> m_ticks;
    QImage m_before;
    int m_sleeps = 0;
    int m_rounds = 0; // with paints
};

IdleWatch::IdleWatch(QWidget *window)
    : m_window(window)
{
    m_end.setSingleShot(true);
    m_end.setTimerType(Qt::PreciseTimer);
}

// What is due is none of it.
void IdleWatch::run(int ms)
{
    const int rounds = 4;
    for (int i = 0; i < rounds; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
    if (!m_window)
        return;
    if (const QImage *image = paintedImage(m_window))
        m_before = image->copy();
    QEventLoop loop;
    connect(&m_end, &QTimer::timeout, &loop, &QEventLoop::quit);
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
        &IdleWatch::sleep);
    QCoreApplication::instance()->installEventFilter(this);
    m_end.start(ms);
    loop.exec();
    QCoreApplication::instance()->removeEventFilter(this);
    disconnect(QAbstractEventDispatcher::instance(), nullptr, this, nullptr);
    sumUp();
}

bool IdleWatch::eventFilter(QObject *receiver, QEvent *event)
{
    if (event->type() == QEvent::Timer && receiver != &m_end)
        countTick(receiver);
    else if (event->type() == QEvent::Paint && receiver->isWidgetType())
        countPaint(static_cast<QWidget *>(receiver), static_cast<QPaintEvent *>(event)->region());
    return false;
}

void IdleWatch::sleep()
{
    ++m_sleeps;
    sumUp();
}

// One without a widget may be for each window. A window has one for its repaints.
void IdleWatch::countTick(const QObject *receiver)
{
    if (receiver->isWindowType())
        return;
    QWidget *window = m_window;
    auto *widget = const_cast<QWidget *>(widgetOf(receiver));
    if (!window || (widget && !window->isAncestorOf(widget)))
        return;
    Ticks &ticks = m_ticks[receiver];
    ticks.widget = widget ? widget : window;
    ticks.name = nameOf(receiver);
    ticks.is_declared = isDeclared(receiver);
    ++ticks.times;
}

void IdleWatch::countPaint(QWidget *widget, const QRegion &px)
{
    const QWidget *window = m_window;
    if (!window || !window->isAncestorOf(widget))
        return;
    const QPoint corner = placeIn(widget->window(), widget, widget->rect()).topLeft();
    m_round[widget] += px.translated(corner);
}

// A widget that lets something shine through makes the toolkit paint what lies below it; one that
// is painted as a whole takes those in it along.
bool IdleWatch::isCause(QWidget *widget) const
{
    QRegion beside = m_round.value(widget);
    for (auto it = m_round.cbegin(); it != m_round.cend(); ++it) {
        if (it.key() != widget && widget->isAncestorOf(it.key()))
            beside -= it.value();
    }
    return !beside.isEmpty();
}

void IdleWatch::countWaste(Paints *paints, const QRegion &px)
{
    const QImage *after = paintedImage(m_window);
    if (!after || m_before.isNull())
        return;
    QRegion change;
    for (const QRect &rect : px)
        change += changeWithin(rect, m_before, *after);
    const double changed = areaOf(change.boundingRect());
    const double wasted = areaOf(px) - changed;
    if (wasted < qMax(least_waste_mm2, changed))
        return;
    ++paints->wasted_times;
    paints->wasted_mm2 += areaOf(px);
    paints->changed_mm2 += changed;
}

void IdleWatch::sumUp()
{
    for (auto it = m_round.cbegin(); it != m_round.cend(); ++it) {
        const QWidget *above = it.key()->parentWidget();
        while (above
            && !(m_round.contains(const_cast<QWidget *>(above))
                && isCause(const_cast<QWidget *>(above))))
            above = above->isWindow() ? nullptr : above->parentWidget();
        if (above || !isCause(it.key()))
            continue;
        Paints &paints = m_paints[it.key()];
        paints.widget = it.key();
        paints.is_declared = isDeclared(it.key());
        paints.px += it.value();
        paints.mm2 += areaOf(it.value());
        ++paints.times;
        countWaste(&paints, it.value());
    }
    if (m_round.isEmpty())
        return;
    ++m_rounds;
    if (const QImage *image = paintedImage(m_window))
        m_before = image->copy();
    m_round.clear();
}

QVector<Finding> IdleWatch::findings(int ms) const
{
    QVector<Finding> findings;
    QWidget *window = m_window;
    if (!window)
        return findings;
    tellPaints(window, ms, &findings);
    tellTicks(window, ms, &findings);
    tellWakeUps(window, ms, &findings);
    return findings;
}

void IdleWatch::tellPaints(const QWidget *window, int ms, QVector<Finding> *findings) const
{
    for (const Paints &paints : m_paints) {
        QWidget *widget = paints.widget;
        if (!widget || paints.times < least_times)
            continue;
        const QPoint corner = window->mapFrom(window->window(), QPoint(0, 0));
        const QRect px = paints.px.boundingRect().translated(corner);
        const auto mm2 = [](double sum, int times) { return QString::number(qRound(sum / times)); };
        if (!paints.is_declared)
            findings->append(warn(widget, px, "idle-repaint",
                QStringLiteral("painted %1 times in %2 ms, %3 mm² each")
                    .arg(QString::number(paints.times), QString::number(ms),
                        mm2(paints.mm2, paints.times))));
        if (paints.wasted_times > 0)
            findings->append(warn(widget, px, "wasted-repaint",
                QStringLiteral("painted %1 mm² where %2 mm² changed")
                    .arg(mm2(paints.wasted_mm2, paints.wasted_times),
                        mm2(paints.changed_mm2, paints.wasted_times))));
    }
}

void IdleWatch::tellTicks(const QWidget *window, int ms, QVector<Finding> *findings) const
{
    for (const Ticks &ticks : m_ticks) {
        QWidget *widget = ticks.widget;
        if (!widget || ticks.is_declared || ticks.times < least_times)
            continue;
        findings->append(warn(widget, placeIn(window, widget, widget->rect()), "idle-timer",
            QStringLiteral("%1 ticked %2 times in %3 ms")
                .arg(ticks.name)
                .arg(ticks.times)
                .arg(ms)));
    }
}

// By other means than timers: sockets, threads, posted events.
void IdleWatch::tellWakeUps(QWidget *window, int ms, QVector<Finding> *findings) const
{
    int ticks = 0;
    int declared = 0;
    for (const Ticks &each : m_ticks) {
        ticks += each.times;
        declared += each.is_declared ? each.times : 0;
    }
    const int wake_ups = m_sleeps - 1; // the first sleep follows our own start
    const int allowed = ticks + m_rounds + least_times;
    if (wake_ups > allowed)
        findings->append(warn(window, window->rect(), "idle-timer",
            QStringLiteral("woke up %1 times in %2 ms, %3 times for timers, %4 of them declared")
                .arg(wake_ups)
                .arg(ms)
                .arg(ticks)
                .arg(declared)));
}

} // namespace

QVector<Finding> PanelAudit::idle(QWidget *window, int ms)
{
    if (!window || !window->isVisible() || ms <= 0)
        return QVector<Finding>();
    IdleWatch watch(window);
    watch.run(ms);
    return watch.findings(ms);
}

} // namespace vexo::hox::qt::uitest
