// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

#include "app/map_display.h"
#include "app/open_map.h"
#include "platform/desk.h"
#include "platform/settings_store.h"

namespace campora {

/// Lots are numbered from 0 on, below this.
inline constexpr int kLotNumbers = 100;

/// The desk with the boxes that are about lots.
[[nodiscard]] inline Desk lotDesk(const OpenMap& map) {
    return map.desk().titled(TextId::LotTitle);
}

/// "lote07.lot"
[[nodiscard]] std::string lotFileName(int number);
/// What the question for a lot's number proposes: the number in the file's name, else the first of
/// which there is no file in the folder of lots; empty when all are taken.
[[nodiscard]] std::string proposedLotNumber(const OpenMap& map, const SettingsStore& settings,
                                            std::string_view path);
/// Where the user wants a lot, ended as a lot file; empty when the user cancels. Its folder is
/// proposed the next time.
[[nodiscard]] std::string askLotTarget(const OpenMap& map, SettingsStore& settings,
                                       const std::string& name);

/// Shows the lot that a file holds as the current file: in the place of `untitled` (may be null) or
/// of what the list has from that path, else below the others. What the list has from that path
/// goes in any case: it is not what the file holds any more. False when it cannot be read.
bool putLotOnMap(OpenMap& map, MapDisplay& display, const std::string& path, const File* untitled);

}  // namespace campora
