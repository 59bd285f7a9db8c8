// SPDX-License-Identifier: MIT
#include "benchmarks/operations/operations.h"

#include <QByteArray>
#include <StringUtil>

using vexo::util::StringUtil;

namespace bench {

namespace {

// Both sides convert the same bytes, all values alike.
QByteArray data(int size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    unsigned int random = 1;
    for (char &byte : bytes) {
        random = random * 1664525 + 1013904223;
        byte = char(random >> 24);
    }
    return bytes;
}

// Ten thousand times the bytes, so a few steps do.
template <typename Input, typename Convert>
void addSizes(const char *what, const char *variant, Input input, Convert convert)
{
    const auto addSize = [=](const char *size, int bytes, int times) {
        const auto prepare = [=](int) {
            return [=, from = input(data(bytes))] { benchmark::DoNotOptimize(convert(from)); };
        };
        add(std::string(what) + size, variant, prepare, times);
    };
    addSize("-1kB", 1000, 0);
    addSize("-10MB", 10000000, 3);
}

std::vector<unsigned char> bytesOf(const QByteArray &bytes)
{
    return std::vector<unsigned char>(bytes.begin(), bytes.end());
}

QByteArray itself(const QByteArray &bytes)
{
    return bytes;
}

template <QByteArray (*encoded)(const QByteArray &)>
std::string text(const QByteArray &bytes)
{
    return encoded(bytes).toStdString();
}

QByteArray hex(const QByteArray &bytes)
{
    return bytes.toHex();
}

QByteArray base64(const QByteArray &bytes)
{
    return bytes.toBase64();
}

using Bytes = std::vector<unsigned char>;

} // namespace

void addStrings()
{
    addSizes(
        "to-hex", "library", bytesOf, [](const Bytes &from) { return StringUtil::ToHex(from); });
    addSizes("to-hex", "stock", itself, hex);
    addSizes("from-hex", "library", text<hex>, StringUtil::FromHex);
    addSizes("from-hex", "stock", hex, QByteArray::fromHex);
    addSizes("to-base64", "library", bytesOf,
        [](const Bytes &from) { return StringUtil::ToBase64(from); });
    addSizes("to-base64", "stock", itself, base64);
    addSizes("from-base64", "library", text<base64>, StringUtil::FromBase64);
    addSizes("from-base64", "stock", base64,
        [](const QByteArray &from) { return QByteArray::fromBase64(from); });
}

} // namespace bench
