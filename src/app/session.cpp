// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/session.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <utility>

#include "app/settings.h"

namespace campora {

namespace {

void connectStrip(TimeStrip& strip, Replay& replay, const OpenMap& map) {
    strip.onGo = [&](const WorkPlace& place) {
        if (const std::optional<std::int32_t> position = replayPosition(map, place)) {
            // A seek stops behind its target, at the first element that it shows.
            replay.jumpTo(std::max(*position - 1, 0));
        }
    };
    strip.onPause = [&replay] {
        const bool isPlaying = replay.state() == Replay::State::Playing;
        if (isPlaying) {
            replay.play();
        }
        return isPlaying;
    };
    strip.onPlay = [&](const WorkPlace& place) {
        if (const std::optional<std::int32_t> position = replayPosition(map, place)) {
            replay.playFrom(*position);
        }
    };
}

}  // namespace

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
      fileCommands_(map_, display_, tools_, services_.settings),
      listCommands_(map_, display_),
      summaryCommands_(map_, display_),
      colours_(map_, display_, services_.settings),
      prescCommands_(map_, display_, tools_, services_.settings),
      lotEditor_(map_, display_, tools_, services_.settings, services_.shell),
      lotCommands_(map_, display_, lotEditor_, services_.settings),
      exportCommands_(map_, display_, tools_, services_),
      findings_(map_, display_, tools_, services_.settings) {
    map_.onReset = [this] { display_.showEmpty(); };
    display_.beforeDrawing = [this] { replay_.stopReplay(); };
    display_.onDrawn = [this] { tools_.viewChanged(); };
    display_.onFilesChanged = [this] {
        findings_.timeStrip.filesChanged();
        replay_.prepareReplay();
        findings_.tables.filesChanged();
    };
    connectStrip(findings_.timeStrip, replay_, map_);
    findings_.timeStrip.onBrushed = [this] { findings_.tables.hideStretch(); };
    findings_.tables.onShown = [this](const WorkPlace& first, std::size_t last) {
        findings_.timeStrip.show(first, last);
    };
    display_.onEmpty = [this] { tools_.reset(); };
    tools_.onDose = [this](LonLat position) { prescCommands_.changeDose(position); };
    tools_.onAsked = [this](const Gph& layer, std::int32_t n) {
        findings_.tables.selectAt(layer, n);
    };
}

void Session::start() {
    readStyleSettings(services_.settings, map_.style());
    tools_.setCoordType(
        static_cast<CoordType>(readNumber(services_.settings, SettingId::CoordType)));
    colours_.legend.restoreRamp();
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

void Session::setCoordType(CoordType type) {
    writeNumber(services_.settings, SettingId::CoordType, static_cast<std::int32_t>(type));
    tools_.setCoordType(type);
    display_.window().commandsChanged();
}

}  // namespace campora
