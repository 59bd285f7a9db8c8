// SPDX-License-Identifier: MIT
#include "util/stringutil.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <codecvt>
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <locale>
#include <stdexcept>
#include <string_view>

namespace vexo::util {

namespace {

const size_t buffer_size = 2048; // bytes, the final 0 among them

constexpr std::string_view hex_alphabet = "0123456789abcdef";
constexpr std::string_view base64_alphabet
    = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

// The values of characters, looked up as unsigned: char has a sign on some processors only.
using Values = std::array<unsigned char, 256>;
const unsigned char no_value = 0xff;

constexpr void setValues(Values &values, std::string_view alphabet, unsigned char first)
{
    for (const char character : alphabet)
        values[static_cast<unsigned char>(character)] = first++;
}

constexpr Values valuesOf(std::string_view alphabet, std::string_view capitals = {})
{
    Values values{};
    for (unsigned char &value : values)
        value = no_value;
    setValues(values, alphabet, 0);
    setValues(values, capitals, 10);
    return values;
}

constexpr Values hex_values = valuesOf(hex_alphabet, "ABCDEF");
constexpr Values base64_values = valuesOf(base64_alphabet);

unsigned int valueOf(const Values &values, char character)
{
    return values[static_cast<unsigned char>(character)];
}

constexpr std::array<char, 512> hexPairs()
{
    std::array<char, 512> pairs{};
    for (size_t byte = 0; byte < 256; ++byte) {
        pairs[2 * byte] = hex_alphabet[byte >> 4];
        pairs[2 * byte + 1] = hex_alphabet[byte & 0xf];
    }
    return pairs;
}

constexpr std::array<char, 512> hex_pairs = hexPairs(); // the two digits of each byte

[[gnu::format(printf, 1, 0)]] std::string formatted(const char *format, va_list arguments)
{
    char buffer[buffer_size];
    buffer[0] = '\0'; // what a format that cannot be written leaves
    if (format) // NOLINTNEXTLINE(clang-analyzer-valist.Uninitialized): both callers start them
        std::vsnprintf(buffer, sizeof buffer, format, arguments);
    return buffer;
}

void appendError(std::string &text, int error)
{
    char buffer[buffer_size];
    if (const char *reason = strerror_r(error, buffer, sizeof buffer))
        text.append(": ").append(reason);
    else
        std::perror("Unknown error while retrieving another error text");
}

using Letters = std::ctype<wchar_t>;
using Change = const wchar_t *(Letters::*)(wchar_t *, const wchar_t *) const;

using Converter = std::wstring_convert<std::codecvt_utf8<wchar_t>>;

// The converter itself lets two faults pass: a character cut off at the end, and a surrogate.
std::wstring wideOf(const std::string &text, Converter &converter)
{
    std::wstring wide = converter.from_bytes(text);
    const auto is_surrogate = [](wchar_t c) { return c >= 0xd800 && c <= 0xdfff; };
    if (converter.converted() != text.size() || std::any_of(wide.begin(), wide.end(), is_surrogate))
        throw std::range_error("wstring_convert::from_bytes");
    return wide;
}

std::string inCase(const std::string &text, Change change)
{
    const std::locale locale("");
    Converter converter;
    std::wstring wide = wideOf(text, converter);
    (std::use_facet<Letters>(locale).*change)(wide.data(), wide.data() + wide.size());
    return converter.to_bytes(wide);
}

// A pair that is not two digits: what the standard library makes of it.
unsigned long parsedPair(const char *pair)
{
    return std::stoul(std::string(pair, 2), nullptr, 16);
}

[[noreturn]] void refuseBase64(char character)
{
    throw std::runtime_error(
        character == '=' ? "Invalid padding in base64!" : "Invalid character in base64!");
}

unsigned int base64Value(char character)
{
    const unsigned int value = valueOf(base64_values, character);
    if (value == no_value)
        refuseBase64(character);
    return value;
}

// The 24 bits of four characters.
unsigned int bitsOf(const char *group)
{
    const unsigned int a = valueOf(base64_values, group[0]);
    const unsigned int b = valueOf(base64_values, group[1]);
    const unsigned int c = valueOf(base64_values, group[2]);
    const unsigned int d = valueOf(base64_values, group[3]);
    if ((a | b | c | d) == no_value)
        std::for_each(group, group + 4, base64Value); // the first one is reported
    return a << 18 | b << 12 | c << 6 | d;
}

unsigned char byteOf(unsigned int bits, int shift)
{
    return static_cast<unsigned char>(bits >> shift);
}

void putBytes(unsigned char *to, unsigned int bits)
{
    to[0] = byteOf(bits, 16);
    to[1] = byteOf(bits, 8);
    to[2] = byteOf(bits, 0);
}

// The group that may be padded; returns the number of bytes.
size_t putLastBytes(unsigned char *to, const char *group)
{
    const unsigned int head = base64Value(group[0]) << 18 | base64Value(group[1]) << 12;
    to[0] = byteOf(head, 16);
    if (group[2] == '=') // ends the text, whatever comes behind
        return 1;
    const unsigned int bits = head | base64Value(group[2]) << 6;
    to[1] = byteOf(bits, 8);
    if (group[3] == '=')
        return 2;
    to[2] = byteOf(bits | base64Value(group[3]), 0);
    return 3;
}

char base64Character(unsigned int bits, int shift)
{
    return base64_alphabet[bits >> shift & 0x3f];
}

void putCharacters(char *to, unsigned int bits)
{
    to[0] = base64Character(bits, 18);
    to[1] = base64Character(bits, 12);
    to[2] = base64Character(bits, 6);
    to[3] = base64Character(bits, 0);
}

// The one or two bytes behind the last full group.
void putLastCharacters(char *to, const unsigned char *rest, size_t length)
{
    putCharacters(to, unsigned(rest[0]) << 16 | (length == 2 ? unsigned(rest[1]) << 8 : 0));
    std::fill(to + length + 1, to + 4, '=');
}

} // namespace

const char *const StringUtil::WHITESPACE = " \t\r\n";

std::string StringUtil::Format(const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    std::string text = formatted(format, arguments);
    va_end(arguments);
    return text;
}

std::string StringUtil::FormatError(const char *format, ...)
{
    const int error = errno;
    va_list arguments;
    va_start(arguments, format);
    std::string text = formatted(format, arguments);
    va_end(arguments);
    if (error != 0)
        appendError(text, error);
    return text;
}

bool StringUtil::StartsWith(const std::string &text, const char *prefix)
{
    return prefix && text.compare(0, std::strlen(prefix), prefix) == 0;
}

std::string StringUtil::ToLower(const std::string &text)
{
    return inCase(text, &Letters::tolower);
}

std::string StringUtil::ToUpper(const std::string &text)
{
    return inCase(text, &Letters::toupper);
}

std::vector<std::string> StringUtil::Split(
    const std::string &text, const std::string &delimiter, bool keepEmpty)
{
    std::vector<std::string> pieces;
    size_t begin = 0;
    size_t end = delimiter.empty() ? std::string::npos : text.find(delimiter);
    for (; end != std::string::npos; end = text.find(delimiter, begin)) {
        if (keepEmpty || end > begin)
            pieces.push_back(text.substr(begin, end - begin));
        begin = end + delimiter.size();
    }
    if (begin < text.size() || (keepEmpty && begin > 0))
        pieces.push_back(text.substr(begin));
    return pieces;
}

std::string StringUtil::ToHex(const std::vector<unsigned char> &bytes)
{
    return ToHex(bytes.data(), bytes.size());
}

std::string StringUtil::ToHex(const unsigned char *data, size_t length)
{
    length = data ? length : 0;
    std::string text;
    text.reserve(2 * length + 1);
    text.resize(2 * length);
    char *to = text.data();
    for (size_t i = 0; i < length; ++i)
        std::memcpy(to + 2 * i, &hex_pairs[size_t(2) * data[i]], 2);
    return text;
}

std::vector<unsigned char> StringUtil::FromHex(const std::string &text)
{
    if (text.size() % 2 != 0)
        throw std::invalid_argument("Illegal count of charactes on input string!");
    const size_t length = text.size() / 2;
    std::vector<unsigned char> bytes(length);
    const char *from = text.data();
    unsigned char *to = bytes.data();
    for (size_t i = 0; i < length; ++i) {
        const unsigned int high = valueOf(hex_values, from[2 * i]);
        const unsigned int low = valueOf(hex_values, from[2 * i + 1]);
        const bool has_digits = (high | low) != no_value;
        to[i] = static_cast<unsigned char>(has_digits ? high << 4 | low : parsedPair(from + 2 * i));
    }
    return bytes;
}

std::string StringUtil::ToBase64(const std::string &text)
{
    return ToBase64(reinterpret_cast<const unsigned char *>(text.data()), text.size());
}

std::string StringUtil::ToBase64(const std::vector<unsigned char> &bytes)
{
    return ToBase64(bytes.data(), bytes.size());
}

std::string StringUtil::ToBase64(const unsigned char *data, size_t length)
{
    length = data ? length : 0;
    std::string text((length + 2) / 3 * 4, '\0');
    char *to = text.data();
    for (; length >= 3; length -= 3, data += 3, to += 4)
        putCharacters(to, unsigned(data[0]) << 16 | unsigned(data[1]) << 8 | data[2]);
    if (length > 0)
        putLastCharacters(to, data, length);
    return text;
}

std::vector<unsigned char> StringUtil::FromBase64(const std::string &text)
{
    if (text.size() % 4 != 0)
        throw std::invalid_argument("Invalid base64 length!");
    if (text.empty())
        return {};
    const auto padding = size_t(std::count(text.end() - 2, text.end(), '='));
    std::vector<unsigned char> bytes(text.size() / 4 * 3 - padding);
    unsigned char *to = bytes.data();
    const char *from = text.data();
    for (const char *last = from + text.size() - 4; from < last; from += 4, to += 3)
        putBytes(to, bitsOf(from));
    to += putLastBytes(to, from);
    bytes.resize(size_t(to - bytes.data()));
    return bytes;
}

} // namespace vexo::util
