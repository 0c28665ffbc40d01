// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <utility>

#include "base/failure.h"

namespace campora {

/// What `read` throws about the bytes that it is given; none when it takes them.
template <typename Read>
[[nodiscard]] std::optional<Failure> failureOf(Read&& read) {
    try {
        (void)std::forward<Read>(read)();
        return std::nullopt;
    } catch (const FormatError& error) {
        return error.failure();
    }
}

}  // namespace campora
