// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/shell.h"

namespace campora {

class QtShell final : public Shell {
public:
    [[nodiscard]] bool open(std::string_view path) override;
};

}  // namespace campora
