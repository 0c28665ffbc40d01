// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <string>
#include <vector>

#include "model/exportable.h"
#include "model/file.h"
#include "presc/gph_presc.h"

namespace campora {

/// A prescription under work: a layer of zones for each product channel, shown as one file. One
/// channel is current: its layer is on the map and its scale in the legend. Channels count from 0.
class GphPrescVex final : public File, public MultiChannel {
public:
    /// `name`: as the list of files and the title show it.
    explicit GphPrescVex(std::string name = "Prescripción") : name_(std::move(name)) {}

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

    /// Throws `std::out_of_range` for a bad channel.
    void setCurrentChannel(int channel) override;
    [[nodiscard]] int channelsCnt() const override { return static_cast<int>(channels_.size()); }

    [[nodiscard]] std::string File_name() const override { return name_; }
    [[nodiscard]] std::string File_path() const override { return name_; }
    [[nodiscard]] std::string File_diskPath() const override { return {}; }
    [[nodiscard]] bool File_visible() const override { return true; }
    [[nodiscard]] std::string File_icon() const override { return "dosis"; }
    /// Null while there is no channel.
    [[nodiscard]] ColorScale* File_escalaColores() override;
    /// File and column of every channel, then surface and total product of every channel, by the
    /// doses that the zones have now.
    [[nodiscard]] FileProperties& File_resumen() override;
    [[nodiscard]] const BoundingBox& File_bound() const override { return bound_; }
    /// The current channel's layer.
    [[nodiscard]] std::vector<Gph*> File_gphList() const override;
    [[nodiscard]] std::string File_id() const override { return {}; }
    [[nodiscard]] std::int32_t File_priority() const override { return 0; }

private:
    std::string name_;
    std::vector<std::unique_ptr<GphPresc>> channels_;
    int current_ = 0;
    BoundingBox bound_;
    FileProperties summary_;
    bool summaryIsStale_ = false;
    std::vector<ColorScale::Subscription> changes_;
};

}  // namespace campora
