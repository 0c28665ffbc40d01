// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "base/lon_lat.h"
#include "lots/lot_file.h"

namespace campora {

/// A lot while it is drawn: its vertices, the one that is selected, its description, and every
/// change of the vertices to be undone and done again. Indices count from 0; one that there is not
/// changes nothing.
class LotDraft {
public:
    /// Changes that can be undone; older ones are forgotten.
    static constexpr std::size_t kMostSteps = 200;

    [[nodiscard]] const std::vector<LonLat>& vertices() const { return now_.vertices; }
    [[nodiscard]] std::optional<std::size_t> selected() const { return now_.selected; }
    [[nodiscard]] const std::string& description() const { return description_; }
    void setDescription(std::string text) { description_ = std::move(text); }

    void select(std::optional<std::size_t> index);
    /// A new last vertex, selected.
    void append(LonLat position);
    void moveTo(std::size_t index, LonLat position);
    /// A new vertex halfway from this one to the next, selected; behind the last one that is the
    /// way back to the first.
    void insertAfter(std::size_t index);
    /// The vertex before it is selected then.
    void remove(std::size_t index);
    /// Neither vertices nor description.
    void clear();
    [[nodiscard]] LonLat halfwayFrom(std::size_t index) const;

    // A vertex is moved in many small steps that are one change. Other changes end the move first.
    /// Picks a vertex.
    void beginMove(std::size_t index);
    /// Inserts a vertex as `insertAfter` and picks it.
    void beginInsert(std::size_t index);
    void move(LonLat position);
    /// `keep`: false puts everything back as it was before the move.
    void endMove(bool keep);
    [[nodiscard]] bool isMoving() const { return before_.has_value(); }

    [[nodiscard]] bool canUndo() const { return !undo_.empty(); }
    [[nodiscard]] bool canRedo() const { return !redo_.empty(); }
    void undo();
    void redo();

    /// Another lot in place of this one, as it is in its file: nothing to undo.
    void start(LotFile lot);
    /// The lot is in a file as it is now.
    void markSaved();
    /// Whether there are vertices that would be lost.
    [[nodiscard]] bool isChanged() const;

private:
    struct State {
        std::vector<LonLat> vertices;
        std::optional<std::size_t> selected;
        /// Of steps that change it.
        std::optional<std::string> description;
    };
    using Steps = std::deque<State>;

    void change() { keep(now_); }
    void keep(State state);
    void step(Steps& from, Steps& to);

    State now_;
    std::string description_;
    LotFile saved_;
    Steps undo_;
    Steps redo_;
    /// What there was before the move.
    std::optional<State> before_;
};

}  // namespace campora
