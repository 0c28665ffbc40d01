// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "model/file_gph_group.h"

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "support/scripted_platform.h"

namespace campora {
namespace {

/// A layer with nothing but a box, on top of the interface `Base`.
template <typename Base>
class BoxLayer : public Base {
public:
    explicit BoxLayer(const BoundingBox& extent) : box(extent) {}

    BoundingBox box;

    std::string_view Gph_kind() const override { return "BoxLayer"; }
    std::int32_t Gph_count() const override { return 0; }
    const BoundingBox& Gph_bound() const override { return box; }
    bool Gph_animable() const override { return false; }
    void Gph_plot(MapContext& /*context*/) const override {}
    bool Gph_plotN(MapContext& /*context*/, std::int32_t /*n*/) const override { return false; }
    float Gph_delayN(std::int32_t /*n*/) const override { return 0; }
    std::int32_t Gph_mouseOver(const ViewTransform& /*view*/, const MapStyle& /*style*/,
                               LonLat /*position*/, std::int32_t /*start*/) const override {
        return -1;
    }
    std::string Gph_getInfo(const InfoContext& /*context*/, std::int32_t /*n*/) const override {
        return {};
    }
};

/// Answers its hectares as long as they are asked for with the limit of 12.5 percent.
class WorkStub : public BoxLayer<WorkLayer> {
public:
    explicit WorkStub(float hectares) : BoxLayer({}), hectares_(hectares) {}

    int cleared = 0;
    bool specified = true;

    float getHectareasError(const MapStyle& /*style*/, float limit) const override {
        return limit == 12.5F ? hectares_ : -1000;
    }
    [[nodiscard]] bool hasSpecifiedDose() const override { return specified; }
    void clearAlarmas() override { ++cleared; }
    void trocha(float /*metres*/) override {}
    [[nodiscard]] float speedN(std::int32_t /*n*/) const override { return 0; }

private:
    float hectares_;
};

BoundingBox boxOf(LonLat a, LonLat b) {
    BoundingBox box;
    box.addPoint(a.x, a.y);
    box.addPoint(b.x, b.y);
    return box;
}

TEST(FileGphGroup, BoxFollowsItsLayers) {
    FileGphGroup group;
    EXPECT_FALSE(group.File_bound().isSet);
    auto first = std::make_unique<BoxLayer<Gph>>(boxOf({0, 0}, {1, 1}));
    auto second = std::make_unique<BoxLayer<Gph>>(boxOf({1, 1}, {3, 3}));
    BoxLayer<Gph>* const changing = second.get();
    const std::vector<Gph*> layers = {first.get(), second.get()};
    group.addGph(std::move(first));
    group.addGph(std::move(second));
    EXPECT_EQ(group.File_gphList(), layers);
    EXPECT_EQ(group.File_bound().heightM, 3 * 111320);

    changing->box = boxOf({-1, 0}, {0, 2});
    group.recalcBound();
    EXPECT_EQ(group.File_bound().minX, -1);
    EXPECT_EQ(group.File_bound().maxX, 1);
    EXPECT_EQ(group.File_bound().heightM, 2 * 111320);
}

TEST(FileGphGroup, ErrorHectaresAndAlarmsComeFromItsWork) {
    FileGphGroup group;
    auto work = std::make_unique<WorkStub>(1.25F);
    const WorkStub* const seen = work.get();
    group.addGph(std::move(work));
    group.addGph(std::make_unique<BoxLayer<Gph>>(BoundingBox()));
    group.addGph(std::make_unique<WorkStub>(2.5F));
    FileProperties& summary = group.File_resumen();
    summary.addProperty("Fecha:", "29/11/2017", "");
    MapStyle style;
    style.errorLimit = 12.5F;
    const FixedLocale comma(',');

    style.mode = ColorMode::Error;
    group.calcErrorArea(style, comma);
    summary.addProperty("Operario:", "", "");
    style.mode = ColorMode::Alarm;
    const std::vector<SummaryEntry> on = summary.entries();
    group.calcErrorArea(style, comma);

    EXPECT_EQ(on, (std::vector<SummaryEntry>{{"Fecha:", "29/11/2017", ""},
                                             {"Hectareas Error", "3,8", "Has"},
                                             {"Operario:", "", ""}}));
    EXPECT_EQ(summary.entries(), (std::vector<SummaryEntry>{{"Fecha:", "29/11/2017", ""},
                                                            {"Hectareas Error", "", ""},
                                                            {"Operario:", "", ""}}));
    group.clearAlarmas();
    EXPECT_EQ(seen->cleared, 1);
}

TEST(FileGphGroup, WorkWithoutASpecifiedDoseHasNoEntryOfErrors) {
    FileGphGroup group;
    auto work = std::make_unique<WorkStub>(0.0F);
    work->specified = false;
    group.addGph(std::move(work));
    for (const ColorMode mode : {ColorMode::Error, ColorMode::Dose}) {
        MapStyle style;
        style.mode = mode;
        group.calcErrorArea(style, FixedLocale());
        EXPECT_EQ(group.File_resumen().count(), 0);
    }
}

}  // namespace
}  // namespace campora
