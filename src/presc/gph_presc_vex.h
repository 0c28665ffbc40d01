// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "model/dose_source.h"
#include "model/file.h"
#include "presc/channel_zones.h"
#include "presc/gph_presc.h"
#include "presc/grid_layout.h"
#include "presc/multi_channel.h"

namespace campora {

/// A prescription under work: a layer of zones for each product channel, shown as one file. One
/// channel is current: its layer is on the map and its scale in the legend. Channels count from 0.
class GphPrescVex final : public File, public MultiChannel, public DoseSource {
public:
    /// `name`: as the list of files and the title show it; `symbol`: decimal, of its summary.
    explicit GphPrescVex(std::string name = "Prescripción", char symbol = '.')
        : name_(std::move(name)), symbol_(symbol) {}

    /// Takes the layer over as the next channel; its dose column is chosen already.
    void addChannel(std::unique_ptr<GphPresc> presc);
    /// Throws `std::out_of_range` for a bad channel.
    [[nodiscard]] GphPresc& channel(int i) { return *channels_.at(static_cast<std::size_t>(i)); }
    [[nodiscard]] const GphPresc& channel(int i) const {
        return *channels_.at(static_cast<std::size_t>(i));
    }
    [[nodiscard]] int currentChannel() const { return current_; }
    /// Whether a channel has doses that were changed and not saved.
    [[nodiscard]] bool dosesChanged() const;
    void dosesSaved();

    /// Channel 1 first, with the doses of now; it holds while no channel changes.
    [[nodiscard]] std::vector<ChannelZones> zones() const;
    /// The rule by which the figures of the summary are counted: that of the grid that was written
    /// last, or would be.
    void setRule(GridRule rule);

    /// Throws `std::out_of_range` for a bad channel.
    void setCurrentChannel(int channel) override;
    void showTotal() override { current_ = 0; }
    [[nodiscard]] int channelsCnt() const override { return static_cast<int>(channels_.size()); }
    [[nodiscard]] int doseChannels() const override { return channelsCnt(); }
    /// The dose that the zone there has now.
    [[nodiscard]] std::optional<float> doseAt(LonLat position, int channel) const override;

    [[nodiscard]] std::string File_name() const override { return name_; }
    [[nodiscard]] std::string File_path() const override { return name_; }
    [[nodiscard]] std::string File_diskPath() const override { return {}; }
    [[nodiscard]] bool File_visible() const override { return true; }
    [[nodiscard]] std::string File_icon() const override { return "dosis"; }
    /// Null while there is no channel.
    [[nodiscard]] ColorScale* File_escalaColores() override;
    /// File and column of every channel, then surface and total product of every channel: sums over
    /// the cells of its grid, by the doses that the zones have now.
    [[nodiscard]] FileProperties& File_resumen() override;
    [[nodiscard]] const BoundingBox& File_bound() const override { return bound_; }
    /// The current channel's layer.
    [[nodiscard]] std::vector<Gph*> File_gphList() const override;
    [[nodiscard]] std::string File_id() const override { return {}; }
    [[nodiscard]] std::int32_t File_priority() const override { return 0; }

private:
    /// How many cells have their dose from each zone of a channel, and how many from none.
    struct CellCount {
        std::vector<std::int64_t> ofZone;
        std::int64_t outside = 0;
    };
    struct Figures {
        double hectares = 0;
        double product = 0;
    };

    void countCells();
    [[nodiscard]] Figures figures(std::size_t channel) const;

    GridRule rule_;
    /// Of every channel; none before they are counted.
    std::vector<CellCount> counts_;
    /// Of the grid that was counted: wider than the rule's where that grid could not be.
    double countedMetres_ = 0;
    std::string name_;
    char symbol_;
    std::vector<std::unique_ptr<GphPresc>> channels_;
    int current_ = 0;
    BoundingBox bound_;
    FileProperties summary_;
    bool summaryIsStale_ = false;
    std::vector<ColorScale::Subscription> changes_;
};

}  // namespace campora
