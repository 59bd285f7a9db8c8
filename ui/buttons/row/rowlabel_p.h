#pragma once
// SPDX-License-Identifier: MIT

#include "ui/painting/renderingpair_p.h"
#include "ui/painting/styledbackground_p.h"

#include <QColor>
#include <QFont>
#include <QLabel>

class QImage;

namespace vexo::hox::qt::ui {

/// The text of a row: a label like any other, but drawn once for each of two looks and then copied
/// together with the row's ground, as long as the row is seen. To lay out and blend the letters is
/// most of what a row costs.
class RowLabel : public QLabel
{
public:
    explicit RowLabel(QWidget *parent);

    /// As high as the text is in the width that the layout gave. The toolkit asks for the height of
    /// some width of its own, and the row would cut what is wrapped in a narrower one.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width_px) const override;
    /// Whether the text lies on one line in \a width_px, found without measuring it: false for
    /// most texts that fill the width and for rare letters.
    bool isSurelyOneLine(int width_px) const;
    /// px, with margins, of a text of which that is true.
    int lineHeight() const;
    void setFontWeight(int weight);
    /// Replaces the label's palette by the application's with this text colour, if it is another
    /// one. In a paint of the row of \a painted.
    void setInk(const QColor &ink, const QRegion &painted);
    /// Called by the row in each paint, before it has a painter: the label lies on \a ground.
    void prepare(const QColor &ground);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    QPaintDevice *redirected(QPoint *offset) const override;

private:
    // Everything that can change without an event.
    struct Look
    {
        QString text;
        int indent = 0;
        int margin = 0;
        bool is_wrapped = false;
        Qt::TextFormat format = Qt::AutoText;
        Qt::Alignment alignment;
        QColor ink;
        QColor ground;

        bool operator==(const Look &other) const;
    };
    // A text on one line, px.
    struct Line
    {
        QString text;
        QFont font;
        int width = 0;
        int height = 0;
        int longest_word = 0;
        int average_letter = 0;
    };

    QColor ink() const;
    Look lookOfNow(const QColor &ground) const;
    Rendering renderOn(const QColor &ground);
    void paintAnew(QPaintEvent *event);
    bool isPlain() const;
    const Line &line() const;
    QSize aroundText() const;
    bool isHintedAsLine() const;

    bool m_is_laid_out = false;
    mutable Line m_line; // of the text that was measured last
    StyledBackground m_styled_background;
    RenderingPair<Look> m_renderings;
    Rendering m_shown; // for the paint to come; null to paint as any label
    QImage *m_render_target = nullptr; // while it is drawn
    bool m_is_inking = false;
};

} // namespace vexo::hox::qt::ui
