// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "app/colours/colours.h"
#include "app/findings/findings.h"
#include "app/loaded_file_list.h"
#include "app/lots/lot_commands.h"
#include "app/lots/lot_editor.h"
#include "app/map/replay.h"
#include "app/map_display.h"
#include "app/map_tools.h"
#include "app/open/file_commands.h"
#include "app/open/file_list_commands.h"
#include "app/open/summary_commands.h"
#include "app/open_map.h"
#include "app/out/export_commands.h"
#include "app/presc/presc_commands.h"
#include "base/texts.h"
#include "platform/services.h"

namespace campora {

/// Everything behind one main window, and who works with whom.
class Session {
public:
    /// All of it outlives the session. `programFolder`: where the registrations are.
    Session(MapCanvas& canvas, MainWindowControls& window, const Services& services,
            Language language, std::string programFolder);
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    ~Session() = default;

    /// Start-up: colours and switches from the settings, the registrations, the empty map.
    void start();
    /// Every text of the window from now on, and at the next start.
    void setLanguage(Language language);
    /// How positions are shown, from now on and at the next start.
    void setCoordType(CoordType type);

    [[nodiscard]] const Services& services() const { return services_; }
    [[nodiscard]] const Texts& texts() const { return texts_; }
    [[nodiscard]] OpenMap& map() { return map_; }
    [[nodiscard]] MapDisplay& display() { return display_; }
    [[nodiscard]] MapTools& tools() { return tools_; }
    [[nodiscard]] Replay& replay() { return replay_; }
    [[nodiscard]] FileCommands& fileCommands() { return fileCommands_; }
    [[nodiscard]] FileListCommands& listCommands() { return listCommands_; }
    [[nodiscard]] SummaryCommands& summaryCommands() { return summaryCommands_; }
    [[nodiscard]] Colours& colours() { return colours_; }
    [[nodiscard]] PrescCommands& prescCommands() { return prescCommands_; }
    [[nodiscard]] LotEditor& lotEditor() { return lotEditor_; }
    [[nodiscard]] LotCommands& lotCommands() { return lotCommands_; }
    [[nodiscard]] ExportCommands& exportCommands() { return exportCommands_; }
    [[nodiscard]] Findings& findings() { return findings_; }

private:
    Services services_;
    Texts texts_;
    OpenMap map_;
    MapDisplay display_;
    MapTools tools_;
    Replay replay_;
    FileCommands fileCommands_;
    FileListCommands listCommands_;
    SummaryCommands summaryCommands_;
    Colours colours_;
    PrescCommands prescCommands_;
    LotEditor lotEditor_;
    LotCommands lotCommands_;
    ExportCommands exportCommands_;
    Findings findings_;
};

}  // namespace campora
