// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/reader_tools.h"

#include <algorithm>

#include "base/numbers.h"
#include "base/paths.h"
#include "base/text.h"
#include "model/measures.h"

namespace campora {

std::optional<LoadedWork> readFromDisk(std::string_view path, const WorkDesk& desk,
                                       WorkReader reader) {
    const Result<FileBytes> file = readFile(path);
    if (!file) {
        desk.tell(file.failure(), MessageIcon::Error);
        return std::nullopt;
    }
    try {
        return reader(path, *file, desk);
    } catch (const FormatError& error) {
        desk.tell(because(TextId::FileCannotBeRead, {std::string(path)}, error.failure()),
                  MessageIcon::Error);
        return std::nullopt;
    }
}

std::optional<LoadedWork> refuseWithoutPoints(std::string_view path, const WorkDesk& desk) {
    desk.tell({TextId::FileWithoutPoints, {std::string(path)}}, MessageIcon::Error);
    return std::nullopt;
}

void refuseAnswer(TextId why, const std::string& answer, std::string_view path,
                  const WorkDesk& desk) {
    desk.tell(because(TextId::FileCannotBeRead, {std::string(path)}, {why, {answer}}),
              MessageIcon::Error);
}

void tellBounds(const BoundsCheck& bounds, const UserLocale& locale, FileGphGroup& group) {
    bounds.tell(group, locale);
    FileProperties& summary = group.File_resumen();
    for (const SummaryEntry& entry : summary.entries()) {
        const bool isArea = entry.property.starts_with("Hect");
        const bool isDose = entry.property.starts_with("Dosis");
        const bool isSpeed = entry.property == summary_name::kSpeed;
        if ((isArea && bounds.found(BoundedValue::Swath)) ||
            (isDose && bounds.found(BoundedValue::Dose)) ||
            (isSpeed && bounds.found(BoundedValue::Speed))) {
            summary.markDoubtful(entry.property);
        }
    }
}

LoadedWork startWork(std::string_view path) {
    LoadedWork work;
    work.group = std::make_unique<FileGphGroup>();
    work.group->path = path;
    work.group->name = fileNamePart(path);
    return work;
}

std::optional<float> askSwath(std::string_view path, const WorkDesk& desk) {
    const std::optional<std::string> answer = desk.askText(TextId::AskSwath, "16", path);
    if (!answer) {
        return std::nullopt;
    }
    const double metres = roundToInt32(leadingNumber(*answer).value_or(0));
    if (metres < 1) {
        refuseAnswer(TextId::SwathNotPositive, *answer, path, desk);
        return std::nullopt;
    }
    return static_cast<float>(std::min(metres, kWidestSwath));
}

}  // namespace campora
