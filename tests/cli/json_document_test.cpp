// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "cli/json_document.h"

#include <limits>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

namespace campora {
namespace {

std::string printed(const Json& document) {
    std::ostringstream out;
    printJson(document, out);
    return out.str();
}

TEST(JsonDocument, MembersStandInTheirOrderAndNumbersReadBackAsTheSameValue) {
    constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
    const Json document = {
        {"name", "a\xF1o\x1B"},
        {"steers", "\u202E\u0085"},
        {"empty", Json::array()},
        {"list", {1, nullptr, Json::object(), {{"x", 2.5}}, true}},
        {"apart", {0.1F, asDecimal(0.1F), 12.0, 1e21, kNone, std::numeric_limits<int>::min()}}};
    EXPECT_EQ(printed(document), R"({
  "name": "año\u001B",
  "steers": "\u202E\u0085",
  "empty": [],
  "list": [
    1,
    null,
    {},
    {
      "x": 2.5
    },
    true
  ],
  "apart": [
    0.10000000149011612,
    0.1,
    12,
    1000000000000000000000,
    0,
    -2147483648
  ]
}
)");
}

}  // namespace
}  // namespace campora
