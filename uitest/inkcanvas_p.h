#pragma once
// SPDX-License-Identifier: MIT

#include <QImage>
#include <QPointer>
#include <QRegion>
#include <QSet>
#include <QVector>
#include <QWidget>

#include <memory>

class QPaintEngine;

namespace vexo::hox::qt::uitest {

/// A text or an image that a widget has drawn.
struct Ink
{
    enum Kind {
        Text, ///< a piece of a line, in one font
        Icon ///< an image that may be an icon; part of a picture or of a ground otherwise
    };

    Kind kind = Text;
    QPointer<QWidget> widget; ///< that painted it
    QRect px; ///< what the letters cover, or the image, px of the canvas
    QRect clip; ///< outside of it nothing was drawn
    QString text; ///< its letters; empty where the toolkit does not tell them
    double font_px = 0; ///< height of the font
    bool is_bold = false;
    double transparent = 0; ///< share of the image
};

/// A picture of a window that knows what is drawn on it, and can leave it out. It draws exactly as
/// the screen does: what is left out is all that differs.
class InkCanvas : public QImage
{
public:
    enum Look {
        Everything,
        WithoutTexts,
        SolidTexts, ///< the place that each text covers is filled with its ink
        MarkedTexts, ///< and with a colour that no ground has
        WithoutIcons, ///< without texts, and without those images that are told
        MarkedIcons, ///< the same, but their places are filled with that colour
        WithoutThese ///< without what is told, be it texts or images
    };

    /// A picture of the window that \a window lies in, px for px; only \a region of it, if there is
    /// one. Children of it may paint, nothing else happens to it. \a those are indexes of inks().
    InkCanvas(QWidget *window, Look look, const QRegion &region = QRegion(),
        const QSet<int> &those = QSet<int>());
    ~InkCanvas() override;
    InkCanvas(const InkCanvas &) = delete;
    InkCanvas &operator=(const InkCanvas &) = delete;

    /// In the order in which they were drawn, which is that of any other canvas of the same window
    /// in the same state; so an index names the same ink on all of them.
    const QVector<Ink> &inks() const { return m_inks; }

    QPaintEngine *paintEngine() const override;

private:
    friend class InkEngine;

    Look m_look;
    QSet<int> m_those;
    QVector<Ink> m_inks;
    std::unique_ptr<QPaintEngine> m_engine;
};

} // namespace vexo::hox::qt::uitest
