#pragma once
// SPDX-License-Identifier: MIT

#include <PanelAudit>

#include <QBasicTimer>
#include <QFile>
#include <QSet>

/// Audits each window of the application 500 ms after something was shown in it, and tells each
/// finding once: as a line of the log channel hoxq.audit, or as an object of JSON on a line of a
/// file. It looks at sizes, contrasts, texts and names.
class LiveAudit : public QObject
{
public:
    /// \a specification has options with a colon between: "out=FILE" for the file, "frames=1" to
    /// draw a red frame over each widget that has a finding.
    explicit LiveAudit(const QString &specification);
    ~LiveAudit() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    using Finding = vexo::hox::qt::uitest::Finding;

    void readOption(const QString &option);
    void audit(QWidget *window);
    void tell(const Finding &finding);
    void frame(const QVector<Finding> &findings);

    QBasicTimer m_timer;
    QSet<QWidget *> m_due; // windows; compared only
    QSet<QString> m_told;
    QFile m_file;
    bool m_has_frames = false;
    bool m_is_auditing = false;
};
