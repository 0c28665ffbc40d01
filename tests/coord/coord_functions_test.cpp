// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "coord/coord_functions.h"

#include <gtest/gtest.h>

namespace campora {
namespace {

TEST(FormatCoord, CutsAndPadsInTheThreeForms) {
    const CoordType degrees{0};  // as the settings hold them
    const CoordType seconds{1};
    const CoordType minutes{2};
    const std::tuple<const char*, double, CoordType, const char*> rows[] = {
        {"seconds of the south", -34.25, seconds, "-34º  15'  0''"},
        {"seconds are cut", 34.999999, seconds, " 34º  59'  59.99''"},
        {"minutes are cut", 34.999999, minutes, " 34º  59.9999'"},
        {"degrees are cut towards zero", -58.1234567, degrees, "-58.123456º"},
        {"south, less than a degree", -0.5, degrees, "-0.5º"},
        {"equator", 0, seconds, " 0º  0'  0''"},
        {"just south of the equator", -1e-9, degrees, " 0º"},
    };
    for (const auto& [name, value, type, text] : rows) {
        SCOPED_TRACE(name);
        EXPECT_EQ(formatCoord(value, type), text);
    }
}

}  // namespace
}  // namespace campora
