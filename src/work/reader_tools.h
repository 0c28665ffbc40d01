// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/files.h"
#include "work/value_bounds.h"
#include "work/work_reader.h"

namespace campora {

/// Names of summary entries that several readers write. Summaries are data: their names are the
/// same in every language.
namespace summary_name {
inline constexpr std::string_view kFile = "Nombre Archivo:";
inline constexpr std::string_view kSpeed = "Vel Promedio:";
inline constexpr std::string_view kStart = "Hora inicio:";
inline constexpr std::string_view kDuration = "Duración:";
}  // namespace summary_name

using WorkReader = std::optional<LoadedWork> (*)(std::string_view path, const FileBytes& file,
                                                 const WorkDesk& desk);

/// Opens the file and hands it to the reader; a file that cannot be read or that breaks its format
/// is reported.
[[nodiscard]] std::optional<LoadedWork> readFromDisk(std::string_view path, const WorkDesk& desk,
                                                     WorkReader reader);

/// Says that the file has no points and answers none.
[[nodiscard]] std::optional<LoadedWork> refuseWithoutPoints(std::string_view path,
                                                            const WorkDesk& desk);

/// Says that the file is not read, because of an answer that is of no use. `why`: a text with a
/// place for the answer.
void refuseAnswer(TextId why, const std::string& answer, std::string_view path,
                  const WorkDesk& desk);

/// A group for the file, named after it.
[[nodiscard]] LoadedWork startWork(std::string_view path);

/// A remark for each kind of value beyond its bound, and a mark on the figures that count them.
void tellBounds(const BoundsCheck& bounds, const UserLocale& locale, FileGphGroup& group);

/// Asks for the swath width of a file that has none: a whole number of metres, at most
/// `kWidestSwath`. None when the user cancels, gives no answer, or one that is no width, which is
/// said.
[[nodiscard]] std::optional<float> askSwath(std::string_view path, const WorkDesk& desk);

}  // namespace campora
