// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/presc/column_question.h"
#include "platform/desk.h"
#include "platform/settings_store.h"
#include "presc/channel_zones.h"
#include "presc/gph_presc.h"

namespace campora {

/// The dialog of the channels and their dose columns without its widgets: a row a channel, from 0,
/// each with a map and the column of its doses. Pending events run during the long operations.
class DoseColumns {
public:
    /// More distinct doses than these are asked about: some consoles cannot show them.
    static constexpr std::size_t kMostDoses = 16;
    /// Metres between maps from which on they seem to belong to different places.
    static constexpr std::int32_t kFarApart = 5000;

    /// One row to begin with.
    explicit DoseColumns(const Desk& desk) : desk_(desk) {}

    /// Called with each new percentage of the work on a row, and may let events run; may be empty.
    std::function<void(int row, int percent)> onProgress;
    /// Called with what is worth knowing and stops nothing; a message when it is empty.
    std::function<void(const std::string& text)> onNote;
    /// The questions about the writing of columns are answered so, and what that leaves open is
    /// refused in the words of the question; none: the user is asked.
    std::optional<ColumnAnswers> answers;
    /// Whether what is made of the doses may hold whole numbers only.
    bool warnsOfDecimals = true;

    [[nodiscard]] int rowCount() const { return static_cast<int>(rows_.size()); }
    [[nodiscard]] bool canAdd() const { return !busy_ && rowCount() < kMostChannels; }
    [[nodiscard]] bool canRemove() const { return !busy_ && rowCount() > 1; }
    /// While a file is read or colours are made: nothing else can be done.
    [[nodiscard]] bool isBusy() const { return busy_; }
    void addChannel();
    /// The last one, with its map.
    void removeChannel();

    // Bad rows throw `std::out_of_range`.

    /// Asks for the row's map, in the folder that the settings keep or else in `folder`, and reads
    /// it.
    void chooseFile(int row, SettingsStore& settings, const std::string& folder);
    /// Reads the row's map; warns of maps that lie far from each other, of another system of
    /// coordinates and of zones on top of each other. A map that cannot be read, or has no zones or
    /// no table, which is said, leaves the row without one.
    void readMap(int row, const std::string& path);
    /// Whether the row has a map, and all of it: one that is damaged stays as far as it was read.
    [[nodiscard]] bool isWhole(int row) const;
    /// The path chosen last; may be empty.
    [[nodiscard]] const std::string& path(int row) const { return at(row).path; }
    /// In the order of the table; none without a map.
    [[nodiscard]] std::vector<std::string> columns(int row) const;
    /// From 1; ignored when the map does not have it.
    void chooseColumn(int row, int column);
    /// `GphPresc::kNoColumn` before one is chosen.
    [[nodiscard]] int column(int row) const { return at(row).column; }
    /// "Canal 2:" for row 1.
    [[nodiscard]] std::string caption(int row) const;
    /// How many doses the column has, or why there are none; empty before one is chosen.
    [[nodiscard]] std::string doseLabel(int row) const;

    /// Checks the rows in order and says the first thing that is wrong, or makes the chosen columns
    /// those of the doses and answers true.
    bool confirm();
    /// Hands over the maps in the order of their channels, after `confirm`; no row has one then.
    [[nodiscard]] std::vector<std::unique_ptr<GphPresc>> getChannels();

private:
    struct Row {
        std::string path;
        std::unique_ptr<GphPresc> presc;
        int column = GphPresc::kNoColumn;
        /// Of the column chosen.
        ColumnSurvey survey;
        /// How the column is read, once that is settled.
        std::optional<ColumnForm> form;
    };

    [[nodiscard]] const Row& at(int row) const { return rows_.at(static_cast<std::size_t>(row)); }
    void load(Row& row, int index);
    void follow(GphPresc& presc, int row);
    void warnOfDistance() const;
    /// Whether the row may be taken; asks what must be asked.
    [[nodiscard]] bool isComplete(int row);
    /// Why no channel can be made of the map; empty when one can.
    [[nodiscard]] std::string faultOf(const GphPresc& presc, const std::string& path) const;
    void noteOddities(const GphPresc& presc);
    [[nodiscard]] bool settleForm(Row& row, const std::string& badColumn);
    [[nodiscard]] std::optional<ColumnForm> askForm(const ColumnQuestion& question,
                                                    const std::string& words) const;
    [[nodiscard]] bool areDosesFit(int row);
    void note(const std::string& text) const;

    Desk desk_;
    std::vector<Row> rows_{1};
    bool busy_ = false;
};

}  // namespace campora
