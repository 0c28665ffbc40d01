// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/temporary_folder.h"

#include <filesystem>
#include <string_view>
#include <system_error>
#include <vector>

#include "base/file_access.h"
#include "base/fresh_name.h"
#include "base/paths.h"

namespace campora {

namespace fs = std::filesystem;

namespace {

constexpr OwnNames kFolders{"campora-"};
/// Locked as long as its owner runs; the folder itself is locked by those who write into it.
constexpr std::string_view kLock = ".campora-owner";

/// Deletes what programs that run no more have left in `parent`.
void tidyFolders(const fs::path& parent) {
    std::error_code error;
    std::vector<fs::path> left;
    for (fs::directory_iterator entry(parent, error); !error && entry != fs::directory_iterator();
         entry.increment(error)) {
        std::error_code ignored;
        if (isOwnName(pathText(entry->path().filename()), kFolders) &&
            entry->symlink_status(ignored).type() == fs::file_type::directory) {
            left.push_back(entry->path());
        }
    }
    for (const fs::path& folder : left) {
        bool isLeft = false;
        {
            const Descriptor lock = openToLook(folder / kLock);
            isLeft = lock && tryLock(lock) == LockState::Taken;
        }
        if (isLeft) {
            fs::remove_all(folder, error);
        }
    }
}

}  // namespace

TemporaryFolder::~TemporaryFolder() {
    if (!folder_.empty()) {
        lock_ = Descriptor();
        std::error_code ignored;
        fs::remove_all(nativePath(folder_), ignored);
    }
}

Result<std::string> TemporaryFolder::file(std::string_view name) {
    if (folder_.empty()) {
        std::error_code error;
        const fs::path parent = fs::temp_directory_path(error);
        tidyFolders(parent);
        // A name that nobody foresees: whoever made the folder first could put a link into it.
        const fs::path made = parent / freshName(kFolders);
        if (error || !fs::create_directory(made, error)) {
            return fileFailure(TextId::FileCannotBeWritten, pathText(made), error);
        }
        fs::permissions(made, fs::perms::owner_all, error);
        lock_ = createFile(made / kLock);
        static_cast<void>(tryLock(lock_));
        folder_ = pathText(made);
    }
    return pathText(nativePath(folder_) / nativePath(name));
}

}  // namespace campora
