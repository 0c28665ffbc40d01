// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <filesystem>
#include <span>
#include <system_error>

#include "base/files.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "platform/left_undone.h"
#include "work/companion_names.h"
#include "work/work_orders.h"

namespace campora {

namespace {

namespace fs = std::filesystem;

/// Copies files into one folder and tells what goes wrong.
class Copier {
public:
    /// All of it outlives the copier.
    Copier(std::string_view destination, const FilesInUse& inUse, const Desk& desk)
        : folder_(nativePath(destination)), inUse_(inUse), desk_(desk) {}

    /// False when the file was not copied.
    [[nodiscard]] bool copy(const std::string& source) const {
        const fs::path target = folder_ / nativePath(fileNamePart(source));
        if (isSameFile(source, pathText(target))) {
            return fail(source, {TextId::CopyIsSameFile, {}});
        }
        if (const auto refused = inUse_.whyNotTarget(pathText(target))) {
            return fail(source, *refused);
        }
        const Result<FileBytes> content = readFile(source);
        if (!content) {
            return fail(source, content.failure());
        }
        if (!mayReplace(pathText(target), *content)) {
            return false;
        }
        if (const std::optional<Failure> failure = writeFile(pathText(target), content->bytes())) {
            return fail(source, *failure);
        }
        keepTime(nativePath(source), target);
        return true;
    }

private:
    /// Of what reading or writing says, the reason alone: the file is named already.
    [[nodiscard]] bool fail(const std::string& source, const Failure& failure) const {
        const Texts& texts = desk_.texts;
        const std::string reason = !failure.cause.empty() ? texts.sentence(failure.cause.front())
                                   : !failure.arguments.empty() ? failure.arguments.back()
                                                                : texts.sentence(failure);
        desk_.tell({TextId::CopyFailed, {source, reason}});
        return false;
    }
    [[nodiscard]] bool mayReplace(const std::string& target, const FileBytes& content) const {
        if (!isThere(target) || isFolder(target)) {
            return true;
        }
        const Result<FileBytes> old = readFile(target);
        return (old && old->text() == content.text()) ||
               desk_.ask(desk_.texts.format(TextId::AskOverwrite, {target}));
    }
    static void keepTime(const fs::path& source, const fs::path& target) {
        std::error_code error;
        const fs::file_time_type time = fs::last_write_time(source, error);
        if (!error) {
            fs::last_write_time(target, time, error);
        }
    }

    fs::path folder_;
    const FilesInUse& inUse_;
    const Desk& desk_;
};

/// The track files, each after its summary where it has one.
std::vector<std::string> filesToCopy(const WorkOrder& order) {
    std::vector<std::string> files;
    for (const std::string& track : order.files) {
        std::string summary = findIgnoringCase(companionNames(track).summaryPath);
        if (isThere(summary)) {
            files.push_back(std::move(summary));
        }
        files.push_back(track);
    }
    return files;
}

}  // namespace

bool copyOrder(const WorkOrder& order, std::string_view destination, FilesInUse inUse,
               const Desk& desk) {
    const std::vector<std::string> files = filesToCopy(order);
    for (const std::string& file : files) {
        inUse.add(file);
    }
    const Copier copier(destination, inUse, desk);
    std::size_t copied = 0;
    {
        const std::unique_ptr<Progress> progress =
            desk.dialogs.progress(desk.texts(TextId::CopyingOrder));
        for (std::size_t i = 0; i < files.size(); ++i) {
            if (!progress->report(static_cast<int>(100 * i / files.size()))) {
                tellLeftUndone(TextId::CopyingCancelled, std::span(files).subspan(i), desk);
                break;
            }
            copied += copier.copy(files[i]) ? 1 : 0;
        }
    }
    desk.tell({TextId::FilesCopied, {" " + numberText(copied)}}, MessageIcon::Information);
    return copied == files.size();
}

}  // namespace campora
