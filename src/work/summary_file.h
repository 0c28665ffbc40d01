// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>
#include <string>
#include <string_view>

#include "model/file_properties.h"

namespace campora {

/// The entries of a work summary: a line each of name, value and unit, separated by commas; fields
/// in double quotes may hold commas (RFC 4180, without line ends inside a field). The name's last
/// character gives way to ":". A blank line or one of another shape ends the summary.
[[nodiscard]] FileProperties decodeSummary(std::string_view bytes);

/// What stands around the entries of a summary file and goes back with them when they are changed.
struct SummaryFrame {
    bool utf8 = false;  ///< else Windows-1252, as texts that leave it open are
    std::string byteOrderMark;
    /// From the first line of another shape on.
    std::string unread;
};

struct SummaryContent {
    FileProperties entries;
    SummaryFrame frame;
};
[[nodiscard]] SummaryContent splitSummary(std::string_view bytes);

/// The bytes of a summary file with these entries, a ":" behind every property: a line each, every
/// field in double quotes, which are doubled inside (RFC 4180), CR LF at the end.
[[nodiscard]] std::string encodeSummary(std::span<const SummaryEntry> entries,
                                        const SummaryFrame& frame);

/// Fills `summary` from a file and notes the file as its source. A file that cannot be read leaves
/// the summary empty and without source; an empty path changes nothing.
void loadSummaryFile(std::string_view path, FileProperties& summary);

}  // namespace campora
