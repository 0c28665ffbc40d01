// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/disk_calls.h"
#include "base/failure.h"

namespace campora {

/// A folder for files that another program is to open, made when it is first asked for and deleted
/// with the object; those of programs that were killed are deleted then, too. Only the user can
/// look into it.
class TemporaryFolder {
public:
    TemporaryFolder() = default;
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    /// The path of a file of that name in it.
    [[nodiscard]] Result<std::string> file(std::string_view name);

private:
    std::string folder_;
    /// Tells others that the folder is in use.
    Descriptor lock_;
};

}  // namespace campora
