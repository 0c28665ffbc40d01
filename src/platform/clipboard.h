// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

namespace campora {

class Clipboard {
public:
    virtual ~Clipboard() = default;

    virtual void setText(std::string_view text) = 0;
};

}  // namespace campora
