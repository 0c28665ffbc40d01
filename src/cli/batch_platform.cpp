// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "cli/batch_platform.h"

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

std::vector<std::string> BatchDialogs::openFiles(const OpenRequest& /*request*/) {
    const std::vector<ChannelSource>& channels = arguments_.prescription.channels;
    if (nextChannel_ >= channels.size()) {
        return {};
    }
    return {channels[nextChannel_++].file};
}

std::unique_ptr<Progress> BatchDialogs::progress(std::string_view /*caption*/) {
    class UntilInterrupted final : public Progress {
    public:
        [[nodiscard]] bool report(int /*percent*/) override { return !isInterrupted(); }
    };
    return std::make_unique<UntilInterrupted>();
}

void BatchDialogs::note(const File& file, const Texts& texts) {
    for (const Remark& remark : file.remarks()) {
        boxes_ << oneLine(
                      texts.format(TextId::CliNote, {file.File_diskPath(), texts.sentence(remark)}))
               << '\n';
    }
}

Date NoClock::today() const {
    const QDate today = QDate::currentDate();
    return {today.year(), today.month(), today.day()};
}

BatchSession::BatchSession(const Arguments& arguments, MapCanvas& canvas, std::ostream& boxes)
    : arguments_(arguments),
      dialogs_(arguments, boxes),
      locale_(arguments),
      session_(
          {canvas, window_, dialogs_, settings_, locale_, clipboard_, clock_, classes_, shell_},
          arguments.language, arguments.programFolder) {
    session_.start();
}

bool BatchSession::openFiles() {
    bool all = true;
    for (const std::string& path : arguments_.files) {
        session_.addSource(path);
        if (isInterrupted()) {
            return false;
        }
        all = session_.loadFile(path, false, false) && all;
    }
    const LoadedFileList& files = session_.files();
    for (int i = 0; i < files.loadedCount(); ++i) {
        dialogs_.note(files.file(i), session_.texts());
        const auto* const zones = dynamic_cast<const GphPresc*>(&files.file(i));
        all = all && (zones == nullptr || !zones->notes().damage);
    }
    return all && !isInterrupted();
}

}  // namespace campora
