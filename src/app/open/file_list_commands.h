// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include "app/map_display.h"
#include "app/open_map.h"

namespace campora {

/// The commands on the list of open files.
class FileListCommands {
public:
    /// Both outlive this.
    FileListCommands(OpenMap& map, MapDisplay& display) : map_(map), display_(display) {}

    /// The user chose a row, or none; a row that is not there is ignored.
    void selectFile(std::optional<int> row);

    // These do nothing without a current file.

    void zoomToCurrentFile();
    enum class Move { Up, Down, Top, Bottom };
    void moveCurrentFile(Move where);
    /// Asks first when something in it would be lost.
    void removeCurrentFile();

private:
    OpenMap& map_;
    MapDisplay& display_;
};

}  // namespace campora
