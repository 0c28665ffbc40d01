// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/findings/compare_commands.h"

#include <algorithm>
#include <utility>

#include "app/findings/deviation_layer.h"
#include "app/mode_switch.h"
#include "base/numbers.h"

namespace campora {

namespace {

std::optional<int> shownChannel(const MapStyle& style) {
    return style.selectedChannel < 0 ? std::nullopt : std::optional(style.selectedChannel);
}

}  // namespace

OpenMap::MakeModeLayer deviationMode(PlanOf planOf, std::shared_ptr<NetWorks> works) {
    return [planOf = std::move(planOf), works = std::move(works)](const OpenMap& open) {
        std::vector<const WorkLayer*> work;
        std::vector<PlannedJob> jobs;
        std::vector<OpenPrescription> plans;
        for (const File* file : open.files().all()) {
            const std::vector<const WorkLayer*> layers = workLayers(*file);
            if (!layers.empty()) {
                work.insert(work.end(), layers.begin(), layers.end());
                jobs.push_back({layers, plans.emplace_back(planOf(*file)).source});
            }
        }
        const std::shared_ptr<const NetWork> net = works->of(std::move(work), open.files());
        return makeDeviationLayer(jobs, net->hectares(), shownChannel(open.style()));
    };
}

std::optional<TextId> CompareCommands::whyNot() const {
    if (isMapOn()) {
        return std::nullopt;  // it can be switched off, whatever has been closed
    }
    if (!hasJob(map_.files())) {
        return TextId::WhyNoJob;
    }
    return hasPrescription(map_.files()) ? std::nullopt : std::optional(TextId::WhyNoPrescription);
}

void CompareCommands::toggleMap() {
    if (!whyNot()) {
        toggleModeLayer(map_, display_, ColorMode::Deviation,
                        deviationMode([this](const File& job) { return planOf(job); }, works_));
    }
}

std::vector<const File*> CompareCommands::jobs() const {
    std::vector<const File*> jobs;
    for (const File* file : map_.files().all()) {
        if (!workLayers(*file).empty()) {
            jobs.push_back(file);
        }
    }
    return jobs;
}

std::optional<std::size_t>
CompareCommands::currentOf(const File& job, const std::vector<PrescriptionMatch>& matches) const {
    const auto chosen = chosen_.find(job.File_path());
    if (chosen != chosen_.end()) {
        const auto match =
            std::find_if(matches.begin(), matches.end(), [&](const PrescriptionMatch& each) {
                return each.prescription->key == chosen->second;
            });
        if (match != matches.end()) {
            return static_cast<std::size_t>(match - matches.begin());
        }
    }
    return guessedPrescription(matches);
}

std::shared_ptr<const NetWork> CompareCommands::netWork(const File& job) const {
    return works_->of(workLayers(job), map_.files());
}

OpenPrescription CompareCommands::planOf(const File& job) const {
    std::vector<OpenPrescription> open = openPrescriptions(map_.files());
    const auto current = currentOf(job, matchPrescriptions(*netWork(job), open));
    return current ? std::move(open[*current]) : OpenPrescription();
}

CompareCommands::Choices CompareCommands::choices(const File& job) const {
    constexpr double kPerCent = 100;
    const std::vector<OpenPrescription> open = openPrescriptions(map_.files());
    const auto matches = matchPrescriptions(*netWork(job), open);
    const std::optional<std::size_t> guessed = guessedPrescription(matches);
    Choices choices;
    choices.current = currentOf(job, matches);
    for (const auto& [prescription, common] : matches) {
        const TextId text =
            choices.all.size() == guessed ? TextId::CompareGuessed : TextId::CompareCommon;
        choices.all.push_back(
            {prescription->key,
             map_.desk().texts.format(
                 text, {prescription->name, numberText(roundHalfEven(common * kPerCent))})});
    }
    return choices;
}

void CompareCommands::choose(const File& job, const std::string& key) {
    chosen_[job.File_path()] = key;
    if (isMapOn()) {
        map_.refreshColorScale();
        display_.showLegend();
        display_.styleChanged();
    }
}

void CompareCommands::setLimit(int percent) {
    writeNumber(settings_, SettingId::CompareLimit, std::clamp(percent, 0, kMostCompareLimit));
}

std::optional<ComparisonTexts> CompareCommands::compare(const File& job) const {
    const OpenPrescription plan = planOf(job);
    if (plan.source == nullptr) {
        return std::nullopt;
    }
    const std::shared_ptr<const NetWork> work = netWork(job);
    const auto channels = channelPairs(work->layers(), *plan.source, shownChannel(map_.style()));
    const File* const jobs[] = {&job};
    return comparisonTexts(compareDoses(*work, *plan.source, channels, limit()), limit(),
                           productUnit(jobs, map_.desk().texts), map_.desk());
}

}  // namespace campora
