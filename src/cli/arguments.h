// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "app/out/export_formats.h"
#include "app/out/track_export.h"
#include "app/presc/check_page.h"
#include "base/lon_lat.h"
#include "base/texts.h"
#include "findings/compare.h"
#include "model/map_style.h"
#include "model/number_column.h"
#include "platform/dialogs.h"
#include "presc/grid_layout.h"

namespace campora {

enum class Command {
    Info,
    Render,
    Export,
    ExportTrack,
    ReportToText,
    Glg,
    Prescribe,
    Lot,
    Merge,
    Orders,
    Project,
    Compare,
    Passes,
    Problems,
    Coverage
};

struct PixelSize {
    int width = 0;
    int height = 0;

    bool operator==(const PixelSize&) const = default;
};

/// Which order is to be copied where.
struct OrderCopy {
    std::int32_t number = 0;
    std::string destination;

    bool operator==(const OrderCopy&) const = default;
};

/// Where a channel of a prescription has its doses from.
struct ChannelSource {
    std::string file;
    std::string column;
    /// The answer to the question for the dose of cells without a zone; none: what the question
    /// proposes.
    std::optional<std::string> fallback;

    bool operator==(const ChannelSource&) const = default;
};

/// What a prescription is made of.
struct PrescriptionRequest {
    GridKind kind = GridKind::Pre;
    std::vector<ChannelSource> channels;
    /// Blank cells of the columns are ground outside every zone.
    bool blanksOutside = false;
    /// How the columns write their numbers; none: as it is plain.
    std::optional<DecimalSign> decimal;
    /// The answer to the question about a grid that is too large.
    Answer oversize = Answer::No;
    /// Metres, of a VRT file.
    std::optional<float> resolution;
    std::string name;
    std::string description;
};

/// A command line of the batch program, taken apart.
struct Arguments {
    Command command = Command::Info;
    std::vector<std::string> files;
    /// Opened after the files.
    std::vector<std::string> lots;

    Language language = Language::Spanish;
    char decimalSymbol = '.';
    std::string dateForm = "dd/mm/yyyy";
    /// Empty: the installed data.
    std::string programFolder;
    /// The answer to the question for the swath width; none: what the question proposes.
    std::optional<std::string> swath;
    /// The answer to the question for the columns of a text table.
    std::string columns = "8";
    /// The answer to every Yes/No question.
    bool yes = false;

    bool json = false;
    bool csv = false;

    std::optional<OrderCopy> copy;
    PrescriptionRequest prescription;
    /// Reads the prescription back when it has been written, or one that is there.
    bool check = false;
    CheckWishes checkWishes;

    /// Of an export; not null then.
    const ExportFormat* exportFormat = nullptr;
    TrackExportOptions trackExport;
    /// The decimal symbol of a report's text table.
    bool comma = false;

    /// The channel of the jobs that is compared, from 0; none: all.
    std::optional<int> comparedChannel;
    /// Per cent: the deviation that is allowed.
    double limit = kUsualLimit;
    /// What a picture of deviations compares the jobs with.
    std::string plan;

    /// Of a lot.
    std::vector<LonLat> vertices;
    std::string description;

    std::string output;
    PixelSize size{1200, 900};
    /// Whether the classes lie around the target dose, and that dose.
    bool aroundTarget = false;
    std::optional<double> target;
    /// What the options say about the looks of the map.
    MapStyle style;
    bool overlay = true;
};

}  // namespace campora
