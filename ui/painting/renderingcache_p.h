#pragma once
// SPDX-License-Identifier: MIT

#include <QColor>
#include <QDataStream>
#include <QIODevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPixmap>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <functional>
#include <optional>

namespace vexo::hox::qt::ui {

/// Something drawn once, and the place to which it is copied, px.
struct Rendering
{
    QPixmap pixmap;
    QPoint position;
};

/// What \a draw, called with a painter that antialiases, draws on \a size px of \a ratio device
/// pixels each. On an opaque \a ground it is several times as fast to copy.
template <typename Draw>
QPixmap rendered(
    const QSize &size, double ratio, const Draw &draw, const QColor &ground = Qt::transparent)
{
    QPixmap pixmap(size * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(ground);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    draw(&painter);
    painter.end();
    return pixmap.copy(); // without the paint engine, which a pixmap keeps: it is larger than most
}

/// Whether a rendering may stand in for what it shows: a text stays one in a PDF, and for a test
/// that asks what is drawn.
inline bool isForScreens(const QPaintEngine &engine)
{
    return engine.type() == QPaintEngine::Raster;
}

/// What the library keeps of all that it draws once. Nothing here becomes invalid: another look
/// (colour, font, direction, device pixel ratio) is another rendering, and the old ones are dropped
/// by themselves.
class RenderingCache
{
public:
    /// One for all widgets that look alike, in the toolkit's pixmap cache. \a name tells what
    /// \a make makes.
    static QPixmap shared(const QString &name, const std::function<QPixmap()> &make);
    /// A name of a \a kind of picture that is all that \a parts tell.
    template <typename... Parts>
    static QString name(const char *kind, const Parts &...parts)
    {
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        (stream << ... << parts);
        return QLatin1String(kind) + QString::fromLatin1(bytes.toBase64());
    }

    /// One for a widget alone. Whenever 1 MiB was drawn, those of widgets out of sight are dropped:
    /// so a list that scrolls by leaves no more behind, and what is seen never needs to be drawn
    /// twice. In the toolkit's pixmap cache the rows of a long list would throw the icons out.
    class WhileSeen
    {
    public:
        WhileSeen() = default;
        ~WhileSeen();
        WhileSeen(const WhileSeen &) = delete;
        WhileSeen &operator=(const WhileSeen &) = delete;

        /// \a owner may be null.
        void keep(const Rendering &rendering, const QWidget *owner);
        /// Empty once it was dropped.
        const std::optional<Rendering> &rendering() const { return m_rendering; }

    private:
        bool dropIfUnseen();

        std::optional<Rendering> m_rendering;
        QPointer<const QWidget> m_owner;
    };
};

} // namespace vexo::hox::qt::ui
