// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/clock.h"

namespace campora {

class QtClock final : public Clock {
public:
    [[nodiscard]] std::uint32_t ticks() const override;
    void sleep(std::uint32_t milliseconds) override;
    void processEvents() override;
    [[nodiscard]] Date today() const override;
};

}  // namespace campora
