// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/load_grid.h"

#include <cstddef>
#include <optional>
#include <string>

#include "base/file_head.h"
#include "presc/gph_pre.h"
#include "presc/gph_vrt.h"

namespace campora {

namespace {

bool isGrid(const FileBytes& head) {
    return isVrtFile(head.bytes()) || isPreFile(head.bytes());
}

}  // namespace

std::unique_ptr<GridLayer> readGrid(std::string_view path, const FileBytes& file, Color background,
                                    char decimalSymbol) {
    if (isVrtFile(file.bytes())) {
        return std::make_unique<GphVRT>(path, decodeVrt(file.bytes()), background, decimalSymbol);
    }
    if (isPreFile(file.bytes())) {
        return std::make_unique<GphPRE>(path, decodePre(file.bytes()), background, decimalSymbol);
    }
    return nullptr;
}

std::unique_ptr<GridLayer> loadGrid(std::string_view path, const Desk& desk, Color background) {
    // Any file at all may be offered: a film is not to be read to its end before it is refused.
    constexpr std::size_t kHeadBytes = 64;
    const std::optional<std::string> head = readFileHead(path, kHeadBytes);
    if (head && !isGrid(FileBytes(*head))) {
        desk.tellWrongFile({TextId::FileNotCompatibleNamed, {std::string(path)}});
        return nullptr;
    }
    const Result<FileBytes> file = readFile(path);
    if (!file) {
        desk.tellWrongFile(file.failure());
        return nullptr;
    }
    try {
        std::unique_ptr<GridLayer> layer = readGrid(path, *file, background, desk.decimalSymbol());
        if (!layer) {
            desk.tellWrongFile({TextId::FileNotCompatibleNamed, {std::string(path)}});
        }
        return layer;
    } catch (const FormatError& error) {
        desk.tellWrongFile(because(TextId::FileCannotBeRead, {std::string(path)}, error.failure()));
        return nullptr;
    }
}

}  // namespace campora
