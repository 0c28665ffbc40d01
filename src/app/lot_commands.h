// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "lots/lot_file.h"
#include "model/file.h"

namespace campora {

class Session;

/// The lots of a file; empty when it holds anything else.
[[nodiscard]] std::vector<LotFile> lotsOf(const File& file);
[[nodiscard]] bool isOneLot(const File& file);

/// "lote07.lot"
[[nodiscard]] std::string lotFileName(int number);
/// What the question for a lot's number proposes: the number in the file's name, else the first of
/// which there is no file in the folder of lots; empty when all are taken.
[[nodiscard]] std::string proposedLotNumber(const Session& session, std::string_view path);
/// Where the user wants a lot, ended as a lot file; empty when the user cancels. Its folder is
/// proposed the next time.
[[nodiscard]] std::string askLotTarget(const Session& session, const std::string& name);

/// Shows the lot that a file holds as the current file: in the place of `untitled` (may be null) or
/// of what the list has from that path, else below the others. Null when it cannot be read.
const File* putLotOnMap(Session& session, const std::string& path, const File* untitled);

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
    /// earlier one.
    void mnuLoteMerge();
    [[nodiscard]] bool canMerge() const;

private:
    /// Those of all open files.
    [[nodiscard]] std::vector<LotFile> openLots() const;
    void tell(const std::string& text) const;

    Session& session_;
};

}  // namespace campora
