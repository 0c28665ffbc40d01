// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <vector>

#include "app/loaded_file_list.h"
#include "findings/net_work.h"

namespace campora {

/// The net ground of open work, counted when somebody first asks for it and again when the work is
/// another.
class NetWorks {
public:
    /// Of all layers together; they belong to `files`. The answer holds while those files are open
    /// and as they are.
    [[nodiscard]] std::shared_ptr<const NetWork> of(std::vector<const WorkLayer*> layers,
                                                    const LoadedFileList& files);

private:
    /// Those of closed files stay until the next one is made.
    std::vector<std::shared_ptr<const NetWork>> known_;
};

}  // namespace campora
