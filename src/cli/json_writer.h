// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <ostream>
#include <string_view>
#include <vector>

namespace campora {

/// Writes one JSON document (RFC 8259) as UTF-8, indented. Numbers come out as the shortest decimal
/// text that reads back as the same value of their own type; not-a-number and infinities, which
/// JSON lacks, as 0. Every object and array that is begun must be ended.
class JsonWriter {
public:
    explicit JsonWriter(std::ostream& out) : out_(out) {}

    void beginObject() { begin('{'); }
    void endObject() { end('}'); }
    void beginArray() { begin('['); }
    void endArray() { end(']'); }

    /// The name of the next value of an object.
    void key(std::string_view name);

    /// Bytes that are not UTF-8 are taken for Windows-1252.
    void value(std::string_view text);
    void value(const char* text) { value(std::string_view(text)); }
    void value(double number);
    void value(float number);
    void value(std::int32_t number);
    void value(bool truth);
    void null();

    template <typename Value>
    void member(std::string_view name, const Value& memberValue) {
        key(name);
        value(memberValue);
    }

private:
    void begin(char bracket);
    void end(char bracket);
    /// What stands between the last thing written and the next value.
    void separate();
    void startLine();
    void quote(std::string_view text);

    std::ostream& out_;
    /// An entry for every object and array that is open: whether it has anything in it.
    std::vector<bool> filled_;
    bool afterKey_ = false;
};

}  // namespace campora
