// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/failure.h"
#include "export/export_progress.h"
#include "model/gph.h"
#include "platform/user_locale.h"

namespace campora {

struct TextTableForm {
    /// Column names are cut to that many characters.
    std::uint16_t longestName = kWholeNames;
    std::string separator = "\t";
    /// Takes the place of the user's decimal symbol, in every data line and wherever it stands.
    char decimalSymbol = '.';

    static constexpr std::uint16_t kWholeNames = 65535;
};

/// A table of the points of the layers, in Windows-1252, lines ended by CR LF: a heading, then a
/// line a point with its longitude and latitude in degrees and, when every layer with points has
/// data, the cells of its row as the user's locale writes them. Each column of a layer stands there
/// once, by its name, blank for layers that lack it. Swath widths stand in centimetres in rows of
/// reports, in metres in those of track files unless the columns of the layers differ. Layers
/// without points are left out; a map without any point is a failure. A failure leaves the file
/// that was there, as cancelling does.
[[nodiscard]] std::optional<Failure> txtExport(std::span<const Gph* const> layers,
                                               std::string_view path, const TextTableForm& form,
                                               const UserLocale& locale, ExportProgress& progress);

}  // namespace campora
