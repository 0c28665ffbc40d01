// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "base/failure.h"
#include "pages/page_layout.h"
#include "pages/page_setup.h"
#include "platform/dialogs.h"
#include "platform/map_canvas.h"

namespace campora {

class Session;

/// The printed page of a session. Nothing here changes what the window shows.
class PrintCommands {
public:
    explicit PrintCommands(Session& session) : session_(session) {}

    [[nodiscard]] PageSetup setup() const;
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

    Session& session_;
};

}  // namespace campora
