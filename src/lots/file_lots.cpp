// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "lots/file_lots.h"

#include "lots/gph_lote.h"

namespace campora {

std::vector<Lot> lotsOf(const File& file) {
    std::vector<Lot> lots;
    for (const Gph* layer : file.File_gphList()) {
        const auto* const lot = dynamic_cast<const GphLote*>(layer);
        if (lot == nullptr) {
            return {};
        }
        lots.push_back({lot->vertices(), lot->description});
    }
    return lots;
}

bool isOneLot(const File& file) {
    return lotsOf(file).size() == 1;
}

bool areUnsavedLots(const File& file) {
    return file.File_diskPath().empty() && !lotsOf(file).empty();
}

}  // namespace campora
