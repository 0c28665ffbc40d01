// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace campora {

/// One input as a folder of files and what a user does with them: eight bytes of choices, then the
/// files, each a letter that says its name and its bytes up to the next `kMark`. Without lengths,
/// so that a file keeps its neighbours when it grows or shrinks.
struct FileSet {
    static constexpr std::size_t kChoices = 8;
    static constexpr std::string_view kMark = "\xFE==\xFE";

    struct Entry {
        std::string_view name;
        std::string_view bytes;
    };

    std::array<std::uint8_t, kChoices> choices{};
    /// No name twice.
    std::vector<Entry> files;

    /// Looks at `input`, which must outlive it. Without files when it is too short.
    explicit FileSet(std::string_view input);

    [[nodiscard]] bool choice(std::size_t byte, unsigned bit) const {
        return ((choices[byte] >> bit) & 1U) != 0;
    }
    /// 0 to below `count`.
    [[nodiscard]] std::size_t pick(std::size_t byte, std::size_t count) const {
        return choices[byte] % count;
    }
    [[nodiscard]] bool has(std::string_view name) const;
};

/// The names of the files: 'a' is the first.
[[nodiscard]] std::span<const std::string_view> fileNames();

[[nodiscard]] inline std::string_view textOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

}  // namespace campora
