// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "cli/json_writer.h"

#include <limits>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

namespace campora {
namespace {

template <typename Value>
std::string written(const Value& value) {
    std::ostringstream out;
    JsonWriter(out).value(value);
    return out.str();
}

TEST(JsonWriter, NumbersReadBackAsTheSameValue) {
    EXPECT_EQ(written(0.1F), "0.1");
    EXPECT_EQ(written(static_cast<double>(0.1F)), "0.10000000149011612");
    EXPECT_EQ(written(1e21), "1000000000000000000000");
    EXPECT_EQ(written(std::numeric_limits<std::int32_t>::min()), "-2147483648");
    EXPECT_EQ(written(std::numeric_limits<double>::quiet_NaN()), "0");
}

TEST(JsonWriter, ObjectsAndArraysNest) {
    std::ostringstream out;
    JsonWriter json(out);
    json.beginObject();
    json.member("name", "a");
    json.key("empty");
    json.beginArray();
    json.endArray();
    json.key("list");
    json.beginArray();
    json.value(1);
    json.null();
    json.beginObject();
    json.endObject();
    json.beginObject();
    json.member("x", 2.5);
    json.endObject();
    json.endArray();
    json.member("last", 3);
    json.endObject();
    EXPECT_EQ(out.str(), R"({
  "name": "a",
  "empty": [],
  "list": [
    1,
    null,
    {},
    {
      "x": 2.5
    }
  ],
  "last": 3
}
)");
}

}  // namespace
}  // namespace campora
