// SPDX-License-Identifier: MIT
// Properties of StringUtil that hold for each input. One that does not hold ends the process.

#include "util/stringutil.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <locale>
#include <optional>
#include <stdexcept>

using vexo::util::StringUtil;

namespace {

using Bytes = std::vector<unsigned char>;

const char *const alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

void require(bool holds, const char *property)
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", property);
    std::abort();
}

// Nothing where the text is refused with an Error; any other exception is a finding.
template <typename Error, typename Result>
std::optional<Result> attempt(Result (*function)(const std::string &), const std::string &text)
{
    try {
        return function(text);
    } catch (const Error &) {
        return {};
    }
}

Bytes fromHexByStandardLibrary(const std::string &text)
{
    if (text.size() % 2 != 0)
        throw std::invalid_argument("odd");
    Bytes bytes;
    for (size_t i = 0; i < text.size(); i += 2)
        bytes.push_back(static_cast<unsigned char>(std::stoul(text.substr(i, 2), nullptr, 16)));
    return bytes;
}

void checkHex(const std::string &text)
{
    const Bytes bytes(text.begin(), text.end());
    require(StringUtil::FromHex(StringUtil::ToHex(bytes)) == bytes, "hex: encode, decode");
    const auto decoded = attempt<std::invalid_argument>(StringUtil::FromHex, text);
    require(decoded == attempt<std::invalid_argument>(fromHexByStandardLibrary, text),
        "hex: pairs as stoul reads them");
    if (decoded && text.find_first_not_of("0123456789abcdef") == std::string::npos)
        require(StringUtil::ToHex(*decoded) == text, "hex: decode, encode");
}

// The last group may have bits left over or a character behind its "=".
void checkEncodedAgain(const std::string &text, const Bytes &decoded)
{
    const std::string again = StringUtil::ToBase64(decoded);
    require(again.size() == text.size(), "Base64: size of the bytes");
    require(StringUtil::FromBase64(again) == decoded, "Base64: decode, encode, decode");
    if (text.size() > 4)
        require(again.compare(0, text.size() - 4, text, 0, text.size() - 4) == 0,
            "Base64: decode, encode");
}

void checkBase64(const std::string &text)
{
    const Bytes bytes(text.begin(), text.end());
    const std::string encoded = StringUtil::ToBase64(text);
    require(encoded.size() == (text.size() + 2) / 3 * 4, "Base64: size of the text");
    require(StringUtil::FromBase64(encoded) == bytes, "Base64: encode, decode");
    if (text.size() % 4 != 0) {
        require(!attempt<std::invalid_argument>(StringUtil::FromBase64, text), "Base64: length");
        return;
    }
    const auto decoded = attempt<std::runtime_error>(StringUtil::FromBase64, text);
    if (decoded)
        checkEncodedAgain(text, *decoded);
    else
        require(text.find_first_not_of(alphabet) != std::string::npos, "Base64: refusal");
}

void checkCase(const std::string &text)
{
    const auto lower = attempt<std::range_error>(StringUtil::ToLower, text);
    const auto upper = attempt<std::range_error>(StringUtil::ToUpper, text);
    require(lower.has_value() == upper.has_value(), "case: both refuse the same");
    if (!lower)
        return;
    require(StringUtil::ToLower(*lower) == *lower, "case: lower is lower");
    require(StringUtil::ToUpper(*upper) == *upper, "case: upper is upper");
}

std::string joined(const std::vector<std::string> &pieces, const std::string &delimiter)
{
    std::string text;
    for (size_t i = 0; i < pieces.size(); ++i)
        text += (i > 0 ? delimiter : std::string()) + pieces[i];
    return text;
}

// The delimiter is what stands before the first bar.
void checkSplit(const std::string &input)
{
    const std::string delimiter = input.substr(0, input.find('|'));
    const std::string text = input.substr(std::min(input.size(), delimiter.size() + 1));
    std::vector<std::string> pieces = StringUtil::Split(text, delimiter, true);
    require(joined(pieces, delimiter) == text, "split, join");
    pieces.erase(std::remove(pieces.begin(), pieces.end(), std::string()), pieces.end());
    require(StringUtil::Split(text, delimiter, false) == pieces, "split without empty pieces");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const std::locale kept(""); // else each change of case would load its files anew
    const std::string input(reinterpret_cast<const char *>(data), size);
    checkHex(input);
    checkBase64(input);
    checkCase(input);
    checkSplit(input);
    return 0;
}
