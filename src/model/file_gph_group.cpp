// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "model/file_gph_group.h"

#include <string_view>
#include <utility>

#include "base/text.h"
#include "model/shown_number.h"

namespace campora {

namespace {

/// Summaries are data: the name of an entry is the same in every language.
constexpr std::string_view kErrorHectares = "Hectareas Error";

}  // namespace

void FileGphGroup::addGph(std::unique_ptr<Gph> gph) {
    bound_.addGph(*gph);
    layers_.push_back(std::move(gph));
}

void FileGphGroup::recalcBound() {
    bound_.clear();
    for (const auto& layer : layers_) {
        bound_.addGph(*layer);
    }
}

void FileGphGroup::calcErrorArea(const MapStyle& style, const UserLocale& locale) {
    double hectares = 0;
    bool specified = false;
    for (const auto& layer : layers_) {
        if (const auto* work = dynamic_cast<const WorkLayer*>(layer.get())) {
            specified = specified || work->hasSpecifiedDose();
            hectares += style.mode == ColorMode::Error
                            ? work->getHectareasError(style, style.errorLimit)
                            : 0.0F;
        }
    }
    if (!specified) {
        return;
    }
    if (style.mode != ColorMode::Error) {
        summary_.setProperty(kErrorHectares, "", "");
        return;
    }
    summary_.setProperty(kErrorHectares, shownNumber(hectares, locale), "Has");
}

void FileGphGroup::clearAlarmas() {
    for (const auto& layer : layers_) {
        if (auto* work = dynamic_cast<WorkLayer*>(layer.get())) {
            work->clearAlarmas();
        }
    }
}

std::string FileGphGroup::File_path() const {
    return lowerCase(path);
}

std::vector<Gph*> FileGphGroup::File_gphList() const {
    std::vector<Gph*> layers;
    layers.reserve(layers_.size());
    for (const auto& layer : layers_) {
        layers.push_back(layer.get());
    }
    return layers;
}

}  // namespace campora
