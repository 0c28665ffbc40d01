// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/session.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <utility>

#include "app/settings.h"

namespace campora {

Session::Session(MapCanvas& canvas, MainWindowControls& window, const Services& services,
                 Language language, std::string programFolder)
    : services_(services),
      texts_(language),
      map_({services_.dialogs, texts_, services_.locale}, std::move(programFolder)),
      display_(map_, canvas, window),
      tools_(map_, display_),
      replay_(map_, display_, services_.clock,
              [this] {
                  tools_.hideResult();
                  tools_.cancelDrag();
              }),
      timeStrip_(map_, display_, tools_),
      fileCommands_(map_, display_, tools_, services_.settings),
      listCommands_(map_, display_),
      summaryCommands_(map_, display_),
      legendCommands_(map_, display_, services_.settings),
      colorModeCommands_(map_, display_),
      drawingCommands_(map_, display_, services_.settings),
      compareCommands_(map_, display_),
      coverageCommands_(map_, display_),
      prescCommands_(map_, display_, tools_, services_.settings),
      lotEditor_(map_, display_, tools_, services_.settings, services_.shell),
      lotCommands_(map_, display_, lotEditor_, services_.settings),
      exportCommands_(map_, display_, tools_, services_),
      findingCommands_(map_, display_, tools_) {
    map_.onReset = [this] { display_.showEmpty(); };
    display_.beforeDrawing = [this] { replay_.stopReplay(); };
    display_.onDrawn = [this] { tools_.viewChanged(); };
    display_.onFilesChanged = [this] {
        timeStrip_.filesChanged();
        replay_.prepareReplay();
        findingCommands_.filesChanged();
    };
    timeStrip_.onGo = [this](const WorkPlace& place) { goToRecord(place); };
    timeStrip_.onPlay = [this](const WorkPlace& place) { playFrom(place); };
    display_.onEmpty = [this] { tools_.reset(); };
    tools_.onDose = [this](LonLat position) { prescCommands_.changeDose(position); };
    tools_.onAsked = [this](const Gph& layer, std::int32_t n) {
        findingCommands_.selectAt(layer, n);
    };
}

void Session::start() {
    readStyleSettings(services_.settings, map_.style());
    tools_.setCoordType(
        static_cast<CoordType>(readNumber(services_.settings, SettingId::CoordType)));
    legendCommands_.restoreRamp();
    map_.readRegistrations();
    map_.reset();
}

void Session::setLanguage(Language language) {
    texts_.setLanguage(language);
    writeLanguageSetting(services_.settings, language);
    MainWindowControls& window = display_.window();
    window.retranslate();
    display_.loadFileList(true);
    display_.showSummary();
    display_.showLegend();
    display_.showFlowStops();
    window.setPosition({});
    window.setToolText({});
    tools_.hideResult();
    window.commandsChanged();
}

void Session::playFrom(const WorkPlace& place) {
    if (const std::optional<std::int32_t> position = replayPosition(map_, place)) {
        replay_.playFrom(*position);
    }
}

void Session::goToRecord(const WorkPlace& place) {
    if (const std::optional<std::int32_t> position = replayPosition(map_, place)) {
        // A seek stops behind its target, at the first element that it shows.
        replay_.jumpTo(std::max(*position - 1, 0));
    }
}

void Session::setCoordType(CoordType type) {
    writeNumber(services_.settings, SettingId::CoordType, static_cast<std::int32_t>(type));
    tools_.setCoordType(type);
    display_.window().commandsChanged();
}

}  // namespace campora
