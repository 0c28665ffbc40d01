// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/findings/comparison_texts.h"
#include "app/findings/net_works.h"
#include "app/findings/open_prescriptions.h"
#include "app/map_display.h"
#include "app/open_map.h"
#include "app/settings.h"
#include "platform/settings_store.h"

namespace campora {

/// Answers what was prescribed for a job; without a source where nothing was.
using PlanOf = std::function<OpenPrescription(const File& job)>;

/// The mode of the map that shows what was applied against what was prescribed, which has no layer
/// without recorded work. Keeps net ground in `works`.
[[nodiscard]] OpenMap::MakeModeLayer deviationMode(PlanOf planOf, std::shared_ptr<NetWorks> works);

/// What was applied in the open jobs beside what the open prescriptions say. Which prescription is
/// for which job follows from the ground until the user says otherwise.
class CompareCommands {
public:
    struct Choice {
        std::string key;
        /// With how much ground it has in common with the job.
        std::string caption;
    };
    /// The prescriptions for a job.
    struct Choices {
        std::vector<Choice> all;
        /// Of the one that is compared; none when no one fits.
        std::optional<std::size_t> current;
    };

    /// All of it outlives this.
    CompareCommands(OpenMap& map, MapDisplay& display, SettingsStore& settings)
        : map_(map), display_(display), settings_(settings) {}

    /// Why nothing can be compared; none when it can, or when the map does so.
    [[nodiscard]] std::optional<TextId> whyNot() const;
    [[nodiscard]] bool isMapOn() const { return map_.style().mode == ColorMode::Deviation; }
    /// The map of deviations, or back to the doses.
    void toggleMap();

    /// The open files with recorded work, in the order of the list.
    [[nodiscard]] std::vector<const File*> jobs() const;
    [[nodiscard]] Choices choices(const File& job) const;
    /// From now on that prescription is for the job, on the map too.
    void choose(const File& job, const std::string& key);
    /// Per cent: how far a dose may be off, from now on and at the next start. What is out of range
    /// becomes the nearest that is not.
    void setLimit(int percent);
    [[nodiscard]] int limit() const { return readNumber(settings_, SettingId::CompareLimit); }
    /// None where nothing was prescribed for the job. Channel by channel as the map shows them.
    [[nodiscard]] std::optional<ComparisonTexts> compare(const File& job) const;

private:
    /// What is compared with a job; without a source when no prescription fits.
    [[nodiscard]] OpenPrescription planOf(const File& job) const;
    [[nodiscard]] std::optional<std::size_t>
    currentOf(const File& job, const std::vector<PrescriptionMatch>& matches) const;
    [[nodiscard]] std::shared_ptr<const NetWork> netWork(const File& job) const;

    OpenMap& map_;
    MapDisplay& display_;
    SettingsStore& settings_;
    /// Shared with the mode of the map.
    std::shared_ptr<NetWorks> works_ = std::make_shared<NetWorks>();
    /// Keys of prescriptions by paths of jobs.
    std::map<std::string, std::string> chosen_;
};

}  // namespace campora
