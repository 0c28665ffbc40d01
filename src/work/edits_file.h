// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/failure.h"
#include "model/file.h"
#include "model/summary_edits.h"

namespace campora {

// The edits of a summary that has no file of its own stand in a file beside the report: JSON in
// UTF-8 with the number of its form and the SHA-256 of the report, so that they are never laid over
// other figures than those that were edited.

/// The file of edits of the file at `path`, which need not be there.
[[nodiscard]] std::string editsPath(std::string_view path);

struct ReadEdits {
    SummaryEdits edits;
    /// Why the edits that are there are not used; they are empty then.
    std::optional<Failure> unused = {};
};

/// The edits of the file at `path`; empty where nothing was edited.
[[nodiscard]] ReadEdits readEdits(std::string_view path);

/// Keeps the edits beside the file at `path`, in place of those that are there; no edits, no file.
/// A failure names the file and the reason and changes nothing.
[[nodiscard]] std::optional<Failure> writeEdits(std::string_view path, const SummaryEdits& edits);

/// Lays the edits that are kept beside a file over its summary; remarks where they cannot be used.
void addKeptEdits(File& file);

}  // namespace campora
