// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/plain_text.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "base/encoding.h"

namespace campora {

namespace {

struct CharacterRange {
    char32_t first;
    char32_t last;
};

/// Controls, line and paragraph separators, and what sets the reading direction.
/// Source: The Unicode Standard, chapter 23 (special areas and format characters).
constexpr CharacterRange kSteering[] = {{0x00, 0x1F},     {0x7F, 0x9F},     {0x061C, 0x061C},
                                        {0x200E, 0x200F}, {0x2028, 0x202E}, {0x2066, 0x2069}};

/// Whether the text goes on with a line end or a tab. A carriage return alone is none: a terminal
/// would write what follows over what stands there.
bool isLayout(std::string_view text) {
    return text.front() == '\n' || text.front() == '\t' || text.starts_with("\r\n");
}

std::string plain(std::string_view text, bool keepLayout) {
    constexpr std::string_view kReplacement = "\uFFFD";
    std::string shown;
    shown.reserve(text.size());
    while (!text.empty()) {
        const std::optional<Utf8Character> next = firstCharacter(text);
        const std::string_view bytes = text.substr(0, next ? next->length : 1);
        const bool stays = next && (!steersScreen(next->value) || (keepLayout && isLayout(text)));
        shown += stays ? bytes : kReplacement;
        text.remove_prefix(bytes.size());
    }
    return shown;
}

}  // namespace

bool steersScreen(char32_t character) {
    return std::any_of(std::begin(kSteering), std::end(kSteering),
                       [character](const CharacterRange& range) {
                           return character >= range.first && character <= range.last;
                       });
}

std::string plainText(std::string_view text) {
    return plain(text, true);
}

std::string plainLine(std::string_view text) {
    return plain(text, false);
}

std::string namingFile(std::string_view question, std::string_view path) {
    std::string text(question);
    return path.empty() ? text : text.append("\n").append(plainLine(path));
}

}  // namespace campora
