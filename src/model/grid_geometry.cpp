// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "model/grid_geometry.h"

namespace campora {

double inSinglePrecision(double value) {
    return static_cast<double>(static_cast<float>(value));
}

}  // namespace campora
