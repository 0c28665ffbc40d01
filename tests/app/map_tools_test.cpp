// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/map_tools.h"

#include <memory>

#include <gtest/gtest.h>

#include "model/geodesy.h"
#include "support/named_file.h"
#include "support/recording_canvas.h"
#include "support/scripted_platform.h"
#include "support/scripted_window.h"

namespace campora {
namespace {

using Tool = ToolId;
using Button = MapTools::Button;

/// A file that answers everywhere between two meridians.
class StripFile : public NamedFile, private NamedLayer {
public:
    StripFile(const std::string& name, double west, double east)
        : NamedFile(name), NamedLayer(name), west_(west), east_(east) {}

    [[nodiscard]] std::vector<Gph*> File_gphList() const override {
        return {const_cast<StripFile*>(this)};
    }
    [[nodiscard]] std::int32_t Gph_mouseOver(const ViewTransform& /*view*/,
                                             const MapStyle& /*style*/, LonLat position,
                                             std::int32_t start) const override {
        return position.x >= west_ && position.x < east_ ? start + 7 : -1;
    }
    [[nodiscard]] std::string Gph_getInfo(const InfoContext& /*context*/,
                                          std::int32_t n) const override {
        return File_name() + " " + std::to_string(n) + "\r\nx\r\n";
    }

private:
    double west_;
    double east_;
};

/// A map of 10 by 5 km at the equator on a canvas of 1000 by 500 units: 10 metres a unit, no
/// margins.
struct ToolsDesk {
    explicit ToolsDesk(bool withFile = true, char symbol = '.') : locale(symbol) {
        display.onDrawn = [this] { tools.viewChanged(); };
        if (!withFile) {
            return;
        }
        map.addFile(std::make_unique<StripFile>("lote1", 0.02, 0.06), false);
        map.addFile(std::make_unique<StripFile>("lote2", 0, 0.03), false);
        view.totalBound.maxX = 10000 / METERS_PER_DEGREE;
        view.totalBound.maxY = 5000 / METERS_PER_DEGREE;
        view.totalBound.widthM = 10000;
        view.totalBound.heightM = 5000;
        view.totalBound.isSet = true;
        map.files().setCurrentFile(nullptr);
        view.setView(10, 10, 0, 0);
        canvas.forget();
    }

    void drag(CanvasPoint from, CanvasPoint to, Button button = Button::Left) {
        tools.press(button, from);
        tools.move(to);
        tools.release(button, to);
    }
    [[nodiscard]] std::size_t redraws() const { return canvas.callsOf("clear").size(); }
    [[nodiscard]] std::string chosen() const {
        const File* const current = map.files().currentFile();
        return current != nullptr ? current->File_name() : "";
    }

    RecordingCanvas canvas{{1000, 500}};
    ScriptedWindow window;
    ScriptedDialogs dialogs;
    Texts texts{Language::Spanish};
    FixedLocale locale;
    OpenMap map{{dialogs, texts, locale}, ""};
    MapDisplay display{map, canvas, window};
    MapView& view = display.view();
    MapTools tools{map, display};
};

struct MapToolsTest : testing::Test, ToolsDesk {};

TEST_F(MapToolsTest, ShowsThePositionUnderThePointer) {
    tools.move({500, 0});
    EXPECT_EQ(window.position, "Long: 0.044915º   Lat: 0.044915º");
    tools.setCoordType(CoordType::DegreesMinutes);
    EXPECT_EQ(window.position, "Long: 0º  2.6949'   Lat: 0º  2.6949'");
    tools.setCoordType(CoordType::Degrees);
    view.setView(5, 5, 0, 2500);
    EXPECT_EQ(window.position, "Long: 0.022457º   Lat: 0.044915º");
    tools.leave();
    EXPECT_EQ(window.position, "");
}

TEST_F(MapToolsTest, PanningMovesTheSnapshotAndRedrawsAtTheEnd) {
    view.setView(5, 5, 1000, 1000);
    canvas.forget();
    tools.press(Button::Left, {100, 100});
    EXPECT_EQ(canvas.pointer(), PointerShape::Move);
    tools.move({60, 150});
    EXPECT_EQ(canvas.calls(),
              (std::vector<std::string>{"snapshot", "paint snapshot: (-40,50)", "refresh"}));
    EXPECT_EQ(window.view.horizontal.position, 1200);
    tools.move({-2000, 150});
    EXPECT_EQ(view.scrollX(), 5000);
    tools.release(Button::Left, {60, 150});
    EXPECT_EQ(redraws(), 1U);
    EXPECT_EQ(view.scrollX(), 1200);
    EXPECT_EQ(view.scrollY(), 1250);

    tools.press(Button::Middle, {100, 100});
    tools.move({110, 100});
    view.setView(2, 2, 3000, 3000);  // a turn of the wheel meanwhile: goes on from there
    tools.move({120, 100});
    EXPECT_EQ(view.scrollX(), 2980);
    EXPECT_EQ(canvas.callsOf("paint").back(), "paint snapshot: (10,0)");
}

/// Lets every press pass and counts the clicks.
struct ClickCounter final : LayeredTool {
    bool press(CanvasPoint /*at*/) override { return false; }
    void release(CanvasPoint /*at*/) override {}
    void click(CanvasPoint /*at*/) override { ++clicks; }
    int clicks = 0;
};

TEST(MapTools, OnlyAClickIsAClick) {
    // The units sideways, the clicks and the place afterwards.
    const std::tuple<const char*, Tool, Button, std::int32_t, int, std::int32_t> rows[] = {
        {"a trembling hand", Tool::Pan, Button::Left, -3, 1, 1015},
        {"just a drag", Tool::Pan, Button::Left, -4, 0, 1020},
        {"the middle button pans with a tool", Tool::Ruler, Button::Middle, -4, 0, 1020},
        {"a tool at work", Tool::Ruler, Button::Left, -2, 0, 1000},
    };
    for (const auto& [name, tool, button, sideways, clicks, scrollX] : rows) {
        SCOPED_TRACE(name);
        ClickCounter layer;
        ToolsDesk d;
        d.tools.layOver(&layer);
        d.view.setView(5, 5, 1000, 1000);
        d.tools.setTool(tool);
        d.drag({100, 100}, {100 + sideways, 100}, button);
        EXPECT_EQ(layer.clicks, clicks);
        EXPECT_EQ(d.view.scrollX(), scrollX);
        EXPECT_EQ(d.tools.tool(), tool);
    }
}

TEST(MapTools, TheRectangleFillsTheCanvas) {
    struct Row {
        const char* name;
        CanvasPoint from, to;
        DashedBox selector;
        float scale;
        std::int32_t scrollX, scrollY;
    };
    const Row rows[] = {
        {"quarter, upwards", {700, 350}, {200, 100}, {{200, 100}, {500, 250}}, 5, 2000, 1500},
        {"beyond the canvas", {900, 450}, {5000, 900}, {{900, 450}, {100, 50}}, 1, 9000, 0},
        {"no size", {500, 250}, {500, 250}, {{500, 250}, {0, 0}}, 0.1F / 15, 5000, 2500},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        ToolsDesk d;
        d.tools.setTool(Tool::ZoomSelect);
        d.tools.press(Button::Left, row.from);
        d.tools.move(row.to);
        EXPECT_EQ(d.window.laid<DashedBox>(), row.selector);
        d.tools.release(Button::Left, row.to);
        EXPECT_EQ(d.window.laid<DashedBox>(), std::nullopt);
        EXPECT_FLOAT_EQ(d.view.scaleX(), row.scale);
        EXPECT_EQ(d.view.scrollX(), row.scrollX);
        EXPECT_EQ(d.view.scrollY(), row.scrollY);
    }
}

TEST(MapTools, TheRulerMeasuresAndStaysOnTheMap) {
    ToolsDesk d(true, ',');
    d.map.style().colors.fore = Color{0x102030};
    d.tools.setTool(Tool::Ruler);
    d.tools.press(Button::Left, {0, 100});
    d.tools.move({500, 100});
    EXPECT_EQ(d.window.toolText, "Dist:5000 m");
    d.tools.move({301, 401});
    EXPECT_EQ(d.window.toolText, "Dist:4256,78 m");
    const HaloLine halo{{{1, 2}, {3, 4}}};
    d.tools.addOverlay([&halo](MapOverlay& overlay) { overlay.emplace_back(halo); });
    d.tools.showOverlay();
    EXPECT_EQ(d.window.overlay, (MapOverlay{halo, ThinLine{{0, 100}, {301, 401}}}));
    d.canvas.forget();
    d.tools.release(Button::Left, {301, 401});
    EXPECT_EQ(d.window.laid<ThinLine>(), std::nullopt);
    EXPECT_EQ(d.canvas.calls(),
              (std::vector<std::string>{"line 0x102030 width=1 solid: (0,100) (301,401)",
                                        "text pen=0x102030 top-left: (150,250) \"Dist:4256,78 m\"",
                                        "refresh"}));
}

TEST(MapTools, InformationIsOfTheFileOnTopAndStaysOnTheCanvas) {
    const std::tuple<const char*, CanvasPoint, const char*, CanvasPoint> rows[] = {
        {"where two overlap", {900, 50}, "lote1", {900, 50}},
        {"the lower one alone", {100, 50}, "lote2", {100, 50}},
        {"in the lower right corner", {2200, 1490}, "lote1", {1980, 840}},
        {"nothing there", {2900, 50}, "", {}},
    };
    for (const auto& [name, at, chosen, corner] : rows) {
        SCOPED_TRACE(name);
        ToolsDesk d;
        d.canvas.resize({3000, 1500});
        d.view.setView(3, 3, 0, 0);
        d.tools.setTool(Tool::Info);
        d.drag(at, at);
        EXPECT_EQ(d.chosen(), chosen);
        const auto plate = d.window.laid<TextPlate>();
        ASSERT_EQ(plate.has_value(), !d.chosen().empty());
        if (plate) {  // 7 characters and two lines, with 90 units around
            EXPECT_EQ(*plate, (TextPlate{corner, {1020, 660}, d.chosen() + " 7\r\nx\r\n"}));
        }
        d.tools.viewChanged();
        EXPECT_EQ(d.window.laid<TextPlate>(), std::nullopt) << "it would lie over something else";
    }
}

TEST_F(MapToolsTest, AToolReplacesTheOtherAndTheRightButtonGivesUpWhatWasBegun) {
    tools.toggleTool(Tool::Ruler);
    tools.toggleTool(Tool::ZoomSelect);
    EXPECT_EQ(tools.tool(), Tool::ZoomSelect);
    tools.press(Button::Left, {100, 100});
    tools.move({200, 200});
    tools.press(Button::Right, {200, 200});
    tools.release(Button::Right, {200, 200});
    EXPECT_EQ(tools.tool(), Tool::Pan);
    EXPECT_EQ(window.overlay, MapOverlay{});
    tools.release(Button::Left, {200, 200});
    EXPECT_FLOAT_EQ(view.scaleX(), 10);
    EXPECT_EQ(redraws(), 0U);
}

TEST(MapTools, NothingHappensWithoutAFile) {
    ToolsDesk d(false);
    d.tools.setTool(Tool::Ruler);
    EXPECT_EQ(d.tools.tool(), Tool::Pan);
    d.drag({10, 10}, {200, 200});
    d.tools.goTo({1, 1});
    EXPECT_EQ(d.canvas.calls(), std::vector<std::string>{});
    EXPECT_EQ(d.window.position, "");
}

TEST_F(MapToolsTest, GoesToAPositionAndMarksItUntilTheNextTool) {
    view.setView(2, 2, 0, 0);
    const LonLat place{5500 / METERS_PER_DEGREE, 3000 / METERS_PER_DEGREE};
    EXPECT_TRUE(tools.goTo(place));
    EXPECT_FLOAT_EQ(view.scaleX(), 2);
    EXPECT_EQ(window.laid<MarkFrame>(), (MarkFrame{{500, 250}}));
    view.setView(2, 2, view.scrollX() + 100, view.scrollY());
    EXPECT_EQ(window.laid<MarkFrame>(), (MarkFrame{{450, 250}}));
    view.setView(0.5, 0.5, 0, 0);
    EXPECT_EQ(window.laid<MarkFrame>(), std::nullopt) << "out of sight";
    view.setView(10, 10, 0, 0);
    EXPECT_EQ(window.laid<MarkFrame>(), (MarkFrame{{550, 200}}));
    tools.escape();
    EXPECT_EQ(window.laid<MarkFrame>(), std::nullopt);
    EXPECT_FALSE(tools.goTo({-58, -34})) << "beyond the map";
    EXPECT_EQ(view.scrollX(), 0);
    EXPECT_EQ(window.laid<MarkFrame>(), std::nullopt);
}

}  // namespace
}  // namespace campora
