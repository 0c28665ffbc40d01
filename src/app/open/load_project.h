// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/open_map.h"
#include "platform/desk.h"

namespace campora {

/// The files behind a project.
struct ProjectFiles {
    /// Those that are there and that a reader takes, in the order of the list.
    std::vector<std::string> paths;
    /// Whether every listed file is among them.
    bool complete = true;
};

/// Reads a project file, and in their places the projects that it lists, each of them once. None,
/// without a message, when the file cannot be read or is no project. A listed file that is not
/// there is reported, after the first twenty only their number is; one that no reader takes is left
/// out without a message.
[[nodiscard]] std::optional<ProjectFiles>
filesOfProject(std::string_view path, std::string_view programFolder, const Desk& desk);

/// Opens the files of a project beside those that are open, until the user has enough. False when
/// `path` is no project.
bool loadProject(OpenMap& map, std::string_view path);

}  // namespace campora
