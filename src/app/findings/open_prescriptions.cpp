// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/findings/open_prescriptions.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <utility>

#include "app/findings/column_doses.h"
#include "base/file_endings.h"
#include "base/text.h"
#include "findings/compare.h"
#include "model/work_layer.h"
#include "presc/load_grid.h"

namespace campora {

namespace {

/// How maps of zones in the field name their columns of doses, in lower case.
constexpr std::array<std::string_view, 5> kDoseWords{"dos", "rate", "tasa", "taxa", "presc"};

bool namesDose(std::string_view column) {
    const std::string name = lowerCase(column);
    return std::any_of(kDoseWords.begin(), kDoseWords.end(),
                       [&](std::string_view word) { return name.find(word) != std::string::npos; });
}

OpenPrescription ofColumn(const GphPresc& zones, int column) {
    const std::string& name = zones.columnNames()[static_cast<std::size_t>(column) - 1];
    OpenPrescription made;
    made.key = zones.File_path() + "," + name;
    made.name = zones.File_name() + ": " + name;
    made.isVague = !namesDose(name);
    made.made = std::make_unique<ColumnDoses>(zones, column);
    made.source = made.made.get();
    return made;
}

std::vector<int> numericColumns(const GphPresc& zones) {
    std::vector<int> columns;
    for (int column = 1; column <= zones.columnCount(); ++column) {
        if (zones.figures() == FigureKind::Zone && zones.columnaNumeric(column)) {
            columns.push_back(column);
        }
    }
    return columns;
}

std::string joined(const std::vector<std::string>& names) {
    std::string list;
    for (const std::string& name : names) {
        list.append(list.empty() ? "" : ", ").append(name);
    }
    return list;
}

/// The column of the word behind the file's name, or the only one that can be meant; 0 for none.
int columnOf(const GphPresc& zones, std::string_view name) {
    const std::vector<int> columns = numericColumns(zones);
    if (name.empty()) {
        return columns.size() == 1 ? columns.front() : 0;
    }
    const auto found = std::find_if(columns.begin(), columns.end(), [&](int column) {
        return zones.columnNames()[static_cast<std::size_t>(column) - 1] == name;
    });
    return found == columns.end() ? 0 : *found;
}

std::optional<ReadPrescription> readZones(const std::string& path, const std::string& column,
                                          const Desk& desk) {
    auto zones = std::make_unique<GphPresc>();
    if (!zones->loadFromFile(path, desk)) {
        return std::nullopt;
    }
    const int number = columnOf(*zones, column);
    if (number == 0) {
        desk.tell({TextId::ColumnNotThere, {path, column, joined(zones->columnNames())}});
        return std::nullopt;
    }
    ReadPrescription read;
    read.prescription = ofColumn(*zones, number);
    read.file = std::move(zones);
    return read;
}

}  // namespace

std::vector<OpenPrescription> openPrescriptions(const LoadedFileList& files) {
    std::vector<OpenPrescription> found;
    for (const File* file : files.all()) {
        if (const auto* const source = dynamic_cast<const DoseSource*>(file)) {
            found.push_back({file->File_path(), file->File_name(), false, source, nullptr});
        } else if (const auto* const zones = dynamic_cast<const GphPresc*>(file)) {
            for (const int column : numericColumns(*zones)) {
                found.push_back(ofColumn(*zones, column));
            }
        }
    }
    return found;
}

bool hasPrescription(const LoadedFileList& files) {
    const std::vector<File*> all = files.all();
    return std::any_of(all.begin(), all.end(), [](const File* file) {
        const auto* const zones = dynamic_cast<const GphPresc*>(file);
        return zones != nullptr ? !numericColumns(*zones).empty()
                                : dynamic_cast<const DoseSource*>(file) != nullptr;
    });
}

bool hasJob(const LoadedFileList& files) {
    const std::vector<File*> all = files.all();
    return std::any_of(all.begin(), all.end(), [](const File* file) {
        const std::vector<Gph*> layers = file->File_gphList();
        return std::any_of(layers.begin(), layers.end(), [](const Gph* layer) {
            return dynamic_cast<const WorkLayer*>(layer) != nullptr;
        });
    });
}

std::optional<ReadPrescription> readPrescription(const std::string& word, const Desk& desk) {
    const std::size_t ending = lowerCase(word).rfind(std::string(kShapeEnding));
    if (ending != std::string::npos) {
        const std::size_t end = ending + kShapeEnding.size();
        if (end == word.size() || word[end] == ',') {
            return readZones(word.substr(0, end), word.substr(std::min(end + 1, word.size())),
                             desk);
        }
    }
    std::unique_ptr<GridLayer> grid = loadGrid(word, desk, MapColors().back);
    if (grid == nullptr) {
        return std::nullopt;
    }
    ReadPrescription read;
    read.prescription = {grid->File_path(), grid->File_name(), false, grid.get(), nullptr};
    read.file = std::move(grid);
    return read;
}

std::vector<PrescriptionMatch> matchPrescriptions(const NetWork& work,
                                                  std::span<const OpenPrescription> prescriptions) {
    std::vector<PrescriptionMatch> matches;
    for (const OpenPrescription& prescription : prescriptions) {
        matches.push_back({&prescription, commonGround(work, *prescription.source).value_or(0)});
    }
    return matches;
}

std::optional<std::size_t> guessedPrescription(std::span<const PrescriptionMatch> matches) {
    std::optional<std::size_t> best;
    for (std::size_t i = 0; i < matches.size(); ++i) {
        const bool isBetter = !best || matches[i].common > matches[*best].common;
        if (!matches[i].prescription->isVague && matches[i].common >= kLeastCommonGround &&
            isBetter) {
            best = i;
        }
    }
    return best;
}

}  // namespace campora
