// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "app/findings/finding_table.h"
#include "app/map_display.h"
#include "app/map_tools.h"
#include "app/open_map.h"
#include "app/work_place.h"
#include "model/gph.h"

namespace campora {

/// The tables of passes and problems of the open work, and the stretch of them that is shown on the
/// map. Nothing is looked for before a table is asked for, and nothing twice in work that has not
/// changed.
class FindingCommands {
public:
    using Kind = FindingTable::Kind;

    /// All of it outlives the commands.
    FindingCommands(OpenMap& map, MapDisplay& display, MapTools& tools);

    /// Another row was selected here, not by who shows the table; may be empty.
    std::function<void(Kind kind)> onSelected;
    /// The stretch of a row is shown on the map, from a record to another of a file; may be empty.
    std::function<void(const WorkPlace& first, std::size_t last)> onShown;

    /// Of the work as it is now. Tables that are found anew have no selected row.
    [[nodiscard]] const FindingTable& table(Kind kind) { return *sharedTable(kind); }
    /// The same for who shows it, perhaps for a moment longer than the work is as it was.
    [[nodiscard]] std::shared_ptr<const FindingTable> sharedTable(Kind kind);
    /// Whether `table` has this table as the work is now.
    [[nodiscard]] bool isFound(Kind kind) const;
    /// The open files are others.
    void filesChanged();

    void sortBy(Kind kind, std::size_t column, bool descending);
    [[nodiscard]] std::optional<std::size_t> selected(Kind kind) const;
    /// Selects a row and shows its stretch on the map; none: no row.
    void select(Kind kind, std::optional<std::size_t> row);
    /// Where the stretch begins that is shown on the map; none without one.
    [[nodiscard]] std::optional<WorkPlace> shown() const { return shown_; }
    /// Shows no stretch on the map any more; rows stay selected.
    void hideStretch();
    /// The whole map for the stretch of a row.
    void zoomTo(Kind kind, std::size_t row);
    /// Selects the next (or previous) problem in the order of the work and brings it into view.
    void stepProblem(bool forward);
    /// Why there is no problem to go to; none when there is one, and before anyone has looked.
    [[nodiscard]] std::optional<TextId> whyNoProblem() const;
    /// Why a table is empty; none when it is not.
    [[nodiscard]] std::optional<TextId> whyEmpty(Kind kind);
    /// Selects what was found at element `n` of a layer, in the tables that were found.
    void selectAt(const Gph& layer, std::int32_t n);

private:
    /// By which changed work is told.
    struct WorkState {
        std::vector<const File*> files;
        std::size_t records = 0;
        double swaths = 0;
        float errorLimit = 0;

        bool operator==(const WorkState&) const = default;
    };
    struct Found {
        /// Shared with who shows it.
        std::shared_ptr<FindingTable> table;
        WorkState work;
        /// In the order of the work, so that sorting leaves it.
        std::optional<std::size_t> selected;
    };

    [[nodiscard]] WorkState workState() const;
    [[nodiscard]] bool hasWork() const;
    [[nodiscard]] Found& found(Kind kind) { return found_[static_cast<std::size_t>(kind)]; }
    [[nodiscard]] const Found& found(Kind kind) const {
        return found_[static_cast<std::size_t>(kind)];
    }
    [[nodiscard]] std::shared_ptr<FindingTable> find(Kind kind) const;
    void showStretch(const FoundStretch& stretch);
    void bringIntoView();
    void addShapes(MapOverlay& overlay) const;

    OpenMap& map_;
    MapDisplay& display_;
    MapTools& tools_;
    std::array<Found, 2> found_;
    /// Of the stretch that is shown on the map.
    std::vector<LonLat> stretch_;
    std::optional<WorkPlace> shown_;
};

}  // namespace campora
