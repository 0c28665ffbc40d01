// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "model/work_layer.h"

namespace campora {

std::vector<const WorkLayer*> workLayers(const File& file) {
    std::vector<const WorkLayer*> layers;
    for (const Gph* layer : file.File_gphList()) {
        if (const auto* work = dynamic_cast<const WorkLayer*>(layer)) {
            layers.push_back(work);
        }
    }
    return layers;
}

}  // namespace campora
