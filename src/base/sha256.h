// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <span>
#include <string>

namespace campora {

/// SHA-256 of the bytes (FIPS 180-4) as 64 lower-case hexadecimal digits.
[[nodiscard]] std::string sha256(std::span<const std::byte> bytes);

}  // namespace campora
