// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/json_text.h"

#include "base/encoding.h"
#include "base/numbers.h"

namespace campora {

namespace {

/// A character as it stands in a string: control characters, quotes and backslashes escaped.
void append(std::string& text, char c) {
    switch (c) {
    case '"':
    case '\\':
        text.push_back('\\');
        text.push_back(c);
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
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x20) {
        text += "\\u" + hexText(byte, 4);
    } else {
        text.push_back(c);
    }
}

}  // namespace

std::string jsonText(std::string_view text) {
    const std::string utf8 = isUtf8(text) ? std::string(text) : fromWindows1252(text);
    std::string quoted = "\"";
    for (const char c : utf8) {
        append(quoted, c);
    }
    return quoted + '"';
}

}  // namespace campora
