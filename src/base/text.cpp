// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/text.h"

#include <algorithm>

#include "base/encoding.h"

namespace campora {

namespace {

constexpr char lowerAscii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// Simple lower case of U+00C0 to U+017F. Source: the Unicode character database, UnicodeData.txt.
constexpr unsigned lowerLatin(unsigned c) {
    if (c <= 0xDE) {
        return c == 0xD7 ? c : c + 0x20;  // 0xD7 is the sign of multiplication
    }
    if (c < 0x100) {
        return c;
    }
    if (c == 0x130) {
        return 'i';
    }
    if (c == 0x178) {
        return 0xFF;
    }
    // In two stretches the capitals are the odd ones; 0x131, 0x138, 0x149 and 0x17F have no pair.
    const bool oddCapitals = (c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E);
    if (c == 0x131 || c == 0x138 || c == 0x149 || c == 0x17F) {
        return c;
    }
    return (c % 2 == 1) == oddCapitals ? c + 1 : c;
}

}  // namespace

std::string_view trim(std::string_view text) {
    constexpr std::string_view kBlanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::vector<std::string_view> split(std::string_view text, char separator) {
    std::vector<std::string_view> pieces;
    std::size_t begin = 0;
    for (std::size_t end = text.find(separator); end != std::string_view::npos;
         end = text.find(separator, begin)) {
        pieces.push_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    pieces.push_back(text.substr(begin));
    return pieces;
}

std::string lowerCase(std::string_view text) {
    std::string lower;
    lower.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto lead = static_cast<unsigned char>(text[i]);
        const char next = i + 1 < text.size() ? text[i + 1] : '\0';
        // U+00C0 to U+017F take two bytes, of which the first is 0xC3 to 0xC5; no longer character
        // holds such a byte.
        if (lead >= 0xC3 && lead <= 0xC5 && continuesCharacter(next)) {
            appendUtf8(lower, lowerLatin((lead & 0x1FU) << 6U |
                                         (static_cast<unsigned char>(next) & 0x3FU)));
            ++i;
        } else {
            lower.push_back(lowerAscii(text[i]));
        }
    }
    return lower;
}

bool equalIgnoringCase(std::string_view a, std::string_view b) {
    return lowerCase(a) == lowerCase(b);
}

std::string replaceAll(std::string_view text, std::string_view from, std::string_view to) {
    std::string replaced;
    replaced.reserve(text.size());
    std::size_t begin = 0;
    for (std::size_t at = text.find(from); at != std::string_view::npos;
         at = text.find(from, begin)) {
        replaced.append(text.substr(begin, at - begin)).append(to);
        begin = at + from.size();
    }
    return replaced.append(text.substr(begin));
}

}  // namespace campora
