// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <string_view>

#include "base/color.h"
#include "base/files.h"
#include "platform/desk.h"
#include "presc/grid_layer.h"

namespace campora {

/// Opens a prescription of either kind, which its first bytes tell. What is wrong with the file is
/// told at the desk; null then. `background`: of the map, for cells without a dose.
[[nodiscard]] std::unique_ptr<GridLayer> loadGrid(std::string_view path, const Desk& desk,
                                                  Color background);

/// The same for bytes that have been read already; null without a message when they are neither
/// kind. Throws `FormatError` for a file that breaks its format.
[[nodiscard]] std::unique_ptr<GridLayer> readGrid(std::string_view path, const FileBytes& file,
                                                  Color background, char decimalSymbol);

}  // namespace campora
