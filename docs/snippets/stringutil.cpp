// SPDX-License-Identifier: MIT
//! [page]
#include <StringUtil>

#include <cstdio>
#include <stdexcept>

using vexo::util::StringUtil;

// "Serial:48 69" gives the bytes 0x48 and 0x69; anything else is said and gives none.
std::vector<unsigned char> readSerial(const std::string &line)
{
    if (!StringUtil::StartsWith(line, "Serial:"))
        return {};
    std::string digits;
    for (const std::string &pair : StringUtil::Split(line.substr(7), " ", false))
        digits += pair;
    try {
        return StringUtil::FromHex(digits);
    } catch (const std::invalid_argument &error) {
        std::puts(StringUtil::Format("%s: %s", line.c_str(), error.what()).c_str());
        return {};
    }
}

// An error text with its reason: "cannot open /etc/panel: No such file or directory".
std::string describeFailure(const char *path)
{
    return StringUtil::FormatError("cannot open %s", path);
}
//! [page]
