// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/desk.h"
#include "presc/channel_zones.h"
#include "presc/grid_layout.h"
#include "presc/grid_size.h"

namespace campora {

/// The questions for the doses of cells without a zone, channel 1 first.
inline constexpr TextId kFallbackQuestions[kMostChannels] = {
    TextId::AskFallbackDose1, TextId::AskFallbackDose2, TextId::AskFallbackDose3,
    TextId::AskFallbackDose4};

// The makers of files. Each asks what the format asks for, refuses doses that the file cannot hold
// and grids that it cannot be, shows progress, and says at the end how much was written. The
// rule of its cells when the file was written whole; whatever stood at `path` is as it was
// otherwise.
// `channels`: 1 to `kMostChannels`.

/// A PRE file and the blank report that consoles expect beside it; refused while one with data
/// stands there. `cellSize`: metres. Where no
/// zone is, a cell has the dose that the user gives the channel.
std::optional<GridRule> generatePRE(std::string_view path, int cellSize,
                                    std::span<const ChannelZones> channels, const Desk& desk);

/// What a VRT file says of itself.
struct VrtTexts {
    std::string name;
    std::string description;
};

/// A VRT file. `resolution`: metres. Where no zone is, a cell has the dose 0.
std::optional<GridRule> generateVRT(std::string_view path, float resolution, const VrtTexts& about,
                                    std::span<const ChannelZones> channels, const Desk& desk);

/// The path of the report beside a PRE file: its last three characters are "rpt".
[[nodiscard]] std::string companionPath(std::string_view path);

/// Why a PRE file cannot be written there whatever it holds: beside it stands a report that is not
/// blank, which consoles would lose their work with. None when there is none or a blank one.
[[nodiscard]] std::optional<Failure> whyReportStands(std::string_view path);

/// Bytes of the blank report, all zero, beside a grid of that many cells.
[[nodiscard]] std::size_t companionSize(std::size_t cells);

}  // namespace campora
