// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "colour/color_scale.h"
#include "model/dose_source.h"
#include "model/exportable.h"
#include "model/file.h"
#include "model/still_layer.h"
#include "presc/multi_channel.h"

namespace campora {

/// The cells of a grid and their doses, as a file has them. Cells count from 0, row by row.
struct GridCells {
    /// Longitude of the west edge of every column, ascending.
    std::vector<double> columnX;
    /// Latitude of every row's outer edge, on the side of the first row: the north edge where rows
    /// go south, the south edge where they go north.
    std::vector<double> rowY;
    bool northward = false;
    /// Side of a cell.
    double metres = 0;
    int channels = 1;
    /// A cell after the other, channel 1 first.
    std::vector<std::int16_t> doses;
    /// Steps of the numbers in a unit of dose.
    int doseSteps = 1;
};

/// A prescription of square cells, opened from a file: what its formats have in common. It is its
/// own file. Cells and channels count from 0.
class GridLayer : public StillLayer,
                  public File,
                  public MultiChannel,
                  public DoseSource,
                  public ExportablePolygon,
                  public ExportableData,
                  public ExportablePoint {
public:
    GridLayer(const GridLayer&) = delete;
    GridLayer& operator=(const GridLayer&) = delete;
    ~GridLayer() override = default;

    [[nodiscard]] std::int32_t columns() const {
        return static_cast<std::int32_t>(cells_.columnX.size());
    }
    [[nodiscard]] std::int32_t rows() const {
        return static_cast<std::int32_t>(cells_.rowY.size());
    }
    [[nodiscard]] std::int32_t cellCount() const { return columns() * rows(); }
    /// Side of a cell in metres.
    [[nodiscard]] double cellMetres() const { return cells_.metres; }
    /// Throw `std::out_of_range` for a bad channel or cell.
    [[nodiscard]] float dose(std::int32_t cell, int channel) const;
    [[nodiscard]] const ColorScale& channelScale(int channel) const { return at(channel).scale; }
    /// Cells with a dose, which is one other than 0.
    [[nodiscard]] std::int32_t dosedCells(int channel) const { return at(channel).dosed; }
    /// Throws `std::out_of_range` for a bad channel.
    void setCurrentChannel(int channel) override;
    void showTotal() override;
    [[nodiscard]] int channelsCnt() const override { return cells_.channels; }
    /// The first cell that holds the position, edges included; -1 for none.
    [[nodiscard]] std::int32_t cellAt(LonLat position) const;
    [[nodiscard]] int doseChannels() const override { return cells_.channels; }
    [[nodiscard]] std::optional<float> doseAt(LonLat position, int channel) const override;

    [[nodiscard]] std::int32_t Gph_count() const override { return 1; }
    /// Of the cells' corners, not of the cells.
    [[nodiscard]] const BoundingBox& Gph_bound() const override { return bound_; }
    /// The current channel: cells without a dose in the map's background, the others in the
    /// colours of the scale. Cells of a pixel or less are points; large ones with a dose have an
    /// outline each.
    void Gph_plot(MapContext& context) const override;
    [[nodiscard]] std::int32_t Gph_mouseOver(const ViewTransform& view, const MapStyle& style,
                                             LonLat position, std::int32_t start) const override;
    [[nodiscard]] std::string Gph_getInfo(const InfoContext& context,
                                          std::int32_t n) const override;

    [[nodiscard]] std::string File_name() const override { return name_; }
    [[nodiscard]] std::string File_path() const override { return path_; }
    [[nodiscard]] std::string File_diskPath() const override { return path_; }
    [[nodiscard]] bool File_visible() const override { return true; }
    [[nodiscard]] ColorScale* File_escalaColores() override;
    [[nodiscard]] FileProperties& File_resumen() override { return summary_; }
    [[nodiscard]] const BoundingBox& File_bound() const override { return bound_; }
    /// Itself.
    [[nodiscard]] std::vector<Gph*> File_gphList() const override { return layers_; }
    [[nodiscard]] std::string File_id() const override { return {}; }
    [[nodiscard]] std::int32_t File_priority() const override { return 0; }

    [[nodiscard]] std::int32_t ExportablePolygon_polygonCount() const override {
        return cellCount();
    }
    [[nodiscard]] std::int32_t ExportablePolygon_polygonNCount(const MapStyle& style,
                                                               std::int32_t polygon) const override;
    /// Round the cell from its stored corner, eastward first.
    [[nodiscard]] LonLat ExportablePolygon_polygonNpoint(std::int32_t polygon,
                                                         std::int32_t point) const override;

    [[nodiscard]] std::int32_t ExportableData_getDataCount() const override { return cellCount(); }
    [[nodiscard]] int ExportableData_getColumnCount() const override { return cells_.channels; }
    [[nodiscard]] std::string ExportableData_getColumnNname(int column) const override;
    [[nodiscard]] ColumnType ExportableData_getColumnNtype(int column) const override;
    [[nodiscard]] CellValue ExportableData_getCell(std::int32_t row, int column,
                                                   const CellOptions& options) const override;

    [[nodiscard]] std::int32_t ExportablePoint_pointCount() const override { return cellCount(); }
    [[nodiscard]] LonLat ExportablePoint_pointN(std::int32_t point) const override;

protected:
    /// `path`: as it was opened. `background`: the map's, for the class of the cells without dose.
    GridLayer(std::string_view path, GridCells cells, Color background);
    /// Appends surface and total product of every channel; `symbol`: decimal.
    void addChannelEntries(char symbol);

    FileProperties summary_;

private:
    static constexpr int kTotal = -1;

    struct Channel {
        ColorScale scale;
        std::int32_t dosed = 0;
        /// Of all doses, in the steps of the file.
        std::int64_t steps = 0;
    };
    /// A rectangle of cells; the lasts are one past the end.
    struct Window {
        std::int32_t firstRow = 0;
        std::int32_t lastRow = 0;
        std::int32_t firstColumn = 0;
        std::int32_t lastColumn = 0;
    };

    void collectBound();
    void countDoses();
    /// The scale of the doses that a channel, or the total, has.
    void setUpScale(ColorScale& scale, int channel) const;
    [[nodiscard]] const Channel& at(int channel) const;
    [[nodiscard]] std::int16_t steps(std::int32_t cell, int channel) const {
        return cells_
            .doses[static_cast<std::size_t>(cell) * static_cast<std::size_t>(cells_.channels) +
                   static_cast<std::size_t>(channel)];
    }
    /// Of the current channel or of the total.
    [[nodiscard]] std::int32_t shownSteps(std::int32_t cell) const {
        return stepsOf(cell, current_);
    }
    [[nodiscard]] std::int32_t stepsOf(std::int32_t cell, int channel) const;
    [[nodiscard]] const ColorScale& shownScale() const {
        return current_ == kTotal ? total_ : at(current_).scale;
    }
    [[nodiscard]] double inUnits(std::int32_t steps) const {
        return static_cast<double>(steps) / cells_.doseSteps;
    }
    void checkCell(std::int32_t cell) const;
    [[nodiscard]] LonLat corner(std::int32_t cell) const;
    /// Degrees, as cells are exported and drawn; with its sign in the direction of the rows.
    [[nodiscard]] double cellWidth() const;
    [[nodiscard]] double cellRise() const;
    [[nodiscard]] Window visibleCells(const ViewTransform& view) const;
    void plotRow(MapContext& context, std::int32_t row, const Window& window) const;
    void outlineCells(MapContext& context, const Window& window) const;
    [[nodiscard]] Color colorOf(std::int32_t steps, const MapStyle& style) const;

    std::string name_;
    std::string path_;
    GridCells cells_;
    BoundingBox bound_;
    Color background_;
    std::deque<Channel> channels_;
    /// Set up when it is shown first.
    ColorScale total_;
    bool hasTotal_ = false;
    /// The channel that is shown, `kTotal` while it is the total of all.
    int current_ = 0;
    std::vector<Gph*> layers_{this};
};

}  // namespace campora
