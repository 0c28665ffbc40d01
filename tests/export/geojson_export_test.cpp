// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "export/geojson_export.h"

#include <cmath>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "support/exported_layers.h"
#include "support/temp_folder.h"

namespace campora {
namespace {

struct GeoJsonTest : testing::Test {
    std::optional<Failure> write(const std::vector<Gph*>& layers) {
        return exportGeoJson(layers, path, {MapStyle()}, progress);
    }
    nlohmann::json written(const std::vector<Gph*>& layers) {
        EXPECT_EQ(write(layers), std::nullopt);
        return nlohmann::json::parse(contentOf(path));
    }

    TempFolder folder;
    std::string path = folder.file("campo \u00f1 & \"1\".geojson");
    NoProgress silent;
    ExportProgress progress{silent};
};

TEST_F(GeoJsonTest, WholeFile) {
    AttributeLayer layer(
        {{{1, 2}, {1, 3}, {2.5, 2}}, {{0, 0}, {2, 2}, {2, 0}, {0, 2}}},
        {{"Dosis \"a\"", ColumnType::Real, {12.3F, CellValue()}},
         {"Nota", ColumnType::Text, {std::string("\u00d1and\u00fa\n"), std::string()}},
         {"Fecha", ColumnType::Date, {Date{2018, 3, 5}, CellValue()}}});
    ASSERT_EQ(write({&layer}), std::nullopt);
    EXPECT_EQ(contentOf(path), R"({"type":"FeatureCollection","features":[
{"type":"Feature","geometry":{"type":"Polygon","coordinates":[[[1,2],[2.5,2],[1,3],[1,2]]]},)"
                               R"("properties":{"Dosis \"a\"":12.3,"Nota":"Ñandú\n",)"
                               R"("Fecha":"2018-03-05"}},
{"type":"Feature","geometry":{"type":"MultiPolygon","coordinates":[)"
                               R"([[[2,2],[1,1],[2,0],[2,2]]],[[[0,0],[1,1],[0,2],[0,0]]]]},)"
                               R"("properties":{"Dosis \"a\"":null,"Nota":null,"Fecha":null}}
]}
)");
}

TEST_F(GeoJsonTest, PropertiesByTheTypeOfTheirColumn) {
    const std::tuple<const char*, ColumnType, CellValue, const char*> rows[] = {
        {"fraction among integers", ColumnType::Integer, 12.34F, "12.34"},
        {"more than a shapefile holds", ColumnType::Integer, std::int64_t{123456789012},
         "123456789012"},
        {"double", ColumnType::Real, 1e-9, "0.000000001"},
        {"no number", ColumnType::Real, std::nan(""), "null"},
        {"number among texts", ColumnType::Text, 1.5F, "\"1.5\""},
        {"text", ColumnType::Text, std::string("a\\b"), R"("a\\b")"},
        {"text of another code page", ColumnType::Text, std::string("Ca\xF1"), "\"Ca\u00f1\""},
    };
    for (const auto& [name, type, cell, json] : rows) {
        SCOPED_TRACE(name);
        AttributeLayer layer({squareAt(0, 0)}, {{"c", type, {cell}}});
        ASSERT_EQ(write({&layer}), std::nullopt);
        EXPECT_NE(contentOf(path).find(std::string("{\"c\":") + json + "}}"), std::string::npos)
            << contentOf(path);
    }
}

TEST_F(GeoJsonTest, ColumnsOfAllLayers) {
    AttributeLayer one({squareAt(0, 0)}, {{"A", ColumnType::Integer, {std::int64_t{1}}}});
    AttributeLayer two({squareAt(3, 0), squareAt(5, 0)},
                       {{"B", ColumnType::Text, {std::string("x"), std::string("y")}}});
    const nlohmann::json both = written({&one, &two})["features"];
    ASSERT_EQ(both.size(), 3U);
    EXPECT_EQ(both[0]["properties"], nlohmann::json::parse(R"({"A":1,"B":null})"));
    EXPECT_EQ(both[2]["properties"], nlohmann::json::parse(R"({"A":null,"B":"y"})"));
    AttributeLayer bare({squareAt(0, 0), squareAt(1, 1)}, {});
    EXPECT_EQ(written({&bare})["features"][1]["properties"], nlohmann::json::parse(R"({"id":1})"));
}

TEST_F(GeoJsonTest, AHoleRunsWithTheClock) {
    RingLayer layer(
        {{{0, 0}, {6, 0}, {6, 6}, {0, 6}, {0, 0}, {2, 2}, {2, 4}, {4, 4}, {4, 2}, {2, 2}}});
    EXPECT_EQ(written({&layer})["features"][0]["geometry"]["coordinates"].dump(),
              "[[[6,0],[6,6],[0,6],[0,0],[6,0]],[[2,4],[4,4],[4,2],[2,2],[2,4]]]");
}

TEST_F(GeoJsonTest, PointsWhereThereAreNoPolygons) {
    PointLayer layer({{-58.12345678949, 34}, {0.1 + 0.2, -0.0}});
    const nlohmann::json features = written({&layer})["features"];
    ASSERT_EQ(features.size(), 2U);
    EXPECT_EQ(features[0]["geometry"].dump(),
              R"({"coordinates":[-58.123456789,34],"type":"Point"})");
    EXPECT_EQ(features[1]["geometry"]["coordinates"].dump(), "[0.3,0]");
}

}  // namespace
}  // namespace campora
