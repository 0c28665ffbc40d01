// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/map_preview.h"
#include "platform/services.h"
#include "work/work_orders.h"

namespace campora {

/// How the selected order is shown on the map before it is opened.
enum class OrderPreview {
    None,
    /// In place of the open files.
    Alone,
    /// Beside the open files.
    Adding,
};

/// One row of the order list, as it is shown.
struct OrderRow {
    std::string caption;
    std::string date;
    std::string startTime;
    std::string fileCount;

    bool operator==(const OrderRow&) const = default;
};

/// The window of the work orders without its widgets: a folder, its orders, the selected one and
/// what the map shows of it. Pending events run during the long operations, so each may be called
/// again, or `cancel` be, before it returns.
class WorkOrdersBrowser {
public:
    /// All of it outlives the browser. Previewing beside the open files is offered when there are
    /// some.
    WorkOrdersBrowser(OpenMap& map, MapDisplay& display, MapTools& tools, const Services& services);
    WorkOrdersBrowser(const WorkOrdersBrowser&) = delete;
    WorkOrdersBrowser& operator=(const WorkOrdersBrowser&) = delete;
    /// Takes what is only a preview off the map.
    ~WorkOrdersBrowser();

    /// The folder of the order opened last, or the program's when that is gone.
    [[nodiscard]] std::string startFolder() const;
    [[nodiscard]] const std::string& folder() const { return folder_; }
    [[nodiscard]] const std::vector<WorkOrder>& orders() const { return orders_; }
    [[nodiscard]] std::vector<OrderRow> rows() const;
    [[nodiscard]] std::optional<int> selected() const { return selected_; }
    /// None first.
    [[nodiscard]] const std::vector<OrderPreview>& previewChoices() const { return choices_; }
    [[nodiscard]] OrderPreview preview() const { return preview_; }

    /// Lists the orders of a folder; none is selected. False when another folder or the end of the
    /// browser came before the scan was through: nothing of it is shown then.
    bool showFolder(std::string_view folder);
    /// None, or an index out of range, selects none. Shows the order as the preview says.
    void select(std::optional<int> row);
    void choosePreview(OrderPreview preview);

    /// Adds the files of the selected order to the open ones and shows the whole map. Answers how
    /// many were taken; 0 without a selection. `progress`: told after each file but the last.
    int open(Progress& progress);
    /// Asks for a folder and copies the files of the selected order to it.
    void copy();
    /// Ends a scan and puts the map back as it was before the preview.
    void cancel();

private:
    [[nodiscard]] const WorkOrder* selectedOrder() const;
    void showPreview();

    OpenMap& map_;
    MapDisplay& display_;
    MapTools& tools_;
    SettingsStore& settings_;
    Clock& clock_;
    std::string folder_;
    std::vector<WorkOrder> orders_;
    std::optional<int> selected_;
    std::vector<OrderPreview> choices_{OrderPreview::None, OrderPreview::Alone};
    OrderPreview preview_ = OrderPreview::None;
    std::optional<MapPreview> shown_;
    /// Number of scans begun or called off; a scan that is no longer the last one is void.
    int scans_ = 0;
};

}  // namespace campora
