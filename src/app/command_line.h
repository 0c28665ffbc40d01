// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace campora {

/// What the user asks for by starting the program.
struct StartRequest {
    /// Files, folders or projects to open, in order.
    std::vector<std::string> paths;
    /// Replay at once, a record a second, over and over.
    bool anim = false;
    bool realtime = false;
    bool repeat = false;

    bool operator==(const StartRequest&) const = default;
};

/// A command line as one text, without the program: a path, then switches that begin with "-".
/// A "-" between double quotes belongs to the path, and several texts in quotes are several paths.
/// Unknown switches are ignored.
[[nodiscard]] StartRequest parseCommandLine(std::string_view line);

/// A command line that the system has split into arguments: each one that does not begin with "-"
/// is a path, whatever it holds.
[[nodiscard]] StartRequest parseCommandLine(std::span<const std::string> arguments);

}  // namespace campora
