// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

namespace campora {

/// A string of a JSON document (RFC 8259) in its quotes: quotes, backslashes and whatever steers a
/// screen escaped. Bytes that are not UTF-8 are taken for Windows-1252.
[[nodiscard]] std::string jsonText(std::string_view text);

}  // namespace campora
