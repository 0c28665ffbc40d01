// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/lots/lot_saving.h"

#include <memory>
#include <optional>
#include <utility>

#include "app/save_target.h"
#include "base/file_endings.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "base/text.h"
#include "lots/load_lot.h"
#include "lots/save_lots.h"
#include "platform/file_filter.h"

namespace campora {

namespace {

constexpr std::string_view kStem = "lote";

std::optional<int> numberInName(std::string_view path) {
    const std::string name = lowerCase(fileNamePart(path));
    int number = 0;
    for (; number < kLotNumbers; ++number) {
        if (name == lotFileName(number)) {
            return number;
        }
    }
    return std::nullopt;
}

std::string inFolder(const std::string& folder, const std::string& name) {
    return pathText(nativePath(folder) / nativePath(name));
}

}  // namespace

std::string lotFileName(int number) {
    std::string digits = numberText(number);
    digits.insert(0, digits.size() < 2 ? 1 : 0, '0');
    return std::string(kStem).append(digits).append(kLotEnding);
}

std::string proposedLotNumber(const OpenMap& map, const SettingsStore& settings,
                              std::string_view path) {
    if (const std::optional<int> number = numberInName(path)) {
        return numberText(*number);
    }
    const std::string folder = keptFolder(settings, SettingId::LotsPath, map.programFolder());
    for (int number = 1; number < kLotNumbers; ++number) {
        if (!isThere(inFolder(folder, lotFileName(number)))) {
            return numberText(number);
        }
    }
    return {};
}

std::string askLotTarget(const OpenMap& map, SettingsStore& settings, const std::string& name) {
    const Texts& texts = map.desk().texts;
    const SaveRequest request{std::string(texts(TextId::ExportTitle)),
                              keptFolder(settings, SettingId::LotsPath, map.programFolder()),
                              name,
                              {fileFilter(texts, TextId::FilterLot, kLotEnding)}};
    std::string path = map.desk().dialogs.saveFile(request).path;
    if (path.empty()) {
        return {};
    }
    const std::string_view folder =
        std::string_view(path).substr(0, path.size() - fileNamePart(path).size());
    writeText(settings, SettingId::LotsPath, folder);
    if (pathEnding(path) != kLotEnding) {
        path.append(kLotEnding);  // by its ending it is known again
        if (!overwriteAgreed(map.desk(), path)) {
            return {};
        }
    }
    return path;
}

bool putLotOnMap(OpenMap& map, MapDisplay& display, const std::string& path, const File* untitled) {
    std::unique_ptr<File> lot = loadLot(path, map.desk());
    if (lot == nullptr) {
        return false;
    }
    const File* const listed = map.files().findFile(path);
    if (untitled != nullptr) {
        map.replaceFile(untitled, std::move(lot));
        map.removeFile(listed);
    } else if (listed != nullptr) {
        map.replaceFile(listed, std::move(lot));
    } else {
        map.addFile(std::move(lot), false);
    }
    display.showChange();
    return true;
}

}  // namespace campora
