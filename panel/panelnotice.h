#pragma once
// SPDX-License-Identifier: MIT

#include "panel/hoxqpanel_export.h"

#include <QBasicTimer>
#include <QColor>
#include <QString>
#include <QWidget>

class QLabel;

namespace vexo::hox::qt::panel {

class RoundGround;

/// A line that comes and goes over a screen, at its lower or upper edge: "Saved". It wraps where it
/// is too long. While an OnScreenKeyboard of the window or an input method shows its keys at the
/// lower edge, it stays above them. What lies beside it is touched as usual; a tap on the line
/// sends it away. A second text takes the place of the first. Assistive technology is told of each
/// as an alert.
class HOXQPANEL_EXPORT PanelNotice : public QWidget
{
    Q_OBJECT

    /// How long it stays, ms. Default 4000; 0 and less: until it is tapped or hidden. Holds from
    /// the next tell() on.
    Q_PROPERTY(int m_ms READ ms WRITE setMs)
    /// Greatest width, mm. Default 100; less than the screen leaves. Negative ones and NaN count as
    /// 0. Holds from the next tell() on.
    Q_PROPERTY(double m_mm_width READ mmWidth WRITE setMmWidth)
    /// Distance from the edges of the screen, mm. Default 4. As above.
    Q_PROPERTY(double m_mm_margin READ mmMargin WRITE setMmMargin)
    /// Default C3.
    Q_PROPERTY(QColor m_background_color READ backgroundColor WRITE setBackgroundColor)
    /// Default C0.
    Q_PROPERTY(QColor m_text_color READ textColor WRITE setTextColor)

public:
    /// At \a edge of \a screen, which owns it: Qt::BottomEdge, or Qt::TopEdge. Not shown.
    PanelNotice(Qt::Edge edge, QWidget *screen);
    ~PanelNotice() override;

    int ms() const { return m_ms; }
    void setMs(int ms) { m_ms = ms; }
    double mmWidth() const { return m_mm_width; }
    void setMmWidth(double mm);
    double mmMargin() const { return m_mm_margin; }
    void setMmMargin(double mm);
    QColor backgroundColor() const;
    void setBackgroundColor(const QColor &color);
    QColor textColor() const { return m_text_color; }
    void setTextColor(const QColor &color);

    /// What was told last.
    QString text() const;

public Q_SLOTS:
    /// Shows \a text above all else on the screen. An empty one hides it.
    void tell(const QString &text);

Q_SIGNALS:
    /// It was tapped, and is hidden. It may be deleted here.
    void tapped();

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void place();
    void follow();

    const Qt::Edge m_edge;
    RoundGround *const m_ground;
    QLabel *const m_label;
    QColor m_text_color;
    int m_ms = 4000;
    double m_mm_width = 100;
    double m_mm_margin = 4;
    QBasicTimer m_timer;
};

} // namespace vexo::hox::qt::panel
