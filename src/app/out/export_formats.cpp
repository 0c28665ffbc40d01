// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/out/export_formats.h"

#include <algorithm>
#include <cstddef>

#include "app/out/track_export.h"
#include "base/file_endings.h"
#include "base/paths.h"
#include "base/text.h"
#include "export/geojson_export.h"
#include "export/kml_export.h"
#include "export/shapefile_writer.h"
#include "export/shp_export.h"
#include "export/txt_export.h"
#include "platform/file_filter.h"

namespace campora {

namespace {

/// The writers of sets of files add the endings themselves.
std::string_view basePath(const ExportRequest& request) {
    return std::string_view(request.path).substr(0, request.path.size() - kShapeEnding.size());
}

std::optional<Failure> writeShpPolygons(const ExportRequest& request) {
    return exportShpPolygons(request.layers, basePath(request), request.map.style(),
                             request.progress);
}

std::optional<Failure> writeShpPoints(const ExportRequest& request) {
    return exportShpPoints(request.layers, basePath(request), request.progress);
}

std::optional<Failure> writeShpGis(const ExportRequest& request) {
    return exportShpGis(request.layers, basePath(request),
                        {request.map.style(), &request.map.desk().texts}, request.means.today,
                        request.progress);
}

std::optional<Failure> writeGeoJson(const ExportRequest& request) {
    return exportGeoJson(request.layers, request.path,
                         {request.map.style(), &request.map.desk().texts}, request.progress);
}

std::optional<Failure> writeKml(const ExportRequest& request) {
    return kmlExport(request.layers, request.path, request.map.programFolder(), request.map.style(),
                     request.progress);
}

template <char kDecimalSymbol>
std::optional<Failure> writeTextTable(const ExportRequest& request) {
    TextTableForm form;
    form.decimalSymbol = kDecimalSymbol;
    return txtExport(request.layers, request.path, form, request.map.desk().locale,
                     request.progress);
}

template <PictureForm kForm>
std::optional<Failure> writePicture(const ExportRequest& request) {
    return request.means.savePicture(request.means.picture(), request.path, kForm);
}

// clang-format off
constexpr ExportFormat kFormats[] = {
    {"shp-polygon", kShapeEnding, TextId::FilterShapePolygons, ExportSource::Layers,
     AfterExport::Nothing, polygonLayers, writeShpPolygons},
    {"shp-point", kShapeEnding, TextId::FilterShapePoints, ExportSource::Layers,
     AfterExport::Nothing, pointLayers, writeShpPoints},
    {"bmp", kBmpEnding, TextId::FilterBitmap, ExportSource::Picture,
     AfterExport::Nothing, nullptr, writePicture<PictureForm::Bmp>},
    {"kml", kKmlEnding, TextId::FilterKml, ExportSource::Layers,
     AfterExport::AskToOpen, nullptr, writeKml},
    {"txt", kTextEnding, TextId::FilterText, ExportSource::Layers,
     AfterExport::Open, nullptr, writeTextTable<'.'>},
    {"txt-comma", kTextEnding, TextId::FilterTextComma, ExportSource::Layers,
     AfterExport::Open, nullptr, writeTextTable<','>},
    {"shp-gis", kShapeEnding, TextId::FilterShapeGis, ExportSource::Layers,
     AfterExport::Nothing, nullptr, writeShpGis},
    {"geojson", kGeoJsonEnding, TextId::FilterGeoJson, ExportSource::Layers,
     AfterExport::Nothing, nullptr, writeGeoJson},
    {"png", kPngEnding, TextId::FilterPng, ExportSource::Picture,
     AfterExport::Nothing, nullptr, writePicture<PictureForm::Png>},
};
// clang-format on

constexpr std::size_t kFirstText = 4;
static_assert(kFormats[kFirstText].word == "txt" && kFormats[kFirstText + 1].word == "txt-comma");

}  // namespace

std::span<const ExportFormat> exportFormats() {
    return kFormats;
}

const ExportFormat* exportFormatOf(std::string_view word) {
    const auto* const found =
        std::find_if(std::begin(kFormats), std::end(kFormats),
                     [word](const ExportFormat& format) { return format.word == word; });
    return found == std::end(kFormats) ? nullptr : found;
}

std::span<const ExportFormat> textFormats() {
    return exportFormats().subspan(kFirstText, 2);
}

std::vector<std::string> targetsOf(const ExportFormat& format, const std::string& path) {
    return format.ending == kShapeEnding ? filesOfShapefile(shapeBaseOf(path))
                                         : std::vector<std::string>{path};
}

std::vector<const Gph*> layersWithoutColumns(const ExportFormat& format,
                                             const std::vector<Gph*>& layers) {
    std::vector<const Gph*> without;
    if (format.tableLayers == nullptr) {
        return without;
    }
    bool others = false;
    for (const ExportLayer& layer :
         format.tableLayers(std::vector<const Gph*>(layers.begin(), layers.end()))) {
        if (layer.count > 0 && layer.data == nullptr) {
            without.push_back(layer.gph);
        }
        others = others || (layer.count > 0 && layer.data != nullptr);
    }
    return others ? without : std::vector<const Gph*>();
}

std::vector<FileFilter> exportFilters(std::span<const ExportFormat> formats, const Texts& texts) {
    std::vector<FileFilter> filters;
    for (const ExportFormat& format : formats) {
        filters.push_back(fileFilter(texts, format.caption, format.ending));
    }
    return filters;
}

std::string pathForFormat(std::string_view path, std::string_view ending) {
    const std::string name = lowerCase(fileNamePart(path));
    if (name.empty() || name.ends_with(ending)) {
        return std::string(path);
    }
    for (const ExportFormat& format : kFormats) {
        if (name.ends_with(format.ending) && name.size() > format.ending.size()) {
            path.remove_suffix(format.ending.size());
            break;
        }
    }
    return std::string(path).append(ending);
}

}  // namespace campora
