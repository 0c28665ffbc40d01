// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

#include "base/numbers.h"
#include "base/paths.h"

namespace campora {

/// The bytes of a file; empty where there is none.
[[nodiscard]] inline std::string contentOf(const std::string& path) {
    std::ifstream file(nativePath(path), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// A folder of its own for one test, deleted with all it holds at the end of the object's life.
class TempFolder {
public:
    TempFolder() {
        std::random_device random;
        do {
            path_ = std::filesystem::temp_directory_path() / ("campora-" + hexText(random(), 8));
        } while (!std::filesystem::create_directory(path_));
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    /// UTF-8, without a separator at the end.
    [[nodiscard]] std::string path() const { return pathText(path_); }

    /// The path of `name` (UTF-8, may begin with folders) in this folder; nothing is made.
    [[nodiscard]] std::string file(std::string_view name) const {
        return path() + "/" + std::string(name);
    }

    /// Makes the file, and the folders that `name` begins with, and returns its path.
    /// Throws when that fails, so that no test goes on without its input.
    std::string write(std::string_view name, std::string_view bytes) const {
        const std::string text = file(name);
        const std::filesystem::path path(std::u8string(text.begin(), text.end()));
        std::filesystem::create_directories(path.parent_path());
        std::ofstream out(path, std::ios::binary);
        out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        out.close();
        if (!out) {
            throw std::runtime_error("cannot write " + text);
        }
        return text;
    }

private:
    std::filesystem::path path_;
};

}  // namespace campora
