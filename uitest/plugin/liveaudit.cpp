// SPDX-License-Identifier: MIT
#include "uitest/plugin/liveaudit.h"

#include <QApplication>
#include <QEvent>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QPainter>
#include <QWidget>

#include <cmath>
#include <stdexcept>

using vexo::hox::qt::uitest::PanelAudit;

namespace {

Q_LOGGING_CATEGORY(channel, "hoxq.audit")

const int rest_ms = 500; // without anything new on the screen

/// A red line around a widget, which touches go through.
class Frame : public QWidget
{
    Q_OBJECT

public:
    Frame(QWidget *window, const QRect &px)
        : QWidget(window)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
        setGeometry(px.adjusted(-2, -2, 2, 2) & window->rect());
        show();
        raise();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setPen(QPen(Qt::red, 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
};

bool isAudited(const QWidget *window)
{
    return window->isVisible() && window->windowType() != Qt::Desktop
        && window->windowType() != Qt::ToolTip;
}

QString severityOf(const vexo::hox::qt::uitest::Finding &finding)
{
    const bool is_error = finding.severity == vexo::hox::qt::uitest::Finding::Error;
    return QLatin1String(is_error ? "error" : "warning");
}

QByteArray jsonOf(const vexo::hox::qt::uitest::Finding &finding)
{
    const auto rounded = [](double mm) { return std::round(mm * 10) / 10; };
    const QRectF &mm = finding.mm;
    const QJsonObject object{ { QStringLiteral("severity"), severityOf(finding) },
        { QStringLiteral("rule"), finding.rule }, { QStringLiteral("where"), finding.where },
        { QStringLiteral("mm"),
            QJsonArray{
                rounded(mm.x()), rounded(mm.y()), rounded(mm.width()), rounded(mm.height()) } },
        { QStringLiteral("text"), finding.text } };
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

} // namespace

LiveAudit::LiveAudit(const QString &specification)
{
    const QStringList options = specification.split(QLatin1Char(':'), Qt::SkipEmptyParts);
    for (const QString &option : options)
        readOption(option);
    QCoreApplication::instance()->installEventFilter(this);
}

LiveAudit::~LiveAudit() = default;

void LiveAudit::readOption(const QString &option)
{
    const QString value = option.section(QLatin1Char('='), 1);
    if (option.startsWith(QLatin1String("out="))) {
        m_file.setFileName(value);
        if (!m_file.open(QIODevice::WriteOnly | QIODevice::Append))
            qCWarning(channel, "%s cannot be written to", qPrintable(value));
    } else if (option.startsWith(QLatin1String("frames="))) {
        m_has_frames = value != QLatin1String("0");
    } else {
        qCWarning(channel, "there is no option %s", qPrintable(option));
    }
}

// Also the widgets of a page that comes up.
bool LiveAudit::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show && watched->isWidgetType() && !m_is_auditing) {
        m_due.insert(static_cast<QWidget *>(watched)->window());
        m_timer.start(rest_ms, this);
    }
    return false;
}

void LiveAudit::timerEvent(QTimerEvent *)
{
    m_timer.stop();
    const QSet<QWidget *> due = m_due;
    m_due.clear();
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (due.contains(window) && isAudited(window))
            audit(window);
    }
}

void LiveAudit::audit(QWidget *window)
{
    m_is_auditing = true;
    const auto frames = window->findChildren<Frame *>();
    qDeleteAll(frames);
    try {
        const QVector<Finding> findings = PanelAudit::all(window, 0);
        for (const Finding &finding : findings)
            tell(finding);
        if (m_has_frames)
            frame(findings);
    } catch (const std::range_error &error) { // the screen tells no size
        qCWarning(channel, "%s", error.what());
    }
    m_is_auditing = false;
}

void LiveAudit::tell(const Finding &finding)
{
    const QString line = PanelAudit::report({ finding }).trimmed();
    if (m_told.contains(line))
        return;
    m_told.insert(line);
    if (!m_file.isOpen()) {
        qCWarning(channel, "%s", qPrintable(line));
        return;
    }
    m_file.write(jsonOf(finding));
    m_file.flush();
}

void LiveAudit::frame(const QVector<Finding> &findings)
{
    QSet<QWidget *> framed;
    for (const Finding &finding : findings) {
        QWidget *widget = finding.widget;
        if (!widget || framed.contains(widget))
            continue;
        framed.insert(widget);
        QWidget *window = widget->window();
        new Frame(window, QRect(widget->mapTo(window, QPoint()), widget->size())); // owned by it
    }
}

#include "liveaudit.moc"
