// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/open_map.h"
#include "model/file.h"
#include "platform/desk.h"

namespace campora {

/// Whether the file may go from the map: asks when it holds doses that were changed, or lots that
/// were made here, and they are on no disk.
[[nodiscard]] bool mayLose(const File& file, const Desk& desk);
/// The same for all open files.
[[nodiscard]] bool mayCloseFiles(const OpenMap& map);

}  // namespace campora
