// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/open/work_orders_browser.h"

#include <algorithm>
#include <utility>

#include "app/save_target.h"
#include "app/settings.h"
#include "base/file_endings.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "platform/file_filter.h"

namespace campora {

WorkOrdersBrowser::WorkOrdersBrowser(OpenMap& map, MapDisplay& display, MapTools& tools,
                                     const Services& services)
    : map_(map),
      display_(display),
      tools_(tools),
      settings_(services.settings),
      clock_(services.clock) {
    if (map_.plotCount() > 0) {
        choices_.push_back(OrderPreview::Adding);
    }
}

WorkOrdersBrowser::~WorkOrdersBrowser() {
    cancel();
}

std::string WorkOrdersBrowser::startFolder() const {
    return keptFolder(settings_, SettingId::WorkOrdersPath, map_.programFolder());
}

std::vector<OrderRow> WorkOrdersBrowser::rows() const {
    std::vector<OrderRow> rows;
    for (const WorkOrder& order : orders_) {
        rows.push_back({orderCaption(order, map_.desk().texts), order.date, order.startTime,
                        numberText(order.fileCount())});
    }
    return rows;
}

bool WorkOrdersBrowser::showFolder(std::string_view folder) {
    select(std::nullopt);
    folder_ = folder;
    orders_.clear();
    const int scan = ++scans_;
    const auto isLast = [&] {
        clock_.processEvents();
        return scan == scans_;
    };
    std::vector<WorkOrder> found = scanFolder(std::string(folder), isLast);
    if (scan != scans_) {
        return false;
    }
    orders_ = std::move(found);
    return true;
}

const WorkOrder* WorkOrdersBrowser::selectedOrder() const {
    return selected_ ? &orders_[static_cast<std::size_t>(*selected_)] : nullptr;
}

void WorkOrdersBrowser::select(std::optional<int> row) {
    if (row && (*row < 0 || *row >= static_cast<int>(orders_.size()))) {
        row.reset();
    }
    if (row != selected_) {
        selected_ = row;
        showPreview();
    }
}

void WorkOrdersBrowser::choosePreview(OrderPreview preview) {
    if (preview != preview_) {
        preview_ = preview;
        showPreview();
    }
}

void WorkOrdersBrowser::showPreview() {
    shown_.reset();
    const WorkOrder* const order = selectedOrder();
    if (order == nullptr || preview_ == OrderPreview::None) {
        return;
    }
    // The open files are put away in either case: a preview must not touch them, and a work that
    // is open and in the order too would take its place for good.
    std::vector<std::string> shown;
    for (int i = 0; preview_ == OrderPreview::Adding && i < map_.plotCount(); ++i) {
        shown.push_back(map_.files().file(i).File_diskPath());
    }
    shown.insert(shown.end(), order->files.begin(), order->files.end());
    shown_.emplace(map_, display_, tools_);
    shown_->show(shown);
}

int WorkOrdersBrowser::open(Progress& progress) {
    if (!selected_) {
        return 0;
    }
    const WorkOrder order = *selectedOrder();  // the list may change while events run
    shown_.reset();
    writeText(settings_, SettingId::WorkOrdersPath, folder_);
    OpenManner manner;
    manner.progress = &progress;
    const std::vector<std::string> taken = map_.openAll(order.files, manner);
    if (!taken.empty()) {
        display_.showWhole();
    }
    return static_cast<int>(taken.size());
}

void WorkOrdersBrowser::copy() {
    if (!selected_) {
        return;
    }
    const WorkOrder order = *selectedOrder();
    const Texts& texts = map_.desk().texts;
    const std::string last = readText(settings_, SettingId::OrderCopyPath);
    const std::string destination = map_.desk().dialogs.chooseFolder(
        {std::string(texts(TextId::ChooseFolder)), isFolder(last) ? last : folder_,
         std::string(texts(TextId::FilesOfOrder)),
         fileFilter(texts, TextId::FilterLogs, kTrackEnding)});
    if (!destination.empty()) {
        writeText(settings_, SettingId::OrderCopyPath, destination);
        copyOrder(order, destination, map_.filesInUse(), map_.desk());
    }
}

void WorkOrdersBrowser::cancel() {
    ++scans_;
    selected_.reset();
    shown_.reset();
}

}  // namespace campora
