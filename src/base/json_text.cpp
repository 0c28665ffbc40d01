// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/json_text.h"

#include "base/encoding.h"
#include "base/numbers.h"
#include "base/plain_text.h"

namespace campora {

namespace {

/// A character as it stands in a string. `bytes`: its UTF-8.
void append(std::string& text, char32_t character, std::string_view bytes) {
    switch (character) {
    case '"':
    case '\\':
        text.push_back('\\');
        text += bytes;
        return;
    case '\n':
        text += "\\n";
        return;
    case '\r':
        text += "\\r";
        return;
    case '\t':
        text += "\\t";
        return;
    default:
        break;
    }
    if (steersScreen(character)) {
        text += "\\u" + hexText(character, 4);
    } else {
        text += bytes;
    }
}

}  // namespace

std::string jsonText(std::string_view text) {
    const std::string utf8 = isUtf8(text) ? std::string(text) : fromWindows1252(text);
    std::string quoted = "\"";
    for (std::string_view rest = utf8; !rest.empty();) {
        const Utf8Character next = *firstCharacter(rest);
        append(quoted, next.value, rest.substr(0, next.length));
        rest.remove_prefix(next.length);
    }
    return quoted + '"';
}

}  // namespace campora
