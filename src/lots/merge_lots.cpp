// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "lots/merge_lots.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

#include "base/numbers.h"
#include "lots/merge_outlines.h"

namespace campora {

namespace {

std::string mergedDescription(std::span<const Lot> lots, std::span<const std::size_t> which) {
    std::vector<std::string> kept;
    for (const std::size_t index : which) {
        for (std::string& line : descriptionLines(lots[index].description)) {
            const bool isNew = std::find(kept.begin(), kept.end(), line) == kept.end();
            if (isNew && kept.size() < kLotDescriptionLines) {
                kept.push_back(std::move(line));
            }
        }
    }
    std::string text;
    for (const std::string& line : kept) {
        text.append(line).append("\r\n");
    }
    return text;
}

}  // namespace

MergedLots mergeLots(std::span<const Lot> lots) {
    std::vector<Ring> rings;
    for (const Lot& lot : lots) {
        rings.push_back(lot.vertices);
    }
    MergedOutlines outlines = mergeOutlines(rings);
    MergedLots merged;
    merged.holes = outlines.holes;
    merged.withoutArea = outlines.withoutArea;
    for (std::size_t i = 0; i < outlines.rings.size(); ++i) {
        merged.lots.push_back(
            {std::move(outlines.rings[i]), mergedDescription(lots, outlines.sources[i])});
    }
    return merged;
}

std::vector<std::string> mergeRemarks(const MergedLots& merged, const Texts& texts) {
    if (merged.lots.empty()) {
        return {std::string(texts(TextId::MergeWithoutArea))};
    }
    std::vector<std::string> remarks;
    if (merged.lots.size() > 1) {
        remarks.push_back(texts.format(TextId::MergeApart, {numberText(merged.lots.size())}));
    }
    if (merged.holes > 0) {
        remarks.push_back(texts.format(TextId::MergeHoles, {numberText(merged.holes)}));
    }
    if (merged.withoutArea > 0) {
        remarks.push_back(
            texts.format(TextId::MergeLotsWithoutArea, {numberText(merged.withoutArea)}));
    }
    return remarks;
}

}  // namespace campora
