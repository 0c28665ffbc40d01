// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>

#include "base/failure.h"
#include "base/numbers.h"

namespace campora {

/// How often something was met in a file, and where first.
struct Occurrences {
    std::size_t count = 0;
    /// Number of the record or line, from 1; 0 when there was none.
    std::size_t first = 0;

    bool operator==(const Occurrences&) const = default;

    void add(std::size_t number) {
        if (count++ == 0) {
            first = number;
        }
    }
    /// `text` has places for the count and the first number.
    [[nodiscard]] Remark remark(TextId text) const {
        return {text, {numberText(count), numberText(first)}};
    }
};

}  // namespace campora
