// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "cli/batch_map.h"

#include <QDate>

#include "base/interruption.h"
#include "base/plain_text.h"
#include "base/text.h"
#include "presc/gph_presc.h"

namespace campora {

std::string oneLine(std::string_view text) {
    return replaceAll(replaceAll(plainText(text), "\r\n", "\n"), "\n", " | ");
}

void BatchDialogs::message(std::string_view text, MessageIcon /*icon*/,
                           std::string_view /*caption*/) {
    boxes_ << oneLine(text) << '\n';
}

bool BatchDialogs::askYesNo(std::string_view text, MessageIcon /*icon*/,
                            std::string_view /*caption*/) {
    boxes_ << oneLine(text) << '\n';
    return arguments_.yes;
}

Answer BatchDialogs::askYesNoCancel(std::string_view text, MessageIcon icon,
                                    std::string_view caption) {
    return askYesNo(text, icon, caption) ? Answer::Yes : Answer::No;
}

std::optional<std::string> BatchDialogs::inputBox(const InputRequest& request) {
    switch (request.prompt) {
    case TextId::AskSwath:
        return arguments_.swath.value_or(request.proposed);
    case TextId::AskColumns:
        return arguments_.columns;
    default:
        return request.proposed;
    }
}

std::unique_ptr<Progress> BatchDialogs::progress(std::string_view /*caption*/) {
    return std::make_unique<UntilInterrupted>();
}

void BatchDialogs::note(const File& file, const Texts& texts) {
    for (const Remark& remark : file.remarks()) {
        boxes_ << oneLine(
                      texts.format(TextId::CliNote, {file.File_diskPath(), texts.sentence(remark)}))
               << '\n';
    }
}

bool UntilInterrupted::report(int /*percent*/) {
    return !isInterrupted();
}

BatchMap::BatchMap(const Arguments& arguments, std::ostream& boxes)
    : arguments_(arguments), desk_(arguments, boxes), map_(desk_.desk(), arguments.programFolder) {
    map_.readRegistrations();
}

bool BatchMap::openFiles() {
    if (isInterrupted()) {
        return false;
    }
    UntilInterrupted progress;
    OpenManner manner;
    manner.progress = &progress;
    std::vector<std::string> paths = arguments_.files;
    paths.insert(paths.end(), arguments_.lots.begin(), arguments_.lots.end());
    manner.sources = paths;
    const std::vector<std::string> taken = map_.openAll(paths, manner);
    bool all = taken.size() == paths.size();
    for (const File* file : map_.files().all()) {
        desk_.dialogs().note(*file, desk().texts);
        const auto* const zones = dynamic_cast<const GphPresc*>(file);
        all = all && (zones == nullptr || !zones->notes().damage);
    }
    return all && !isInterrupted();
}

Date today() {
    const QDate day = QDate::currentDate();
    return {day.year(), day.month(), day.day()};
}

}  // namespace campora
