// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "cli/json_writer.h"

#include <string>

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

void JsonWriter::key(std::string_view name) {
    separate();
    quote(name);
    out_ << ": ";
    afterKey_ = true;
}

void JsonWriter::value(std::string_view text) {
    separate();
    quote(text);
}

void JsonWriter::value(double number) {
    separate();
    out_ << numberText(number);
}

void JsonWriter::value(float number) {
    separate();
    out_ << numberText(number);
}

void JsonWriter::value(bool truth) {
    separate();
    out_ << (truth ? "true" : "false");
}

void JsonWriter::value(std::int32_t number) {
    separate();
    out_ << numberText(number);
}

void JsonWriter::null() {
    separate();
    out_ << "null";
}

void JsonWriter::begin(char bracket) {
    separate();
    out_ << bracket;
    filled_.push_back(false);
}

void JsonWriter::end(char bracket) {
    const bool filled = filled_.back();
    filled_.pop_back();
    if (filled) {
        startLine();
    }
    out_ << bracket;
    if (filled_.empty()) {
        out_ << '\n';
    }
}

void JsonWriter::separate() {
    if (afterKey_) {
        afterKey_ = false;
        return;
    }
    if (filled_.empty()) {
        return;
    }
    if (filled_.back()) {
        out_ << ',';
    }
    filled_.back() = true;
    startLine();
}

void JsonWriter::startLine() {
    out_ << '\n' << std::string(2 * filled_.size(), ' ');
}

void JsonWriter::quote(std::string_view text) {
    const std::string utf8 = isUtf8(text) ? std::string(text) : fromWindows1252(text);
    std::string quoted = "\"";
    for (const char c : utf8) {
        append(quoted, c);
    }
    out_ << quoted << '"';
}

}  // namespace campora
