// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "base/texts.h"
#include "model/file.h"
#include "platform/main_window_controls.h"

namespace campora {

/// The summary of a file as the window shows it, in the user's words, with what was edited by hand
/// and the remarks on the file; none without a file.
[[nodiscard]] std::vector<SummaryRow> summaryRows(File* file, const Texts& texts);

}  // namespace campora
