// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/encoding.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <optional>

namespace campora {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr char16_t kReplacement = 0xFFFD;

/// The characters 0x80 to 0x9F of Windows-1252, 0 where the code page leaves the byte open.
/// Source: Unicode Consortium, mapping table CP1252.TXT.
constexpr std::array<char16_t, 32> kHigh1252 = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  //
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,       //
    0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  //
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

constexpr bool isAscii(char c) {
    return static_cast<unsigned char>(c) < 0x80;
}

constexpr bool isContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

/// The end of the ASCII characters that begin at `at`.
std::size_t skipAscii(std::string_view text, std::size_t at) {
    constexpr std::uint64_t kHighBits = 0x8080808080808080U;
    for (; text.size() - at >= sizeof(std::uint64_t); at += sizeof(std::uint64_t)) {
        std::uint64_t eight = 0;
        std::memcpy(&eight, text.data() + at, sizeof eight);
        if ((eight & kHighBits) != 0) {
            break;
        }
    }
    while (at < text.size() && isAscii(text[at])) {
        ++at;
    }
    return at;
}

/// The character of two bytes or more at the start of `bytes` (not empty); none where the bytes are
/// not UTF-8. Source: The Unicode Standard, table 3-7 (well-formed UTF-8 byte sequences).
std::optional<Utf8Character> multibyteCharacter(std::string_view bytes) {
    const auto lead = static_cast<unsigned char>(bytes[0]);
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || bytes.size() < length) {
        return std::nullopt;
    }
    char32_t value = lead & (0xFFU >> (length + 1));
    for (const char c : bytes.substr(1, length - 1)) {
        if (!isContinuation(c)) {
            return std::nullopt;
        }
        value = value << 6U | (static_cast<unsigned char>(c) & 0x3FU);
    }
    const bool overlong = (length == 3 && value < 0x800) || (length == 4 && value < 0x10000);
    const bool surrogate = value >= 0xD800 && value <= 0xDFFF;
    if (overlong || surrogate || value > 0x10FFFF) {
        return std::nullopt;
    }
    return Utf8Character{value, length};
}

/// Appends a character of the basic plane above ASCII.
void appendUtf8(std::string& text, char16_t character) {
    const auto code = static_cast<unsigned>(character);
    if (code < 0x800) {
        text.push_back(static_cast<char>(0xC0U | code >> 6U));
    } else {
        text.push_back(static_cast<char>(0xE0U | code >> 12U));
        text.push_back(static_cast<char>(0x80U | (code >> 6U & 0x3FU)));
    }
    text.push_back(static_cast<char>(0x80U | (code & 0x3FU)));
}

char16_t characterOf1252(unsigned char byte) {
    if (byte >= 0xA0) {
        return byte;
    }
    const char16_t character = kHigh1252[byte - 0x80U];
    return character == 0 ? kReplacement : character;
}

/// `character` is not ASCII.
char byteOf1252(char32_t character) {
    if (character >= 0xA0 && character <= 0xFF) {
        return static_cast<char>(character);
    }
    const auto* const found = std::find(kHigh1252.begin(), kHigh1252.end(), character);
    return found == kHigh1252.end() ? '?' : static_cast<char>(0x80 + (found - kHigh1252.begin()));
}

}  // namespace

std::optional<Utf8Character> firstCharacter(std::string_view text) {
    return isAscii(text[0]) ? Utf8Character{static_cast<unsigned char>(text[0]), 1}
                            : multibyteCharacter(text);
}

bool isUtf8(std::string_view bytes) {
    for (std::size_t at = skipAscii(bytes, 0); at < bytes.size(); at = skipAscii(bytes, at)) {
        const auto character = multibyteCharacter(bytes.substr(at));
        if (!character) {
            return false;
        }
        at += character->length;
    }
    return true;
}

std::string fromWindows1252(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 8);
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t end = skipAscii(bytes, at);
        text.append(bytes.substr(at, end - at));
        at = end;
        for (; at < bytes.size() && !isAscii(bytes[at]); ++at) {
            appendUtf8(text, characterOf1252(static_cast<unsigned char>(bytes[at])));
        }
    }
    return text;
}

std::string toWindows1252(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = skipAscii(text, at);
        bytes.append(text.substr(at, end - at));
        at = end;
        if (at < text.size()) {
            const auto character = multibyteCharacter(text.substr(at));
            bytes.push_back(character ? byteOf1252(character->value) : '?');
            at += character ? character->length : 1;
        }
    }
    return bytes;
}

std::string decodeText(std::string_view bytes) {
    return decodeText(bytes, true);
}

std::string decodeText(std::string_view bytes, bool utf8) {
    if (!utf8 || !isUtf8(bytes)) {
        return fromWindows1252(bytes);
    }
    bytes.remove_prefix(bytes.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0);
    return std::string(bytes);
}

}  // namespace campora
