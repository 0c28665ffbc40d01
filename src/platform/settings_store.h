// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace campora {

/// The user's own settings: texts under keys. Numbers and colours are kept as decimal text of a
/// 32-bit integer, switches as the words True and False.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;

    [[nodiscard]] virtual std::optional<std::string> read(std::string_view key) const = 0;
    virtual void write(std::string_view key, std::string_view value) = 0;
};

}  // namespace campora
