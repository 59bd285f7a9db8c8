#pragma once

#include <QBasicTimer>
#include <QObject>
#include <QPointer>
#include <QRegion>
#include <QVector>
#include <QWidget>

namespace vexo::hox::qt::ui {

class VexoFunctionButton;

/// Makes scrolling cheap: the toolkit moves the pixels of an opaque widget and draws any other
/// anew. So the content of a list counts as opaque while it scrolls and opaque rows hide all that
/// is seen of it. Rows out of sight then do not count as opaque: the toolkit adds up the areas of
/// all that are at each step, which for hundreds costs more than to draw a new one.
class OpaqueRows : public QObject
{
public:
    /// Belongs to \a content.
    explicit OpaqueRows(QWidget *content);

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    void begin();
    void follow();
    void claim(bool is_covered);
    void reveal(const QRegion &bare);
    void end();

    QWidget *const m_content;
    QBasicTimer m_scrolling;
    QRegion m_opaque; // what rows hide, as long as the timer runs
    QVector<QPointer<VexoFunctionButton>> m_rows;
    bool m_has_moved = false; // since the timer's last tick
    bool m_is_claimed = false;
};

} // namespace vexo::hox::qt::ui
