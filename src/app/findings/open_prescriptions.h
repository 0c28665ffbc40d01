// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "app/loaded_file_list.h"
#include "findings/net_work.h"
#include "model/dose_source.h"
#include "model/file.h"
#include "platform/desk.h"

namespace campora {

/// Something open that prescribes doses. Holds while its file is open and as it is.
struct OpenPrescription {
    /// Its file and, of a map of zones, the column: what tells it from the others.
    std::string key;
    std::string name;
    /// Of a map of zones whose column does not say that it holds doses: not to be guessed.
    bool isVague = false;
    const DoseSource* source = nullptr;
    /// What `source` is where no file is one itself.
    std::unique_ptr<DoseSource> made;
};

/// Grids, the prescription under work, and the numeric columns of maps of zones, in the order of
/// the list.
[[nodiscard]] std::vector<OpenPrescription> openPrescriptions(const LoadedFileList& files);
/// Whether there is one.
[[nodiscard]] bool hasPrescription(const LoadedFileList& files);
/// Whether there is recorded work.
[[nodiscard]] bool hasJob(const LoadedFileList& files);

/// A prescription that was read for a comparison and is no part of the map.
struct ReadPrescription {
    std::unique_ptr<File> file;
    OpenPrescription prescription;
};

/// Reads a grid, or a column of a map of zones: "ZONES.shp,COLUMN", or without a column where one
/// alone is numeric. None, and told at the desk, for anything else.
[[nodiscard]] std::optional<ReadPrescription> readPrescription(const std::string& word,
                                                               const Desk& desk);

/// What the ground says of one prescription for a job.
struct PrescriptionMatch {
    const OpenPrescription* prescription = nullptr;
    /// Part of the net ground of the job, from 0 to 1.
    double common = 0;
};

/// In the order of `prescriptions`.
[[nodiscard]] std::vector<PrescriptionMatch>
matchPrescriptions(const NetWork& work, std::span<const OpenPrescription> prescriptions);
/// The place of the one that has most ground in common with the job, the first of those with as
/// much; none where none has `kLeastCommonGround`.
[[nodiscard]] std::optional<std::size_t>
guessedPrescription(std::span<const PrescriptionMatch> matches);

}  // namespace campora
