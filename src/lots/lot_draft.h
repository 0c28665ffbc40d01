// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "base/lon_lat.h"
#include "lots/lot.h"

namespace campora {

class File;

/// What a drawn lot stands for when it is saved.
struct LotOrigin {
    /// The file that holds it; empty while it is on no disk.
    std::string path;
    /// Of a lot on no disk: its entry in the file list, or null. It may be gone by now.
    const File* entry = nullptr;
};

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
    [[nodiscard]] const LotOrigin& origin() const { return home_.origin; }

    void select(std::optional<std::size_t> index);
    /// A new last vertex, selected.
    void append(LonLat position);
    void moveTo(std::size_t index, LonLat position);
    /// A new vertex halfway from this one to the next, selected; behind the last one that is the
    /// way back to the first.
    void insertAfter(std::size_t index);
    /// The vertex before it is selected then.
    void remove(std::size_t index);
    /// Begins another lot, of no origin; what there was can be brought back whole.
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

    [[nodiscard]] bool canUndo() const { return !undo_.empty(); }
    [[nodiscard]] bool canRedo() const { return !redo_.empty(); }
    void undo();
    void redo();

    /// Another lot in place of this one, as it is in its file: nothing to undo.
    void start(Lot lot, LotOrigin origin = {});
    /// The lot is in a file as it is now.
    void markSaved(std::string path);
    /// Whether there are vertices that would be lost; those that were cleared away unsaved count
    /// until something is saved.
    [[nodiscard]] bool isChanged() const;

private:
    /// Where the lot comes from, and what is there.
    struct Home {
        LotOrigin origin;
        Lot saved;
    };
    struct Whole {
        std::string description;
        Home home;
    };
    struct State {
        std::vector<LonLat> vertices;
        std::optional<std::size_t> selected;
        /// Whether a lot that was not saved was cleared away before.
        bool afterUnsaved = false;
        /// Of steps to another lot.
        std::optional<Whole> whole;
    };
    using Steps = std::deque<State>;

    void change() { keep(now_); }
    /// Whether these vertices with the description are not in the lot's file.
    [[nodiscard]] bool isUnsaved(const std::vector<LonLat>& vertices) const;
    void keep(State state);
    void step(Steps& from, Steps& to);

    State now_;
    std::string description_;
    Home home_;
    Steps undo_;
    Steps redo_;
    /// What there was before the move.
    std::optional<State> before_;
};

}  // namespace campora
