// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "cli/info_json.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "base/dates.h"
#include "base/numbers.h"
#include "lots/gph_lote.h"
#include "model/exportable.h"
#include "model/shown_summary.h"
#include "presc/gph_presc.h"
#include "presc/grid_layer.h"

namespace campora {

namespace {

/// Null for a box that was never set.
Json boundJson(const BoundingBox& box) {
    return !box.isSet ? Json()
                      : Json{{"minX", box.minX}, {"minY", box.minY},     {"maxX", box.maxX},
                             {"maxY", box.maxY}, {"widthM", box.widthM}, {"heightM", box.heightM}};
}

Json summaryJson(const FileProperties& summary) {
    Json rows = Json::array();
    for (const SummaryEntry& entry : summary.entries()) {
        rows.push_back(
            {{"property", entry.property}, {"value", entry.value}, {"unit", entry.unit}});
    }
    return rows;
}

/// What a person put in the place of figures; a row that is not shown has no value.
Json editsJson(const FileProperties& summary) {
    Json rows = Json::array();
    for (const ShownEntry& row : shownEntries(summary)) {
        if (row.origin != ShownEntry::Origin::Measured) {
            rows.push_back({{"property", row.property}, {"value", row.value}});
        }
    }
    for (const std::string& removed : summary.edits.removed) {
        rows.push_back({{"property", removed}, {"value", nullptr}});
    }
    return rows;
}

std::string colorText(Color color) {
    std::string text("#");
    for (const int component : {color.red(), color.green(), color.blue()}) {
        text += hexText(static_cast<std::uint32_t>(component), 2);
    }
    return text;
}

Json classesOf(const ColorScale& scale) {
    Json classes = Json::array();
    for (const Clase& clase : scale.classes()) {
        classes.push_back(
            {{"lower", clase.lower}, {"upper", clase.upper}, {"color", colorText(clase.color)}});
    }
    return classes;
}

void addGrid(Json& layer, const GridLayer& grid) {
    layer["columns"] = grid.columns();
    layer["rows"] = grid.rows();
    // As the file has it, so that reading it back gives the same number.
    layer["cell"] = asDecimal(static_cast<float>(grid.cellMetres()));
    Json& channels = layer["channels"] = Json::array();
    for (int channel = 0; channel < grid.channelsCnt(); ++channel) {
        channels.push_back({{"scale", classesOf(grid.channelScale(channel))},
                            {"cells", grid.dosedCells(channel)}});
    }
}

void addTable(Json& layer, const GphPresc& presc) {
    layer["polygons"] = presc.Gph_count();
    Json& columns = layer["columns"] = Json::array();
    for (int column = 1; column <= presc.columnCount(); ++column) {
        const bool numeric = presc.columnaNumeric(column);
        columns.push_back({{"name", presc.columnNames()[static_cast<std::size_t>(column) - 1]},
                           {"numeric", numeric},
                           {"values", numeric ? Json(presc.dosisCollection(column)) : Json()}});
    }
}

void addLot(Json& layer, const GphLote& lot, const InfoContext& context) {
    Json& vertices = layer["vertices"] = Json::array();
    for (const auto& [x, y] : lot.vertices()) {
        vertices.push_back({x, y});
    }
    layer["info"] = lot.Gph_getInfo(context, 0);
    layer["description"] = lot.description;
}

Json layerOf(const Gph& layer, const InfoContext& context) {
    const auto* const points = dynamic_cast<const ExportablePoint*>(&layer);
    Json told{{"kind", layer.Gph_kind()},
              {"elements", layer.Gph_count()},
              {"points", points != nullptr ? Json(points->ExportablePoint_pointCount()) : Json()},
              {"bound", boundJson(layer.Gph_bound())}};
    if (const auto* const grid = dynamic_cast<const GridLayer*>(&layer)) {
        addGrid(told, *grid);
    } else if (const auto* const presc = dynamic_cast<const GphPresc*>(&layer)) {
        addTable(told, *presc);
    } else if (const auto* const lot = dynamic_cast<const GphLote*>(&layer)) {
        addLot(told, *lot, context);
    }
    return told;
}

Json fileOf(File& file, const InfoContext& context) {
    const FileProperties& summary = file.File_resumen();
    Json told{{"name", file.File_name()},         {"path", file.File_path()},
              {"icon", file.File_icon()},         {"id", file.File_id()},
              {"priority", file.File_priority()}, {"bound", boundJson(file.File_bound())},
              {"summary", summaryJson(summary)}};
    if (!summary.edits.empty()) {
        told["edited"] = editsJson(summary);
    }
    Json& layers = told["layers"] = Json::array();
    for (const Gph* layer : file.File_gphList()) {
        layers.push_back(layerOf(*layer, context));
    }
    const ColorScale* const scale = file.File_escalaColores();
    told["scale"] = scale != nullptr ? classesOf(*scale) : Json();
    for (const Remark& remark : file.remarks()) {
        told["remarks"].push_back(context.texts.sentence(remark));
    }
    return told;
}

Json rangeEnd(float value) {
    return asDecimal(value);
}

Json rangeEnd(std::int32_t day) {
    return dateText(dateOfDayNumber(day), "yyyy-mm-dd");
}

template <typename T>
void addRange(Json& ranges, const std::string& name, const std::optional<ValueRange<T>>& range) {
    ranges[name + "Min"] = range ? rangeEnd(range->least) : Json();
    ranges[name + "Max"] = range ? rangeEnd(range->greatest) : Json();
}

}  // namespace

Json infoJson(const OpenMap& map) {
    const InfoContext context{map.desk().texts, map.desk().locale, map.style()};
    Json info;
    Json& files = info["files"] = Json::array();
    for (File* file : map.files().all()) {
        files.push_back(fileOf(*file, context));
    }
    Json& ranges = info["ranges"];
    addRange(ranges, "flow", map.ranges().flow);
    addRange(ranges, "litres", map.ranges().litres);
    addRange(ranges, "dose", map.ranges().dose);
    addRange(ranges, "date", map.ranges().date);
    return info;
}

}  // namespace campora
