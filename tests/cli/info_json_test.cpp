// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "cli/info_json.h"

#include <memory>
#include <sstream>
#include <utility>

#include <gtest/gtest.h>

#include "cli/batch_map.h"
#include "support/named_file.h"

namespace campora {
namespace {

TEST(InfoJson, TellsScalesAndWhatIsMissing) {
    const Arguments arguments;
    std::ostringstream boxes;
    BatchMap batch(arguments, boxes);
    auto file = std::make_unique<NamedFile>("zonas.shp");
    file->bound = {};
    file->summary.clear();
    for (const char* name : {"Vel:", "Lote:"}) {
        file->summary.addProperty(name, "12", "");
    }
    file->summary.edits = {{{"Vel:", SummaryEdits::Value{"9", ""}}}, {"Lote:"}};
    file->scale = std::make_unique<ColorScale>();
    file->scale->setClassNumberExt(2, 10, 20);
    file->scale->setClassColor(1, Color::rgb(0x12, 0xAB, 0));
    batch.map().addFile(std::move(file), false);
    const Json layer = {
        {"kind", "NamedLayer"}, {"elements", 1}, {"points", nullptr}, {"bound", nullptr}};
    const Json expected = {
        {"name", "zonas.shp"},
        {"path", "/campo/zonas.shp"},
        {"icon", ""},
        {"id", ""},
        {"priority", 0},
        {"bound", nullptr},
        {"summary",
         {{{"property", "Vel:"}, {"value", "12"}, {"unit", ""}},
          {{"property", "Lote:"}, {"value", "12"}, {"unit", ""}}}},
        {"edited",
         {{{"property", "Vel:"}, {"value", "9"}}, {{"property", "Lote:"}, {"value", nullptr}}}},
        {"layers", {layer, layer}},
        {"scale",
         {{{"lower", 10}, {"upper", 15}, {"color", "#FFFF00"}},
          {{"lower", 15}, {"upper", 20}, {"color", "#12AB00"}}}}};
    EXPECT_EQ(infoJson(batch.map())["files"], Json::array({expected}));
}

}  // namespace
}  // namespace campora
