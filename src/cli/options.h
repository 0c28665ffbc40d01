// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/text_id.h"
#include "cli/arguments.h"

namespace campora {

struct Option {
    /// None: an option of every command.
    std::optional<Command> command;
    std::string_view name;
    /// What stands for the values, a word each; empty for a switch, which has none.
    std::string_view value;
    TextId help;
    /// Called with each value in turn, and once for a switch. False when the value is none for this
    /// option.
    bool (*set)(Arguments& arguments, std::string_view value);
};

/// The options of all commands, in the order of the usage.
[[nodiscard]] std::span<const Option> allOptions();

/// The values of an option in the usage.
[[nodiscard]] std::string shownValue(const Option& option);

/// "X,Y": longitude and latitude in degrees, on the globe.
[[nodiscard]] std::optional<LonLat> parseVertex(std::string_view word);

}  // namespace campora
