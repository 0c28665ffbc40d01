// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

#include "base/numbers.h"

namespace campora {

/// Bytes written down by hand: "00 27 0A" with any blanks, and texts between quotes ('id  ').
[[nodiscard]] inline std::string hexBytes(std::string_view written) {
    std::string bytes;
    for (std::size_t at = 0; at < written.size();) {
        if (written[at] == '\'') {
            const std::size_t end = written.find('\'', at + 1);
            bytes += written.substr(at + 1, end - at - 1);
            at = end + 1;
        } else if (written[at] == ' ' || written[at] == '\n') {
            ++at;
        } else {
            bytes += static_cast<char>(leadingHex(written.substr(at, 2)));
            at += 2;
        }
    }
    return bytes;
}

}  // namespace campora
