// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "lots/lot.h"
#include "model/file_gph_group.h"
#include "platform/desk.h"

namespace campora {

/// Opens a lot file; null when it cannot be read or has no vertices, which is told.
[[nodiscard]] std::unique_ptr<FileGphGroup> loadLot(std::string_view path, const Desk& desk);

/// An entry of the file list with a layer a lot and their figures in its summary: hectares and
/// perimeter in all, vertices, and the description of the first lot. Not empty. `path` may be
/// empty: of no file.
[[nodiscard]] std::unique_ptr<FileGphGroup> makeLotGroup(std::span<const Lot> lots,
                                                         std::string_view path,
                                                         std::string_view name,
                                                         const UserLocale& locale);

}  // namespace campora
