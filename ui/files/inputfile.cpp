// SPDX-License-Identifier: MIT
#include "ui/files/inputfile_p.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QResource>

#include <algorithm>
#include <ctime>
#include <iterator>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vexo::hox::qt::ui {

namespace {

QByteArray hash(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Md5).toBase64();
}

// With the search path in place of its prefix. The toolkit warns of a name that holds a 0.
QString located(const QString &path)
{
    if (path.contains(QChar()))
        return QString();
    const int longest_other = 1; // a resource has none, a drive one letter
    return path.indexOf(QLatin1Char(':')) > longest_other ? QFileInfo(path).filePath() : path;
}

// What stat() saw may have been replaced by a pipe meanwhile. Some files of the kernel pretend to
// be empty regular ones and block: nothing is read of what has no size.
QByteArray readRegular(int descriptor, qint64 max_bytes)
{
    struct stat info = {};
    QFile file;
    if (fstat(descriptor, &info) != 0 || !S_ISREG(info.st_mode) || info.st_size > max_bytes
        || !file.open(descriptor, QIODevice::ReadOnly))
        return QByteArray();
    return file.read(info.st_size);
}

} // namespace

InputFile::InputFile(const QString &path, qint64 max_bytes)
    : m_path(located(path))
    , m_max_bytes(max_bytes)
{
    if (isResource())
        examineResource();
    else
        examineFile();
}

bool InputFile::isResource() const
{
    return m_path.startsWith(QLatin1Char(':'));
}

void InputFile::examineResource()
{
    const QResource resource(m_path);
    m_exists = resource.isValid();
    m_is_readable = resource.data() != nullptr; // a folder has none
    m_stored = QByteArray::fromRawData(
        reinterpret_cast<const char *>(resource.data()), int(resource.size()));
}

void InputFile::examineFile()
{
    struct stat info = {};
    m_exists = !m_path.isEmpty() && stat(QFile::encodeName(m_path).constData(), &info) == 0;
    m_is_readable = m_exists && S_ISREG(info.st_mode) && info.st_size <= m_max_bytes;
    const qint64 stamp[] = { qint64(info.st_dev), qint64(info.st_ino), info.st_size,
        info.st_mtim.tv_sec, info.st_mtim.tv_nsec, info.st_ctim.tv_sec, info.st_ctim.tv_nsec };
    std::copy(std::begin(stamp), std::end(stamp), m_stamp);
}

QByteArray InputFile::inPlace() const
{
    const bool is_plain
        = isResource() && QResource(m_path).compressionAlgorithm() == QResource::NoCompression;
    return is_plain ? m_stored : QByteArray();
}

QByteArray InputFile::read()
{
    if (!m_bytes.isNull())
        return std::exchange(m_bytes, QByteArray());
    if (!m_is_readable)
        return QByteArray();
    if (isResource())
        return QResource(m_path).uncompressedData();
    const int descriptor
        = open(QFile::encodeName(m_path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
        return QByteArray();
    const QByteArray bytes = readRegular(descriptor, m_max_bytes);
    close(descriptor);
    return bytes;
}

QString InputFile::key()
{
    if (!m_is_readable)
        return QString();
    if (isResource())
        return QString::fromLatin1(hash(m_stored));
    const time_t settling_s = 2; // time stamps are coarse: it could change once more unnoticed
    if (m_stamp[3] + settling_s < time(nullptr))
        return stampKey();
    m_bytes = read();
    return m_bytes.isNull() ? QString() : QString::fromLatin1(hash(m_bytes));
}

QString InputFile::stampKey() const
{
    const auto *bytes = reinterpret_cast<const char *>(m_stamp);
    return QString::fromLatin1(QByteArray::fromRawData(bytes, sizeof m_stamp).toBase64());
}

} // namespace vexo::hox::qt::ui
