// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "cli/info_json.h"

#include <string>

#include "base/dates.h"
#include "base/numbers.h"
#include "cli/json_writer.h"
#include "lots/gph_lote.h"
#include "model/exportable.h"
#include "model/shown_summary.h"
#include "presc/gph_presc.h"
#include "presc/grid_layer.h"

namespace campora {

namespace {

void writeBound(JsonWriter& json, const BoundingBox& box) {
    json.key("bound");
    if (!box.isSet) {
        json.null();
        return;
    }
    json.beginObject();
    json.member("minX", box.minX);
    json.member("minY", box.minY);
    json.member("maxX", box.maxX);
    json.member("maxY", box.maxY);
    json.member("widthM", box.widthM);
    json.member("heightM", box.heightM);
    json.endObject();
}

void writeSummary(JsonWriter& json, const FileProperties& summary) {
    json.key("summary");
    json.beginArray();
    for (const SummaryEntry& entry : summary.entries()) {
        json.beginObject();
        json.member("property", entry.property);
        json.member("value", entry.value);
        json.member("unit", entry.unit);
        json.endObject();
    }
    json.endArray();
}

/// What a person put in the place of figures, beside them; a row that is not shown has no value.
void writeEdited(JsonWriter& json, const FileProperties& summary) {
    if (summary.edits.empty()) {
        return;
    }
    json.key("edited");
    json.beginArray();
    for (const ShownEntry& row : shownEntries(summary)) {
        if (row.origin != ShownEntry::Origin::Measured) {
            json.beginObject();
            json.member("property", row.property);
            json.member("value", row.value);
            json.endObject();
        }
    }
    for (const std::string& removed : summary.edits.removed) {
        json.beginObject();
        json.member("property", removed);
        json.key("value");
        json.null();
        json.endObject();
    }
    json.endArray();
}

void writeScale(JsonWriter& json, const ColorScale* scale);

void writeGrid(JsonWriter& json, const GridLayer& grid) {
    json.member("columns", grid.columns());
    json.member("rows", grid.rows());
    // As the file has it, so that reading it back gives the same number.
    json.member("cell", static_cast<float>(grid.cellMetres()));
    json.key("channels");
    json.beginArray();
    for (int channel = 0; channel < grid.channelsCnt(); ++channel) {
        json.beginObject();
        writeScale(json, &grid.channelScale(channel));
        json.member("cells", grid.dosedCells(channel));
        json.endObject();
    }
    json.endArray();
}

void writeColumns(JsonWriter& json, const GphPresc& presc) {
    json.member("polygons", presc.Gph_count());
    json.key("columns");
    json.beginArray();
    for (int column = 1; column <= presc.columnCount(); ++column) {
        const bool numeric = presc.columnaNumeric(column);
        json.beginObject();
        json.member("name", presc.columnNames()[static_cast<std::size_t>(column) - 1]);
        json.member("numeric", numeric);
        json.key("values");
        if (numeric) {
            json.beginArray();
            for (const double value : presc.dosisCollection(column)) {
                json.value(value);
            }
            json.endArray();
        } else {
            json.null();
        }
        json.endObject();
    }
    json.endArray();
}

void writeLot(JsonWriter& json, const GphLote& lot, const InfoContext& context) {
    json.key("vertices");
    json.beginArray();
    for (const auto& [x, y] : lot.vertices()) {
        json.beginArray();
        json.value(x);
        json.value(y);
        json.endArray();
    }
    json.endArray();
    json.member("info", lot.Gph_getInfo(context, 0));
    json.member("description", lot.description);
}

void writeLayers(JsonWriter& json, const File& file, const InfoContext& context) {
    json.key("layers");
    json.beginArray();
    for (const Gph* layer : file.File_gphList()) {
        json.beginObject();
        json.member("kind", layer->Gph_kind());
        json.member("elements", layer->Gph_count());
        json.key("points");
        if (const auto* const points = dynamic_cast<const ExportablePoint*>(layer)) {
            json.value(points->ExportablePoint_pointCount());
        } else {
            json.null();
        }
        writeBound(json, layer->Gph_bound());
        if (const auto* const grid = dynamic_cast<const GridLayer*>(layer)) {
            writeGrid(json, *grid);
        } else if (const auto* const presc = dynamic_cast<const GphPresc*>(layer)) {
            writeColumns(json, *presc);
        } else if (const auto* const lot = dynamic_cast<const GphLote*>(layer)) {
            writeLot(json, *lot, context);
        }
        json.endObject();
    }
    json.endArray();
}

std::string colorText(Color color) {
    std::string text("#");
    for (const int component : {color.red(), color.green(), color.blue()}) {
        text += hexText(static_cast<std::uint32_t>(component), 2);
    }
    return text;
}

void writeScale(JsonWriter& json, const ColorScale* scale) {
    json.key("scale");
    if (scale == nullptr) {
        json.null();
        return;
    }
    json.beginArray();
    for (const Clase& clase : scale->classes()) {
        json.beginObject();
        json.member("lower", clase.lower);
        json.member("upper", clase.upper);
        json.member("color", colorText(clase.color));
        json.endObject();
    }
    json.endArray();
}

void writeRemarks(JsonWriter& json, const File& file, const Texts& texts) {
    if (file.remarks().empty()) {
        return;
    }
    json.key("remarks");
    json.beginArray();
    for (const Remark& remark : file.remarks()) {
        json.value(texts.sentence(remark));
    }
    json.endArray();
}

void writeFile(JsonWriter& json, File& file, const InfoContext& context) {
    json.beginObject();
    json.member("name", file.File_name());
    json.member("path", file.File_path());
    json.member("icon", file.File_icon());
    json.member("id", file.File_id());
    json.member("priority", file.File_priority());
    writeBound(json, file.File_bound());
    writeSummary(json, file.File_resumen());
    writeEdited(json, file.File_resumen());
    writeLayers(json, file, context);
    writeScale(json, file.File_escalaColores());
    writeRemarks(json, file, context.texts);
    json.endObject();
}

float shown(float value) {
    return value;
}

std::string shown(std::int32_t day) {
    return dateText(dateOfDayNumber(day), "yyyy-mm-dd");
}

template <typename T>
void writeRange(JsonWriter& json, const std::string& name,
                const std::optional<ValueRange<T>>& range) {
    for (const bool least : {true, false}) {
        json.key(name + (least ? "Min" : "Max"));
        if (range) {
            json.value(shown(least ? range->least : range->greatest));
        } else {
            json.null();
        }
    }
}

}  // namespace

void writeInfoJson(Session& session, std::ostream& out) {
    const InfoContext context{session.texts(), session.platform().locale, session.style()};
    JsonWriter json(out);
    json.beginObject();
    json.key("files");
    json.beginArray();
    for (int i = 0; i < session.plotCount(); ++i) {
        writeFile(json, session.files().file(i), context);
    }
    json.endArray();
    json.key("ranges");
    json.beginObject();
    const ValueRanges& ranges = session.ranges();
    writeRange(json, "flow", ranges.flow);
    writeRange(json, "litres", ranges.litres);
    writeRange(json, "dose", ranges.dose);
    writeRange(json, "date", ranges.date);
    json.endObject();
    json.endObject();
}

}  // namespace campora
