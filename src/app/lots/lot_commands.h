// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "lots/lot.h"
#include "model/file.h"

namespace campora {

class Session;

/// The lots of a file; empty when it holds anything else.
[[nodiscard]] std::vector<Lot> lotsOf(const File& file);
[[nodiscard]] bool isOneLot(const File& file);

/// Lots are numbered from 0 on, below this.
inline constexpr int kLotNumbers = 100;

/// "lote07.lot"
[[nodiscard]] std::string lotFileName(int number);
/// What the question for a lot's number proposes: the number in the file's name, else the first of
/// which there is no file in the folder of lots; empty when all are taken.
[[nodiscard]] std::string proposedLotNumber(const Session& session, std::string_view path);
/// Where the user wants a lot, ended as a lot file; empty when the user cancels. Its folder is
/// proposed the next time.
[[nodiscard]] std::string askLotTarget(const Session& session, const std::string& name);

/// Shows the lot that a file holds as the current file: in the place of `untitled` (may be null) or
/// of what the list has from that path, else below the others. What the list has from that path
/// goes in any case: it is not what the file holds any more. False when it cannot be read.
bool putLotOnMap(Session& session, const std::string& path, const File* untitled);

/// The commands on lots that are open.
class LotCommands {
public:
    /// `session` outlives this.
    explicit LotCommands(Session& session) : session_(session) {}

    /// Opens the editor, or closes it.
    void mnuLote();
    /// Opens the editor with the selected lot.
    void mnuLoteEdit();
    [[nodiscard]] bool canEdit() const;
    /// Asks where to and writes the lots of the selected file, one a file.
    void mnuLoteSave();
    [[nodiscard]] bool canSave() const;
    /// Shows the union of all open lots as a file of its own, on no disk yet, in place of an
    /// earlier one. That one is merged only when no other lots are open: what the user has taken
    /// off the map must not come back with it.
    void mnuLoteMerge();
    [[nodiscard]] bool canMerge() const;
    /// The files whose lots are in a result of merging that is on no disk yet.
    [[nodiscard]] std::span<const std::string> mergedFrom() const;
    /// Whether the file may go: asks when it is a result of merging that is on no disk yet.
    [[nodiscard]] bool mayLose(const File& file) const;
    /// The same for all open files.
    [[nodiscard]] bool mayClose() const;

private:
    /// Those of all open files that are, or are not, on disk.
    [[nodiscard]] std::vector<Lot> openLots(bool unsaved) const;
    [[nodiscard]] std::vector<Lot> lotsToMerge() const;
    void tell(const std::string& text) const;

    /// Shows what was saved in place of the lots of `file`.
    void showSaved(const File& file, const std::vector<std::string>& paths) const;

    Session& session_;
    /// Of the last merging.
    std::vector<std::string> mergedFrom_;
};

}  // namespace campora
