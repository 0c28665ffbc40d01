// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace campora {

/// Walks the lines of a text without copying it. CR LF or LF ends a line, any other CR belongs to
/// its line; empty lines count; a line end at the very end of the text opens no further line. An
/// empty text has no lines.
class TextLines {
public:
    explicit TextLines(std::string_view text) : rest_(text) {}

    /// Puts the next line into `line` (without its line end); false at the end.
    [[nodiscard]] bool next(std::string_view& line);
    /// Lines handed out so far: the 1-based number of the line last given.
    [[nodiscard]] std::size_t lineNumber() const { return number_; }
    /// What has not been handed out yet.
    [[nodiscard]] std::string_view rest() const { return rest_; }

private:
    std::string_view rest_;
    std::size_t number_ = 0;
};

/// All lines at once.
[[nodiscard]] std::vector<std::string_view> readAllLines(std::string_view text);

}  // namespace campora
