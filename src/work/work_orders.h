// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/files_in_use.h"
#include "base/texts.h"
#include "platform/desk.h"

namespace campora {

/// Name that the picture of an order has in every list.
inline constexpr std::string_view kOrderIcon = "folder";

/// The track files that a console wrote for one job, by the order number in their headers.
struct WorkOrder {
    /// 0: files without a number.
    std::int32_t number = 0;
    /// Never empty; in the order of the folder.
    std::vector<std::string> files;
    /// As texts, from the header of the first file.
    std::string date;
    std::string startTime;

    [[nodiscard]] std::int32_t fileCount() const { return static_cast<std::int32_t>(files.size()); }
};

/// What the head of a track file says about its order.
struct OrderHeader {
    std::int32_t number = 0;
    std::string date;
    std::string startTime;
};

/// `head`: the first bytes of a file. None when it is no track file or ends within its header. An
/// order that is no number is 0.
[[nodiscard]] std::optional<OrderHeader> decodeOrderHeader(std::string_view head);

/// Called between files; false ends the work.
using Tick = std::function<bool()>;

/// The orders of a folder, in the order of their first files; files go by their names without
/// regard to case. What is no track file or cannot be read is left out without a word. When `tick`
/// ends the scan, the orders found so far. `tick` may be empty.
[[nodiscard]] std::vector<WorkOrder> scanFolder(std::string_view folder, const Tick& tick);

/// "Orden 15" or "Sin número".
[[nodiscard]] std::string orderCaption(const WorkOrder& order, const Texts& texts);

/// Copies the order's track files and their summaries into a folder, under their own names, until
/// the user has enough. Each copy that fails is reported, asks before it replaces another content,
/// and leaves nothing half-written; none replaces a file in use or another file of the order. The
/// number of copies is told at the end. False when not every file was copied.
bool copyOrder(const WorkOrder& order, std::string_view destination, FilesInUse inUse,
               const Desk& desk);

}  // namespace campora
