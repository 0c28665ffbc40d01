// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>
#include <string>

#include "base/failure.h"
#include "base/texts.h"
#include "cli/arguments.h"

namespace campora {

/// `arguments`: the command line without the program's name. A failure tells the user what is wrong
/// with it.
[[nodiscard]] Result<Arguments> parseArguments(std::span<const std::string> arguments);

/// The language that a command line asks for, whatever else is wrong with it.
[[nodiscard]] Language languageOf(std::span<const std::string> arguments);

[[nodiscard]] bool asksForHelp(std::span<const std::string> arguments);

/// All commands and options, in lines.
[[nodiscard]] std::string usage(const Texts& texts);

}  // namespace campora
