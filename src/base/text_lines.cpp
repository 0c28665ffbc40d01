// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/text_lines.h"

namespace campora {

bool TextLines::next(std::string_view& line) {
    if (rest_.empty()) {
        return false;
    }
    const std::size_t end = rest_.find('\n');
    line = rest_.substr(0, end);
    if (end == std::string_view::npos) {
        rest_ = {};
    } else {
        rest_.remove_prefix(end + 1);
        line.remove_suffix(line.ends_with('\r') ? 1 : 0);
    }
    ++number_;
    return true;
}

std::vector<std::string_view> readAllLines(std::string_view text) {
    std::vector<std::string_view> lines;
    TextLines rest(text);
    for (std::string_view line; rest.next(line);) {
        lines.push_back(line);
    }
    return lines;
}

}  // namespace campora
