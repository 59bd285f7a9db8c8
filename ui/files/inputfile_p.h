#pragma once
// SPDX-License-Identifier: MIT

#include <QByteArray>
#include <QString>

namespace vexo::hox::qt::ui {

/// The one door for files that an application names: images, stylesheets, fonts. Search paths
/// (QDir::setSearchPaths()) and resources are looked up as the toolkit does. Only a regular file is
/// ever opened: a pipe would block and a device never end, and opening one can have effects of its
/// own. Works in each thread. Lives shorter than the bundle of a resource.
class InputFile
{
public:
    /// Looks \a path up; nothing is opened. A file of more than \a max_bytes counts as unreadable.
    InputFile(const QString &path, qint64 max_bytes);

    bool exists() const { return m_exists; }
    bool isResource() const;
    /// False for a folder, a pipe and the like.
    bool isReadable() const { return m_is_readable; }
    /// Where it was found.
    QString path() const { return m_path; }
    /// The content where it lies in the bundle; null for a compressed resource and for a file.
    QByteArray inPlace() const;
    /// The content; null when it cannot be read.
    QByteArray read();
    /// Stands for the content: files of one key are equal. Empty when there is nothing to read. A
    /// file is opened for it only in the first seconds after a change.
    QString key();

private:
    void examineResource();
    void examineFile();
    QString stampKey() const;

    QString m_path;
    const qint64 m_max_bytes;
    bool m_exists = false;
    bool m_is_readable = false;
    qint64 m_stamp[7] = {}; // of a file: what changes with its content
    QByteArray m_stored; // of a resource, maybe compressed: the bytes of the bundle itself
    QByteArray m_bytes; // what the key was made from, for the next read()
};

} // namespace vexo::hox::qt::ui
