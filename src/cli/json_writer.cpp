// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "cli/json_writer.h"

#include <string>

#include "base/json_text.h"
#include "base/numbers.h"

namespace campora {

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
    out_ << jsonText(text);
}

}  // namespace campora
