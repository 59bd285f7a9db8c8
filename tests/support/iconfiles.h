#pragma once
// SPDX-License-Identifier: MIT

#include "support/pixels.h"

#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>

/// Files that are gone with this object.
class IconFiles
{
public:
    QString path(const QString &name) const { return m_dir.filePath(name); }

    /// A file that changed lately is not cached.
    QString write(const QString &name, const QByteArray &bytes, int age_s = 0) const
    {
        const QDateTime time = QDateTime::currentDateTime().addSecs(-age_s);
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush()
            || !file.setFileTime(time, QFileDevice::FileModificationTime))
            qFatal("cannot write %s", qPrintable(file.fileName()));
        return file.fileName();
    }

    /// An icon of one colour.
    QString svg(const QColor &color, const QSize &box = QSize(10, 10)) const
    {
        const QString text = QStringLiteral("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 "
                                            "%1 %2'><path d='M0 0H%1V%2H0z' fill='%3'/></svg>");
        return write(QStringLiteral("%1-%2.svg").arg(color.rgb()).arg(box.width()),
            text.arg(box.width()).arg(box.height()).arg(color.name()).toUtf8());
    }

private:
    QTemporaryDir m_dir;
};
