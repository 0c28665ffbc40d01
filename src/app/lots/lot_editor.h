// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <optional>
#include <string>

#include "app/lots/lot_vertex_tool.h"
#include "app/map_display.h"
#include "app/map_tools.h"
#include "app/open_map.h"
#include "app/temporary_folder.h"
#include "lots/lot_draft.h"
#include "platform/settings_store.h"
#include "platform/shell.h"

namespace campora {

/// A lot that is being drawn, with the mouse or in the panel beside the map. While it is open the
/// lot lies over whatever the map shows.
class LotEditor final {
public:
    /// All of it outlives this.
    LotEditor(OpenMap& map, MapDisplay& display, MapTools& tools, SettingsStore& settings,
              Shell& shell);
    LotEditor(const LotEditor&) = delete;
    LotEditor& operator=(const LotEditor&) = delete;
    ~LotEditor() = default;

    /// Called when what the editor shows has changed; may be empty.
    std::function<void()> onChanged;

    [[nodiscard]] bool isOpen() const { return isOpen_; }
    /// Opens with nothing drawn or, when a lot is the selected file and the user agrees, with that.
    void open();
    /// Opens with the lot of a file of the list, in place of what is drawn if the user agrees.
    void edit(const File& file);
    /// False when the user wants to keep what is not saved; the editor stays open then.
    bool close();
    /// Whether what is drawn may be lost: asks when it is not saved.
    [[nodiscard]] bool mayClose() const;

    [[nodiscard]] const LotDraft& draft() const { return draft_; }
    /// The entry of the list that the drawing stands for; the map leaves it out meanwhile, so that
    /// it does not show through. Null for a new lot and while the editor is closed.
    [[nodiscard]] const File* edited() const;

    // Changes; those of the selected vertex do nothing without one.
    void select(std::optional<std::size_t> index);
    void add(LonLat position);
    void moveSelected(LonLat position);
    void insertAfterSelected();
    void removeSelected();
    /// Begins another lot; what is there can be brought back.
    void clear();
    void undo();
    void redo();
    /// At most ten lines count.
    void setDescription(std::string text);

    /// Whether the inside stays open, so that the work under it shows.
    [[nodiscard]] bool isTransparent() const { return transparent_; }
    void setTransparent(bool transparent);

    /// Hectares and perimeter in words.
    [[nodiscard]] std::string figures() const;
    [[nodiscard]] bool crossesItself() const { return crosses_; }
    [[nodiscard]] LonLat middleOfMap() const;
    /// Whether there are vertices enough for a lot.
    [[nodiscard]] bool isWhole() const;

    /// Asks for the lot's number and where to, and writes it; the lot is then on the map.
    void save();
    /// Writes the lot into the file that it came from.
    void saveBack();
    /// Hands the lot to the program that opens KML documents.
    void viewInEarth();

private:
    /// The file that holds the lot; empty for a new one.
    [[nodiscard]] const std::string& path() const { return draft_.origin().path; }
    void start(const File* file);
    /// Everything that follows the vertices.
    void changed();
    [[nodiscard]] bool refuseFewVertices() const;
    /// The answer to the question for the lot's number; none when it is not good or not given.
    [[nodiscard]] std::optional<int> askNumber() const;
    void write(const std::string& target);

    OpenMap& map_;
    MapDisplay& display_;
    MapTools& tools_;
    SettingsStore& settings_;
    Shell& shell_;
    bool isOpen_ = false;
    LotDraft draft_;
    LotVertexTool vertexTool_;
    /// What the map was drawn without; only to be compared.
    const File* hidden_ = nullptr;
    bool transparent_ = true;
    bool crosses_ = false;
    TemporaryFolder documents_;
};

}  // namespace campora
