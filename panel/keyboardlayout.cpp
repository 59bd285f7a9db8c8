// SPDX-License-Identifier: MIT
#include "panel/keyboardlayout_p.h"

#include "panel/layoutparser_p.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>

#include <stdexcept>

namespace vexo::hox::qt::panel {

namespace {

const int most_bytes = 64 * 1024;

[[noreturn]] void refuse(const QString &file, const QString &why)
{
    throw std::runtime_error((file + QStringLiteral(": ") + why).toStdString());
}

} // namespace

KeyboardLayout KeyboardLayout::fromFile(const QString &file)
{
    if (!QFileInfo(file).isFile()) // a pipe would never end
        refuse(file, QStringLiteral("there is no such file"));
    QFile device(file);
    if (!device.open(QIODevice::ReadOnly))
        refuse(file, device.errorString());
    const QByteArray text = device.read(most_bytes + 1);
    if (text.size() > most_bytes)
        refuse(file, QStringLiteral("more than %1 bytes").arg(most_bytes));
    return fromText(text, file);
}

KeyboardLayout KeyboardLayout::languageFromFile(const QString &file)
{
    const KeyboardLayout layout = fromFile(file);
    if (layout.code.isEmpty())
        refuse(file, QStringLiteral("a line \"language CODE NAME\" is missing"));
    return layout;
}

KeyboardLayout KeyboardLayout::fromText(const QByteArray &utf8, const QString &name)
{
    return LayoutParser(name).parse(utf8);
}

const KeyboardLayout &KeyboardLayout::builtIn(const QString &name)
{
    static QHash<QString, KeyboardLayout> read;
    if (!read.contains(name))
        read.insert(name, fromFile(QStringLiteral(":/keyboards/%1.txt").arg(name)));
    return *read.constFind(name);
}

const QStringList &KeyboardLayout::builtInLanguages()
{
    static const QStringList codes
        = QStringLiteral("de en fr es it pl cs el ru").split(QLatin1Char(' '));
    return codes;
}

} // namespace vexo::hox::qt::panel
