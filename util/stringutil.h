#pragma once
// SPDX-License-Identifier: MIT

#include "ui/hoxqui_export.h"

#include <cstddef>
#include <string>
#include <vector>

namespace vexo::util {

/// Strings and bytes without the toolkit: formatting, case, splitting, hexadecimal and Base64.
/// Texts are UTF-8; only the case functions read them as such, all others take them byte by byte.
/// Each function can be called on every thread. Null data counts as no bytes.
class HOXQUI_EXPORT StringUtil
{
public:
    StringUtil() = delete;

    /// Space, tab, carriage return and line feed.
    static const char *const WHITESPACE;

    /// As printf writes it, cut after 2047 bytes, if need be within a character. Null gives an
    /// empty text.
    [[gnu::format(printf, 1, 2)]] static std::string Format(const char *format, ...);
    /// The same, and if errno is not 0 when it is called, ": " and the system's text for errno.
    [[gnu::format(printf, 1, 2)]] static std::string FormatError(const char *format, ...);

    /// False for a null \a prefix, true for an empty one.
    static bool StartsWith(const std::string &text, const char *prefix);

    /// Letter by letter, as the locale of the environment (LC_ALL, LC_CTYPE, LANG) has it: in the
    /// "C" locale only the letters of ASCII change, and sharp s is never made two letters. Throws
    /// std::range_error if \a text is not UTF-8, std::runtime_error if the system lacks the locale.
    static std::string ToLower(const std::string &text);
    static std::string ToUpper(const std::string &text);

    /// What stands between the delimiters. Without \a keepEmpty empty pieces are left out. An empty
    /// text has no pieces; with an empty \a delimiter any other text is one piece.
    static std::vector<std::string> Split(
        const std::string &text, const std::string &delimiter, bool keepEmpty);

    /// Two digits for each byte, in lower case.
    static std::string ToHex(const std::vector<unsigned char> &bytes);
    static std::string ToHex(const unsigned char *data, size_t length);
    /// A byte for each two characters, digits in either case. As std::stoul reads them, a pair may
    /// also be a digit behind a blank or a sign, or before any other character. Throws
    /// std::invalid_argument for an odd length or a pair without such a digit.
    static std::vector<unsigned char> FromHex(const std::string &text);

    /// The standard alphabet of RFC 4648, padded with "=", without line breaks.
    static std::string ToBase64(const std::string &text);
    static std::string ToBase64(const std::vector<unsigned char> &bytes);
    static std::string ToBase64(const unsigned char *data, size_t length);
    /// Reads what ToBase64() writes; bits that are left over need not be 0. Throws
    /// std::invalid_argument for a length that is no multiple of 4, std::runtime_error for a
    /// character outside the alphabet and for a "=" before the last two places. What stands behind
    /// a
    /// "=" in these is not looked at.
    static std::vector<unsigned char> FromBase64(const std::string &text);
};

} // namespace vexo::util
