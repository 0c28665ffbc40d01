// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace campora {

/// Finds many files by their names with one look at each folder, where `findIgnoringCase` would
/// look through the folder again for every file that is not there. What changes in a folder after
/// the look is not seen.
class FolderLooks {
public:
    struct Found {
        /// The file that was looked for, or the first in byte order whose name differs only in
        /// case, its folder as it was written; empty when there is none, or only a folder.
        std::string path;
        /// False when the disk or the computer of the folder did not answer within `kLongestWait`.
        bool answered = true;
    };

    [[nodiscard]] Found find(std::string_view path);

private:
    /// Names of what is no folder, and the best of them by its lower-case form.
    struct Look {
        std::unordered_set<std::string> names;
        std::unordered_map<std::string, std::string> byLowerCase;
    };

    [[nodiscard]] static Look lookInto(const std::string& folder);

    /// By folder; none for one that did not answer.
    std::map<std::string, std::optional<Look>, std::less<>> looks_;
};

}  // namespace campora
