// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "colour/color_scale.h"
#include "colour/set_list.h"
#include "model/file.h"
#include "model/number_column.h"
#include "model/still_layer.h"
#include "platform/desk.h"
#include "presc/gph_polygon_multi.h"
#include "presc/zone_table.h"
#include "rtree/r2_tree.h"

namespace campora {

/// The zones of one shapefile, coloured by the dose that one of its columns gives them. It is its
/// own file. Zones count from 0, columns from 1. Doses that change here are never written back.
class GphPresc final : public StillLayer, public File {
public:
    static constexpr int kNoColumn = -1;

    /// `plain`: fill of the zones while no column is chosen.
    explicit GphPresc(Color plain = MapColors().shape);
    GphPresc(const GphPresc&) = delete;
    GphPresc& operator=(const GphPresc&) = delete;
    ~GphPresc() override = default;

    /// Told 0 to 100 while `loadFromFile` and `setColumnaDosis` work; may be empty.
    std::function<void(int percent)> progress;

    /// Fills an empty layer; call it once. What is wrong with the file is told through `dialogs`:
    /// why it cannot be read or only in part, that its table was left out, that it has no polygons.
    /// False when it cannot be read, or is not there, which is told by nobody; the layer is as
    /// before then.
    bool loadFromFile(std::string_view path, const Desk& desk);

    [[nodiscard]] const std::string& name() const { return name_; }
    /// What is wrong or missing with the file, and its coordinates.
    [[nodiscard]] const ShapefileNotes& notes() const { return table_.notes(); }
    [[nodiscard]] int columnCount() const { return table_.columnCount(); }
    [[nodiscard]] const std::vector<std::string>& columnNames() const {
        return table_.columnNames();
    }
    /// What the map is made of: zones where there is one among its records.
    [[nodiscard]] FigureKind figures() const { return figures_; }

    /// Whether every record has a number there; false for columns that are not there.
    [[nodiscard]] bool columnaNumeric(int column) const;
    /// The distinct values of a column, ascending, 0 always among them; empty for a column that is
    /// not numeric.
    [[nodiscard]] const std::vector<double>& dosisCollection(int column) const;
    /// How the records that draw something have the column filled. Throws `std::out_of_range` for a
    /// column that is not there.
    [[nodiscard]] ColumnSurvey survey(int column) const;
    /// The values of a column read in that form, by zone; none for a zone without one or
    /// without a point.
    [[nodiscard]] std::vector<std::optional<double>> values(int column, ColumnForm form) const;
    /// Makes a column the one of the doses: a class a dose, and every zone its dose and colour. One
    /// that is not numeric must be so in the form that is given. Nothing for other columns.
    void setColumnaDosis(int column, ColumnForm form = {});
    [[nodiscard]] int columnaDosis() const { return column_; }
    /// Null before a column is chosen.
    [[nodiscard]] const SetList* currentDosisSet() const;

    /// In the order of the records.
    [[nodiscard]] const std::vector<GphPolygonMulti>& polygons() const { return polygons_; }
    /// Gives a zone another dose and brings the scale, and with it every colour, up to date.
    /// Nothing before a column is chosen. Throws `std::out_of_range` for a bad zone.
    void setDosis(std::int32_t polygon, float dosis);
    /// Whether doses differ from those of the map, or from what was saved last.
    [[nodiscard]] bool dosesChanged() const { return dosesChanged_; }
    void dosesSaved() { dosesChanged_ = false; }
    /// The set of the current column and the scale anew, from the doses that the zones have now.
    void recalculateColorScale();

    /// The zones with a dose in the order in which every search hands them out: where several hold
    /// a position, the last of them in this order has it and is drawn on top. Zones without a point
    /// are in no search.
    [[nodiscard]] const std::vector<std::int32_t>& searchOrder() const { return order_; }
    /// All records whose box meets that one.
    [[nodiscard]] std::vector<std::int32_t> recordsNear(const BoundingBox& box) const;
    /// -1 when no zone holds the position (degrees).
    [[nodiscard]] std::int32_t polygonIndexAt(LonLat position) const;
    /// As `polygonIndexAt`; null when there is none. Owned by the layer.
    [[nodiscard]] const GphPolygonMulti* getPolygonAtPoint(double x, double y) const;
    /// The classes of the doses; what changes in them changes the zones.
    [[nodiscard]] ColorScale& escalaColor() { return scale_; }
    [[nodiscard]] const ColorScale& escalaColor() const { return scale_; }

    [[nodiscard]] std::string_view Gph_kind() const override { return "GphPresc"; }
    [[nodiscard]] std::int32_t Gph_count() const override {
        return static_cast<std::int32_t>(polygons_.size());
    }
    [[nodiscard]] const BoundingBox& Gph_bound() const override { return bound_; }
    void Gph_plot(MapContext& context) const override;
    [[nodiscard]] std::int32_t Gph_mouseOver(const ViewTransform& view, const MapStyle& style,
                                             LonLat position, std::int32_t start) const override;
    /// The columns of zone n as the table holds them, and its area. Throws `std::out_of_range` for
    /// a bad zone.
    [[nodiscard]] std::string Gph_getInfo(const InfoContext& context,
                                          std::int32_t n) const override;

    [[nodiscard]] std::string File_name() const override { return name_; }
    [[nodiscard]] std::string File_path() const override { return path_; }
    [[nodiscard]] std::string File_diskPath() const override { return path_; }
    [[nodiscard]] bool File_visible() const override { return true; }
    [[nodiscard]] std::string File_icon() const override { return "shpfile"; }
    [[nodiscard]] ColorScale* File_escalaColores() override { return &scale_; }
    [[nodiscard]] FileProperties& File_resumen() override { return summary_; }
    [[nodiscard]] const BoundingBox& File_bound() const override { return bound_; }
    /// Itself.
    [[nodiscard]] std::vector<Gph*> File_gphList() const override { return layers_; }
    [[nodiscard]] std::string File_id() const override { return {}; }
    [[nodiscard]] std::int32_t File_priority() const override { return 0; }

private:
    void readRecords();
    /// The order of the search, and the doses that take part in it.
    void rank();
    void addPolygon(GphPolygonMulti polygon);
    void changeValue(double oldValue, double newValue);
    void colorAgain();
    void report(std::int64_t done, std::int64_t all) const;

    Color plain_;
    std::string name_;
    std::string path_;
    ZoneTable table_;
    std::vector<GphPolygonMulti> polygons_;
    BoundingBox bound_;
    R2Tree tree_;
    std::vector<std::int32_t> order_;
    /// Everything else that is drawn: ground without a dose, below the zones, and lines and points,
    /// above them.
    std::vector<std::int32_t> below_;
    std::vector<std::int32_t> above_;
    FigureKind figures_ = FigureKind::Zone;
    int column_ = kNoColumn;
    FileProperties summary_;
    std::vector<Gph*> layers_{this};
    ColorScale scale_;
    ColorScale::Subscription changes_;
    ColorScale::Subscription valueChanges_;
    /// What the column says of every zone.
    std::vector<float> listedDoses_;
    bool dosesChanged_ = false;
};

}  // namespace campora
