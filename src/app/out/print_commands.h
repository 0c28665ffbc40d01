// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "app/map_display.h"
#include "app/open_map.h"
#include "base/failure.h"
#include "pages/page_layout.h"
#include "pages/page_setup.h"
#include "platform/dialogs.h"
#include "platform/map_canvas.h"
#include "platform/services.h"

namespace campora {

/// The printed page of the open map. Nothing here changes what the window shows.
class PrintCommands {
public:
    /// All of it outlives this.
    PrintCommands(const OpenMap& map, const MapDisplay& display, const Services& services)
        : map_(map), display_(display), services_(services) {}

    [[nodiscard]] PageSetup setup() const;
    /// The text that pages carry.
    [[nodiscard]] std::string description() const;
    /// Keeps both, at once.
    void change(const PageSetup& setup, std::string_view description);

    /// The page with the middle and the extent of the map as it is shown. `least`: margins that
    /// the printer cannot do without.
    [[nodiscard]] PageLayout page(const TextWidth& textWidth,
                                  const PageMargins& least = {0, 0, 0, 0}) const;
    /// Draws the map of that page over the whole of a canvas that is as large as `mapCanvas` says.
    /// False when the user has cancelled; without `progress` there is nothing to cancel.
    bool drawMap(const PageLayout& page, MapCanvas& canvas, Progress* progress) const;
    [[nodiscard]] CanvasSize mapCanvas(const PageLayout& page) const;

    /// A name for the page as a file, without its ending.
    [[nodiscard]] std::string documentName() const;
    /// Asks where, writes what `makePdf` answers and offers to open it; an empty answer writes
    /// nothing. A failure is reported and leaves nothing behind.
    void savePdf(const std::function<Result<std::string>()>& makePdf);

private:
    [[nodiscard]] PageContent content() const;

    const OpenMap& map_;
    const MapDisplay& display_;
    const Services& services_;
};

}  // namespace campora
