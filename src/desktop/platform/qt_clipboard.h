// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/clipboard.h"

namespace campora {

class QtClipboard final : public Clipboard {
public:
    void setText(std::string_view text) override;
    void setPicture(const Picture& picture) override;
};

}  // namespace campora
