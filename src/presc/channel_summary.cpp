// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/channel_summary.h"

#include <array>
#include <charconv>
#include <system_error>

#include "base/numbers.h"

namespace campora {

std::string channelEntry(std::string_view what, std::size_t channel) {
    return std::string(what) + " (C " + numberText(channel + 1) + ")";
}

std::string summaryFigure(double value, char symbol, int digits) {
    std::array<char, 40> buffer;
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                            std::chars_format::scientific, digits - 1);
    double shortened = value;
    if (error == std::errc()) {
        std::from_chars(buffer.data(), end, shortened);
    }
    return numberText(shortened, symbol);
}

}  // namespace campora
