// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

namespace campora {

/// The system's table of file types and the programs that open them.
class ClassesRegistry {
public:
    virtual ~ClassesRegistry() = default;

    /// Creates the key where it is missing and sets its unnamed value. Keys are separated by "\".
    /// What the user has no right to write stays as it is, without a word.
    virtual void setDefault(std::string_view key, std::string_view value) = 0;
    /// All keys have been set: the system may be told.
    virtual void finish() = 0;
};

}  // namespace campora
