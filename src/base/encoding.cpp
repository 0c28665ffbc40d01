// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/encoding.h"

#include <cstdint>
#include <cstring>
#include <optional>

namespace campora {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr char32_t kReplacement = 0xFFFD;

/// Source: Unicode Consortium, mapping table CP1252.TXT.
// clang-format off
constexpr UpperHalf k1252 =
    u"€\uFFFD‚ƒ„…†‡ˆ‰Š‹Œ\uFFFDŽ\uFFFD\uFFFD‘’“”•–—˜™š›œ\uFFFDžŸ"
    u"\u00A0¡¢£¤¥¦§¨©ª«¬\u00AD®¯°±²³´µ¶·¸¹º»¼½¾¿"
    u"ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖ×ØÙÚÛÜÝÞß"
    u"àáâãäåæçèéêëìíîïðñòóôõö÷øùúûüýþÿ";
// clang-format on
static_assert(k1252.size() == 128);

constexpr bool isAscii(char c) {
    return static_cast<unsigned char>(c) < 0x80;
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
        if (!continuesCharacter(c)) {
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

/// `character` is not ASCII.
char byteOf1252(char32_t character) {
    if (character >= 0xA0 && character <= 0xFF) {
        return static_cast<char>(character);
    }
    const std::size_t place = character == kReplacement || character > 0xFFFF
                                  ? UpperHalf::npos
                                  : k1252.find(static_cast<char16_t>(character));
    return place == UpperHalf::npos ? '?' : static_cast<char>(0x80U + place);
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

std::string_view lastCharacters(std::string_view text, int count) {
    std::size_t begin = text.size();
    while (begin > 0 && count > 0) {
        --begin;
        count -= continuesCharacter(text[begin]) ? 0 : 1;
    }
    return text.substr(begin);
}

void appendUtf8(std::string& text, char32_t character) {
    if (character < 0x80) {
        text.push_back(static_cast<char>(character));
        return;
    }
    if (character < 0x800) {
        text.push_back(static_cast<char>(0xC0U | character >> 6U));
    } else {
        text.push_back(static_cast<char>(0xE0U | character >> 12U));
        text.push_back(static_cast<char>(0x80U | (character >> 6U & 0x3FU)));
    }
    text.push_back(static_cast<char>(0x80U | (character & 0x3FU)));
}

std::string fromCodePage(std::string_view bytes, UpperHalf upper) {
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 8);
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t end = skipAscii(bytes, at);
        text.append(bytes.substr(at, end - at));
        at = end;
        for (; at < bytes.size() && !isAscii(bytes[at]); ++at) {
            appendUtf8(text, upper[static_cast<unsigned char>(bytes[at]) - 0x80U]);
        }
    }
    return text;
}

std::string fromWindows1252(std::string_view bytes) {
    return fromCodePage(bytes, k1252);
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
