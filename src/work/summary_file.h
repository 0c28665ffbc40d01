// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

#include "model/file_properties.h"

namespace campora {

/// The entries of a work summary: a line each of name, value and unit, separated by commas; fields
/// in double quotes may hold commas (RFC 4180, without line ends inside a field). The name's last
/// character gives way to ":". A blank line or one of another shape ends the summary.
[[nodiscard]] FileProperties decodeSummary(std::string_view bytes);

/// What a summary file holds: its entries and, from the first line of another shape on, the bytes
/// that are none; they belong to the bytes given.
struct SummaryContent {
    FileProperties entries;
    std::string_view unread;
};
[[nodiscard]] SummaryContent splitSummary(std::string_view bytes);

/// Fills `summary` from a file and notes the file as its source. A file that cannot be read leaves
/// the summary empty and without source; an empty path changes nothing.
void loadSummaryFile(std::string_view path, FileProperties& summary);

}  // namespace campora
