// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/reader_tools.h"

#include <algorithm>

#include "base/numbers.h"
#include "base/paths.h"
#include "base/text.h"
#include "model/measures.h"

namespace campora {

namespace {

void reportFailure(const Failure& failure, const WorkReaderContext& context) {
    context.dialogs.message(context.texts.sentence(failure), MessageIcon::Error,
                            context.texts(TextId::ProgramName));
}

}  // namespace

std::optional<LoadedWork> openWork(std::string_view path, const WorkReaderContext& context,
                                   WorkReader reader) {
    const Result<FileBytes> file = readFile(path);
    if (!file) {
        reportFailure(file.failure(), context);
        return std::nullopt;
    }
    try {
        return reader(path, *file, context);
    } catch (const FormatError& error) {
        reportFailure(because(TextId::FileCannotBeRead, {std::string(path)}, error.failure()),
                      context);
        return std::nullopt;
    }
}

std::optional<LoadedWork> refuseWithoutPoints(std::string_view path,
                                              const WorkReaderContext& context) {
    reportFailure({TextId::FileWithoutPoints, {std::string(path)}}, context);
    return std::nullopt;
}

void refuseAnswer(TextId why, const std::string& answer, std::string_view path,
                  const WorkReaderContext& context) {
    reportFailure(because(TextId::FileCannotBeRead, {std::string(path)}, {why, {answer}}), context);
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

std::optional<float> askSwath(std::string_view path, const WorkReaderContext& context) {
    const std::optional<std::string> answer =
        context.dialogs.inputBox({TextId::AskSwath, std::string(context.texts(TextId::ProgramName)),
                                  "16", std::string(path)});
    if (!answer) {
        return std::nullopt;
    }
    const double metres = roundToInt32(leadingNumber(*answer).value_or(0));
    if (metres < 1) {
        refuseAnswer(TextId::SwathNotPositive, *answer, path, context);
        return std::nullopt;
    }
    return static_cast<float>(std::min(metres, kWidestSwath));
}

}  // namespace campora
