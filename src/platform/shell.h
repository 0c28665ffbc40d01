// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

namespace campora {

/// The desktop as the one who knows which program opens a file.
class Shell {
public:
    virtual ~Shell() = default;

    /// Opens the file with the program that the system has for it. False when there is none or it
    /// did not start.
    [[nodiscard]] virtual bool open(std::string_view path) = 0;
};

}  // namespace campora
