// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "base/numbers.h"
#include "base/paths.h"
#include "base/plain_text.h"
#include "cli/batch_map.h"
#include "cli/commands.h"
#include "cli/json_document.h"
#include "work/work_orders.h"

namespace campora {

namespace {

namespace fs = std::filesystem;

using Orders = std::vector<WorkOrder>;

/// Why a folder has no files to look at.
std::optional<Failure> folderFailure(const std::string& folder) {
    std::error_code error;
    const fs::file_status status = fs::status(nativePath(folder), error);
    if (!fs::exists(status)) {
        return because(TextId::FolderCannotBeRead, {folder}, {TextId::FolderNotFound, {}});
    }
    if (!fs::is_directory(status)) {
        return because(TextId::FolderCannotBeRead, {folder}, {TextId::FolderIsNone, {}});
    }
    const fs::directory_iterator entries(nativePath(folder), error);
    if (error) {
        return because(TextId::FolderCannotBeRead, {folder}, {TextId::FileNoPermission, {}});
    }
    return std::nullopt;
}

Json ordersJson(const Orders& orders) {
    Json rows = Json::array();
    for (const WorkOrder& order : orders) {
        rows.push_back({{"number", order.number},
                        {"date", order.date},
                        {"startTime", order.startTime},
                        {"files", order.files}});
    }
    return {{"orders", rows}};
}

void printOrders(const Orders& orders, const Texts& texts, std::ostream& out) {
    for (const WorkOrder& order : orders) {
        out << plainLine(orderCaption(order, texts) + "  " + order.date + "  " + order.startTime)
            << '\n';
        for (const std::string& file : order.files) {
            out << "  " << plainLine(file) << '\n';
        }
    }
}

/// False when the order is not there or not all of it was copied.
bool copyAsked(const Orders& orders, const Arguments& arguments, const Desk& desk) {
    const OrderCopy& asked = *arguments.copy;
    const auto order = std::find_if(orders.begin(), orders.end(), [&](const WorkOrder& known) {
        return known.number == asked.number;
    });
    if (order == orders.end()) {
        desk.tell({TextId::CliNoOrder, {numberText(asked.number), arguments.files.front()}});
        return false;
    }
    return copyOrder(*order, asked.destination, {}, desk);
}

}  // namespace

int runOrders(const Arguments& arguments, const Console& console) {
    BatchDesk batch(arguments, console.boxes);
    const Desk desk = batch.desk();
    const std::string& folder = arguments.files.front();
    const std::optional<Failure> failure = folderFailure(folder);
    if (failure) {
        desk.tell(*failure);
    }
    const Orders orders = scanFolder(folder, {});
    if (arguments.json) {
        printJson(ordersJson(orders), console.out);
    } else {
        printOrders(orders, desk.texts, console.out);
    }
    const bool copied = failure || !arguments.copy || copyAsked(orders, arguments, desk);
    return !failure && copied ? exit_status::kDone : exit_status::kRefused;
}

}  // namespace campora
