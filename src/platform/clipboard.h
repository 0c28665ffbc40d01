// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

#include "platform/picture.h"

namespace campora {

/// What is set takes the place of whatever the clipboard held.
class Clipboard {
public:
    virtual ~Clipboard() = default;

    virtual void setText(std::string_view text) = 0;
    virtual void setPicture(const Picture& picture) = 0;
};

}  // namespace campora
