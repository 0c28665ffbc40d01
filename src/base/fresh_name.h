// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

namespace campora {

/// How the names begin and end that this program gives to what it makes for a while. Between stand
/// sixteen hexadecimal digits that nobody foresees.
struct OwnNames {
    std::string_view begin;
    std::string_view end = {};
};

/// Of a file beside the one that it is to become; hidden where a point hides.
inline constexpr OwnNames kOwnFiles{".campora-", ".tmp"};

/// A name that no other file has.
[[nodiscard]] std::string freshName(const OwnNames& names = kOwnFiles);
/// Whether it is such a name, in any case.
[[nodiscard]] bool isOwnName(std::string_view name, const OwnNames& names = kOwnFiles);

}  // namespace campora
