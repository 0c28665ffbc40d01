// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/window_title.h"

#include <gtest/gtest.h>

namespace campora {
namespace {

TEST(WindowTitle, ShowsTheEndOfThePath) {
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"no folder", "trabajo.rpt", "trabajo.rpt"},
        // "ñ" is one character: the separator before it is the fiftieth from the end.
        {"separator at the fiftieth character",
         R"(c:\campo\ñ234567890123456789012345678901234567890123456789)",
         R"(...\ñ234567890123456789012345678901234567890123456789)"},
        {"separator just too far", R"(c:\campo\ñ2345678901234567890123456789012345678901234567890)",
         "...ñ2345678901234567890123456789012345678901234567890"},
        {"name longer than that", R"(c:\aa12345678901234567890123456789012345678901234567890)",
         "...12345678901234567890123456789012345678901234567890"},
    };
    for (const auto& [name, path, shown] : rows) {
        EXPECT_EQ(fileTitle(path), "Campora - [" + std::string(shown) + "]") << name;
    }
}

}  // namespace
}  // namespace campora
