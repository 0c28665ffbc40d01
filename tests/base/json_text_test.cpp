// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/json_text.h"

#include <gtest/gtest.h>

namespace campora {
namespace {

TEST(JsonText, EscapesWhatAStringCannotHold) {
    const std::tuple<const char*, std::string, const char*> rows[] = {
        {"quotes and backslashes", R"(c:\datos\"a")", R"("c:\\datos\\\"a\"")"},
        {"line ends and tabs", "a\r\n\tb", R"("a\r\n\tb")"},
        {"other control characters", std::string("\0\x1F\x7F", 3), "\"\\u0000\\u001F\\u007F\""},
        {"direction marks", "\u202Ea\u0085", "\"\\u202Ea\\u0085\""},
        {"bytes of another code page",
         "Ca\xF1"
         "ada",
         "\"Ca\u00f1ada\""},
    };
    for (const auto& [name, text, json] : rows) {
        EXPECT_EQ(jsonText(text), json) << name;
    }
}

}  // namespace
}  // namespace campora
