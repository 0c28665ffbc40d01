// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "model/coordinate_system.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "base/encoding.h"
#include "base/text.h"

namespace campora {

namespace {

/// Datums that move with the plates or agree with those that do, letters and digits alone.
constexpr std::string_view kWorldDatums[] = {"wgs1984",
                                             "wgs84",
                                             "worldgeodeticsystem1984",
                                             "sirgas",
                                             "posgar",
                                             "etrs",
                                             "etrf",
                                             "itrf",
                                             "northamerican1983",
                                             "nad83",
                                             "nad1983",
                                             "gda",
                                             "nzgd2000",
                                             "jgd2",
                                             "japanesegeodetic",
                                             "cgcs2000",
                                             "china2000",
                                             "unknown",
                                             "redgeodesicadechile",
                                             "magna",
                                             "marcogeocentrico",
                                             "peru96",
                                             "rgf93",
                                             "rgf1993",
                                             "europeanterrestrial",
                                             "geocentricdatumofaustralia",
                                             "sistemadereferenciageocentrico",
                                             "posicionesgeodesicasargentinas",
                                             "newzealandgeodeticdatum2000",
                                             "notspecified"};

/// The quoted name after `keyword` and its bracket; empty when there is none.
std::string nameAfter(std::string_view text, std::string_view keyword) {
    const std::string lower = lowerCase(text);
    for (const char bracket : {'[', '('}) {
        const std::string sought = std::string(keyword) + bracket;
        const std::size_t at = lower.find(sought);
        if (at == std::string::npos) {
            continue;
        }
        const std::size_t first = text.find('"', at);
        const std::size_t last =
            first == std::string_view::npos ? first : text.find('"', first + 1);
        if (last != std::string_view::npos) {
            return std::string(text.substr(first + 1, last - first - 1));
        }
    }
    return {};
}

}  // namespace

CoordinateSystem coordinateSystemOf(std::string_view text) {
    CoordinateSystem system;
    for (const std::string_view keyword : {"projcs", "projcrs", "projectedcrs"}) {
        if (system.projection.empty()) {
            system.projection = nameAfter(text, keyword);
        }
    }
    for (const std::string_view keyword : {"datum", "trf", "geodeticdatum", "ensemble"}) {
        if (system.datum.empty()) {
            system.datum = nameAfter(text, keyword);
        }
    }
    return system;
}

bool isWorldDatum(std::string_view datum) {
    std::string name;
    for (const char letter : lowerCase(datum)) {
        const bool counts = (letter >= 'a' && letter <= 'z') || (letter >= '0' && letter <= '9');
        if (counts) {
            name += letter;
        }
    }
    if (datum.starts_with("D_")) {
        name.erase(0, 1);
    }
    return name.empty() ||
           std::any_of(std::begin(kWorldDatums), std::end(kWorldDatums),
                       [&name](std::string_view world) { return name.starts_with(world); });
}

}  // namespace campora
