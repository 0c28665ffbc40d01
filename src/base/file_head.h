// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace campora {

/// The first bytes of an ordinary file, all of a shorter one; nothing beyond them is read. None
/// when the file cannot be read, or its disk does not answer within `kLongestWait`.
[[nodiscard]] std::optional<std::string> readFileHead(std::string_view path, std::size_t bytes);

}  // namespace campora
