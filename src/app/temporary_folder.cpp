// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/temporary_folder.h"

#include <cstddef>
#include <filesystem>
#include <random>
#include <string_view>
#include <system_error>
#include <vector>

#include "base/file_access.h"
#include "base/numbers.h"
#include "base/paths.h"

namespace campora {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kBegin = "campora-";
/// Locked as long as its owner runs; the folder itself is locked by those who write into it.
constexpr std::string_view kLock = ".campora-owner";
constexpr int kDigits = 8;  // of each of two numbers

bool isOurName(std::string_view name) {
    return name.size() == kBegin.size() + std::size_t{2} * kDigits && name.starts_with(kBegin) &&
           name.find_first_not_of("0123456789ABCDEF", kBegin.size()) == std::string_view::npos;
}

/// Deletes what programs that run no more have left in `parent`.
void tidyFolders(const fs::path& parent) {
    std::error_code error;
    std::vector<fs::path> left;
    for (fs::directory_iterator entry(parent, error); !error && entry != fs::directory_iterator();
         entry.increment(error)) {
        std::error_code ignored;
        if (isOurName(pathText(entry->path().filename())) &&
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
        std::random_device random;
        const fs::path made = parent / (std::string(kBegin) + hexText(random(), kDigits) +
                                        hexText(random(), kDigits));
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
