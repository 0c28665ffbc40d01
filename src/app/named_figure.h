// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace campora {

/// A line of a page of figures, as a person reads it.
struct NamedFigure {
    std::string name;
    std::string value;
};

}  // namespace campora
