// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/map_display.h"
#include "app/map_tools.h"
#include "app/open_map.h"
#include "app/presc/prescription_checkup.h"
#include "base/lon_lat.h"
#include "base/text_id.h"
#include "platform/settings_store.h"
#include "presc/gph_presc_vex.h"

namespace campora {

/// The commands of the prescription: there is one or none among the open files.
class PrescCommands {
public:
    /// The maps of the channels with their dose columns; none when the user cancels.
    using ChooseChannels = std::function<std::vector<std::unique_ptr<GphPresc>>()>;
    /// A dose of the scale or a new one, from the present one; none when the user cancels.
    using AskDose = std::function<std::optional<float>(const ColorScale& scale, float current)>;

    /// All of it outlives this.
    PrescCommands(OpenMap& map, MapDisplay& display, MapTools& tools, SettingsStore& settings)
        : map_(map), display_(display), tools_(tools), settings_(settings) {}

    // Set by the window; without them the user cancels.
    ChooseChannels chooseChannels;
    AskDose askDose;

    /// Shows the page of a prescription that was read back; without it nobody sees one.
    std::function<void(std::unique_ptr<PrescriptionCheckup> checkup)> showCheck;

    /// Null when there is none.
    [[nodiscard]] GphPrescVex* prescription() const;
    [[nodiscard]] bool isOpen() const { return prescription() != nullptr; }

    /// Makes a prescription of maps that the user chooses, shown on top of the open files, or
    /// closes the one that is open.
    void mnuFilePrescript();
    [[nodiscard]] TextId prescriptCaption() const;
    /// Asks where to and for the swath width, and writes a PRE file.
    void mnuFileSavePrescript();
    /// Asks where to, for the resolution, a name and a description, and writes a VRT file.
    void saveVrt();
    /// Why no file of a prescription can be checked; none when one can.
    [[nodiscard]] std::optional<TextId> whyNotCheck() const;
    /// Reads a grid that is open from the disk again, the selected one before others, and shows its
    /// page; without a grid the file that the prescription was saved to last.
    void check();
    /// Asks for the dose of the current channel's zone at the position; nothing where none is.
    /// Without a prescription it lays the tool down.
    void changeDose(LonLat position);

private:
    /// Where the user wants the prescription; empty when the user cancels.
    [[nodiscard]] std::string askTarget(TextId filter, std::string_view ending) const;
    /// Metres; none when the user cancels or types something else, which is said.
    [[nodiscard]] std::optional<double> askCellSize(const std::string& target) const;
    /// From now on the figures are those of the grid that was written.
    void saved(GphPrescVex& prescription, const std::string& path, GridRule rule);

    /// The open grid that is checked; null for none.
    [[nodiscard]] const GridLayer* openGrid() const;
    void checkSaved();

    struct Saved {
        std::string path;
        GridRule rule;
    };

    OpenMap& map_;
    MapDisplay& display_;
    MapTools& tools_;
    SettingsStore& settings_;
    /// What was written last of the prescription that is open.
    std::optional<Saved> saved_;
    /// Metres: the size of the cells that were written last, by which a new prescription counts its
    /// figures.
    double cellMetres_ = GridRule().metres;
};

}  // namespace campora
