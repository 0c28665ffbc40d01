// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <string_view>
#include <system_error>

#include <unistd.h>

#include "base/paths.h"
#include "support/file_set.h"
#include "support/stop.h"

namespace campora {

/// A folder of this process, in memory where the system has such a place, empty at first and gone
/// with the object.
class ScratchFolder {
public:
    explicit ScratchFolder(std::string_view name) {
        std::error_code ignored;
        const std::filesystem::path memory("/dev/shm");
        path_ = std::filesystem::is_directory(memory, ignored)
                    ? memory
                    : std::filesystem::temp_directory_path();
        path_ /= "campora-fuzz-" + std::to_string(getpid()) + "-" + std::string(name);
        std::filesystem::remove_all(path_, ignored);
        std::filesystem::create_directory(path_);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    [[nodiscard]] std::string path() const { return pathText(path_); }
    [[nodiscard]] std::string file(std::string_view name) const {
        return path().append("/").append(name);
    }
    void write(const FileSet& set) const {
        for (const FileSet::Entry& entry : set.files) {
            std::ofstream out(nativePath(file(entry.name)), std::ios::binary);
            out.write(entry.bytes.data(), static_cast<std::streamsize>(entry.bytes.size()));
        }
    }
    /// Hidden ones too.
    [[nodiscard]] std::set<std::string> names() const {
        std::set<std::string> all;
        for (const auto& entry : std::filesystem::directory_iterator(path_)) {
            all.insert(pathText(entry.path().filename()));
        }
        return all;
    }
    void clear() const {
        for (const auto& entry : std::filesystem::directory_iterator(path_)) {
            std::filesystem::remove_all(entry.path());
        }
    }

private:
    std::filesystem::path path_;
};

}  // namespace campora
