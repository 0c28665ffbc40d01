// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/classes_registry.h"

namespace campora {

/// File types on desktops that follow freedesktop.org.
class FreedesktopClasses final : public ClassesRegistry {
public:
    void setDefault(std::string_view key, std::string_view value) override;
    void finish() override;
};

}  // namespace campora
