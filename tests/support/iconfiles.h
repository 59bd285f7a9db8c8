#pragma once

#include <QColor>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QTextStream>

/// SVG files of one colour each, which are gone with this object.
class IconFiles
{
public:
    QString svg(const QColor &color, const QSize &view_box = QSize(10, 10)) const
    {
        const QString name = QStringLiteral("%1-%2.svg").arg(color.rgb()).arg(view_box.width());
        QFile file(m_dir.filePath(name));
        if (!file.open(QIODevice::WriteOnly))
            return QString();
        QTextStream(&file) << "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 "
                           << view_box.width() << ' ' << view_box.height()
                           << "'><path d='M0 0H99V99H0z' fill='" << color.name() << "'/></svg>";
        return file.fileName();
    }

private:
    QTemporaryDir m_dir;
};

/// The smallest rectangle around all pixels that are exactly \a color; empty when there are none.
inline QRect boxOf(const QImage &image, const QColor &color)
{
    QRect box;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == color)
                box |= QRect(x, y, 1, 1);
        }
    }
    return box;
}
