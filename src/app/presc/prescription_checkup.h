// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/presc/check_page.h"
#include "platform/settings_store.h"

namespace campora {

/// A file of a prescription that was read back, and what its user keeps to judge it by: the volume
/// of the tank, the product of each channel and the limits of each product. Channels count from 0.
class PrescriptionCheckup {
public:
    /// `file`: null when it could not be read back; `check`: of it. `settings` and what `desk`
    /// refers to outlive this.
    PrescriptionCheckup(std::unique_ptr<GridLayer> file, PrescriptionCheck check, const Desk& desk,
                        SettingsStore& settings);

    [[nodiscard]] CheckPage page() const;
    [[nodiscard]] int channels() const { return static_cast<int>(products_.size()); }

    // As the user types it; what is no number is no volume and no limit. Kept at once.
    [[nodiscard]] const std::string& tank() const { return tank_; }
    void setTank(std::string text);
    [[nodiscard]] const std::string& product(int channel) const;
    /// From now on the limits are those of that product.
    void setProduct(int channel, std::string name);
    [[nodiscard]] std::string least(int channel) const;
    [[nodiscard]] std::string most(int channel) const;
    /// Of the channel's product, which may be without a name.
    void setLimits(int channel, std::string least, std::string most);

private:
    struct Limits {
        std::string least;
        std::string most;
    };

    std::unique_ptr<GridLayer> file_;
    PrescriptionCheck check_;
    Desk desk_;
    SettingsStore& settings_;
    std::string tank_;
    std::vector<std::string> products_;
    std::map<std::string, Limits> limits_;
};

}  // namespace campora
