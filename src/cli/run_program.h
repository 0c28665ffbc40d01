// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>
#include <string>

#include "cli/commands.h"

namespace campora {

/// One run of the batch program; answers its exit status. `arguments`: the command line without the
/// program's name, UTF-8. `dataFolder`: where the program's data are unless the command line names
/// another folder.
[[nodiscard]] int runProgram(std::span<const std::string> arguments, const std::string& dataFolder,
                             const Console& console);

}  // namespace campora
