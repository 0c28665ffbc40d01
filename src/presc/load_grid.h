// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <string_view>

#include "base/files.h"
#include "base/texts.h"
#include "model/map_style.h"
#include "platform/dialogs.h"
#include "platform/user_locale.h"
#include "presc/grid_layer.h"

namespace campora {

/// What the reader of grids needs from outside.
struct GridReaderContext {
    Dialogs& dialogs;
    const UserLocale& locale;
    const Texts& texts;
    const MapColors& colors;
};

/// Opens a prescription of either kind, which its first bytes tell. What is wrong with the file is
/// told through the dialogs; null then.
[[nodiscard]] std::unique_ptr<GridLayer> loadGrid(std::string_view path,
                                                  const GridReaderContext& context);

/// The same for bytes that have been read already; null without a message when they are neither
/// kind. Throws `FormatError` for a file that breaks its format.
[[nodiscard]] std::unique_ptr<GridLayer> readGrid(std::string_view path, const FileBytes& file,
                                                  const GridReaderContext& context);

}  // namespace campora
