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

WorkOrdersBrowser::WorkOrdersBrowser(Session& session) : session_(session) {
    if (session_.plotCount() > 0) {
        choices_.push_back(OrderPreview::Adding);
    }
}

WorkOrdersBrowser::~WorkOrdersBrowser() {
    cancel();
}

std::string WorkOrdersBrowser::startFolder() const {
    return campora::startFolder(session_, SettingId::OpenZelPath);
}

std::vector<OrderRow> WorkOrdersBrowser::rows() const {
    std::vector<OrderRow> rows;
    for (const WorkOrder& order : orders_) {
        rows.push_back({orderCaption(order, session_.texts()), order.date, order.startTime,
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
        session_.platform().clock.processEvents();
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
    endPreview();
    const WorkOrder* const order = selectedOrder();
    if (order == nullptr || preview_ == OrderPreview::None) {
        return;
    }
    // The open files are put away in either case: a preview must not touch them, and a work that
    // is open and in the order too would take its place for good.
    std::vector<std::string> shown;
    for (int i = 0; preview_ == OrderPreview::Adding && i < session_.plotCount(); ++i) {
        shown.push_back(session_.files().file(i).File_diskPath());
    }
    shown.insert(shown.end(), order->files.begin(), order->files.end());
    previewing_ = true;
    session_.plotPreview(true, false);
    session_.showQuietly(shown);
}

void WorkOrdersBrowser::endPreview() {
    if (previewing_) {
        previewing_ = false;
        session_.plotPreview(false, false);
    }
}

int WorkOrdersBrowser::open(const Step& step) {
    if (!selected_) {
        return 0;
    }
    const WorkOrder order = *selectedOrder();  // the list may change while events run
    endPreview();
    writeText(session_.platform().settings, SettingId::OpenZelPath, folder_);
    int taken = 0;
    for (std::size_t i = 0; i < order.files.size(); ++i) {
        taken += session_.loadFile(order.files[i], false, false) ? 1 : 0;
        if (!step(static_cast<int>(100 * (i + 1) / order.files.size()))) {
            break;
        }
    }
    if (taken > 0) {
        session_.view().ZoomUno();
    }
    return taken;
}

void WorkOrdersBrowser::copy() {
    if (!selected_) {
        return;
    }
    const WorkOrder order = *selectedOrder();
    const Texts& texts = session_.texts();
    const Platform& platform = session_.platform();
    const std::string last = readText(platform.settings, SettingId::SelectFolder);
    const std::string destination = platform.dialogs.chooseFolder(
        {std::string(texts(TextId::ChooseFolder)), isFolder(last) ? last : folder_,
         std::string(texts(TextId::FilesOfOrder)),
         fileFilter(texts, TextId::FilterLogs, kTrackEnding)});
    if (!destination.empty()) {
        writeText(platform.settings, SettingId::SelectFolder, destination);
        copyOrder(order, destination, session_.filesInUse(), platform.dialogs, texts);
    }
}

void WorkOrdersBrowser::cancel() {
    ++scans_;
    selected_.reset();
    endPreview();
}

}  // namespace campora
