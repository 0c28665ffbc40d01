// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/gph_presc_vex.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "base/numbers.h"

namespace campora {

namespace {

/// Decimals of the figures, as a factor.
constexpr double kHundredths = 100;

/// "Archivo (C 2)" for channel 1. Summaries are data: their names are the same in every language.
std::string entryName(std::string_view what, std::size_t channel) {
    return std::string(what) + " (C " + numberText(channel + 1) + ")";
}

/// A sprayer is filled by these figures: two decimals whatever their size.
std::string summaryNumber(double value) {
    return numberText(roundHalfEven(value * kHundredths) / kHundredths);
}

}  // namespace

void GphPrescVex::addChannel(std::unique_ptr<GphPresc> presc) {
    if (presc->Gph_bound().isSet) {
        bound_.addBoundingBox(presc->Gph_bound());
    }
    changes_.push_back(presc->escalaColor().onChanged([this] { summaryIsStale_ = true; }));
    channels_.push_back(std::move(presc));
    summaryIsStale_ = true;
}

void GphPrescVex::setCurrentChannel(int channel) {
    static_cast<void>(channels_.at(static_cast<std::size_t>(channel)));
    current_ = channel;
}

ColorScale* GphPrescVex::File_escalaColores() {
    return channels_.empty() ? nullptr : &channel(current_).escalaColor();
}

FileProperties& GphPrescVex::File_resumen() {
    if (!std::exchange(summaryIsStale_, false)) {
        return summary_;
    }
    summary_.clear();
    for (std::size_t i = 0; i < channels_.size(); ++i) {
        const GphPresc& presc = *channels_[i];
        const int column = presc.columnaDosis();
        summary_.addProperty(entryName("Archivo", i), presc.name(), "");
        summary_.addProperty(entryName("Columna", i),
                             column == GphPresc::kNoColumn
                                 ? ""
                                 : presc.columnNames().at(static_cast<std::size_t>(column) - 1),
                             "");
    }
    for (std::size_t i = 0; i < channels_.size(); ++i) {
        summary_.addProperty(entryName("Superficie", i), summaryNumber(channels_[i]->hectares()),
                             "Has");
        summary_.addProperty(entryName("Producto total", i),
                             summaryNumber(channels_[i]->totalProduct()), "");
    }
    return summary_;
}

std::vector<Gph*> GphPrescVex::File_gphList() const {
    if (channels_.empty()) {
        return {};
    }
    return {channels_[static_cast<std::size_t>(current_)].get()};
}

bool GphPrescVex::dosesChanged() const {
    return std::any_of(channels_.begin(), channels_.end(),
                       [](const auto& channel) { return channel->dosesChanged(); });
}

void GphPrescVex::dosesSaved() {
    for (const std::unique_ptr<GphPresc>& channel : channels_) {
        channel->dosesSaved();
    }
}

}  // namespace campora
