// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "export/kml_export.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "base/encoding.h"
#include "base/file_draft.h"
#include "base/files.h"
#include "base/number_forms.h"
#include "base/paths.h"
#include "base/text.h"
#include "base/text_lines.h"
#include "model/exportable.h"

namespace campora {

namespace {

constexpr std::string_view kLineEnd = "\r\n";
/// Metres; the shipped templates lay the polygons on the ground whatever it says.
constexpr std::string_view kAltitude = ",50\r\n";

/// Pieces of the document, in the order of `kTemplates`.
enum Piece : std::size_t { kHead, kHeadEnd, kPolygonHead, kPolygonEnd, kEnd, kPieces };

constexpr std::array<std::string_view, kPieces> kTemplates = {
    "kmlhead.inc", "kmlheadb.inc", "kmlPolyhead.inc", "kmlPolyend.inc", "kmlend.inc"};

using Templates = std::array<std::string, kPieces>;

std::string templatePath(std::string_view programFolder, std::string_view name) {
    const std::string folder =
        programFolder.empty() || programFolder.ends_with('\\') || programFolder.ends_with('/')
            ? std::string(programFolder)
            : std::string(programFolder) + '/';
    const std::string beside = findIgnoringCase(folder + std::string(name));
    const std::string inFolder = findIgnoringCase(folder + "kml/" + std::string(name));
    return canOpen(beside) || !canOpen(inFolder) ? beside : inFolder;
}

/// The lines of the five templates, each ended by CR LF.
Result<Templates> readTemplates(std::string_view programFolder) {
    Templates templates;
    for (std::size_t piece = 0; piece < kPieces; ++piece) {
        const Result<FileBytes> file = readFile(templatePath(programFolder, kTemplates[piece]));
        if (!file) {
            return file.failure();
        }
        const std::string text = decodeText(file->text());
        std::string_view line;
        for (TextLines lines(text); lines.next(line);) {
            templates[piece].append(line).append(kLineEnd);
        }
    }
    return templates;
}

/// The name stands in a CDATA section, which must not end in it and takes no control signs.
std::string nameLine(std::string_view path) {
    std::string name = decodeText(fileNamePart(path));
    for (char& letter : name) {
        if (static_cast<unsigned char>(letter) < ' ') {
            letter = ' ';
        }
    }
    return replaceAll(name, "]]>", "]]]]><![CDATA[>").append(kLineEnd);
}

std::int64_t polygonsOf(std::span<const Gph* const> layers) {
    std::int64_t all = 0;
    for (const Gph* layer : layers) {
        if (const auto* polygons = dynamic_cast<const ExportablePolygon*>(layer)) {
            all += polygons->ExportablePolygon_polygonCount();
        }
    }
    return all;
}

/// The polygons of a layer; false when the user has cancelled.
bool writeLayer(const ExportablePolygon& layer, const Templates& templates, const MapStyle& style,
                FileDraft& file, ExportProgress& progress) {
    std::string text;
    const std::int32_t count = layer.ExportablePolygon_polygonCount();
    for (std::int32_t polygon = 0; polygon < count; ++polygon) {
        if (!progress.next()) {
            return false;
        }
        const std::int32_t points = layer.ExportablePolygon_polygonNCount(style, polygon);
        if (points <= 0) {
            continue;
        }
        text = templates[kPolygonHead];
        for (std::int32_t point = points - 1; point >= 0; --point) {
            const LonLat at = layer.ExportablePolygon_polygonNpoint(polygon, point);
            text.append(sharpNumberText(at.x)).append(",").append(sharpNumberText(at.y));
            text.append(kAltitude);
        }
        text += templates[kPolygonEnd];
        file.write(text);
    }
    return true;
}

}  // namespace

std::optional<Failure> kmlExport(std::span<const Gph* const> layers, std::string_view path,
                                 std::string_view programFolder, const MapStyle& style,
                                 ExportProgress& progress) {
    const Result<Templates> templates = readTemplates(programFolder);
    if (!templates) {
        return templates.failure();
    }
    FileDraft file(path);
    file.write((*templates)[kHead]);
    file.write(nameLine(path));
    file.write((*templates)[kHeadEnd]);
    progress.expect(polygonsOf(layers));
    for (const Gph* layer : layers) {
        const auto* polygons = dynamic_cast<const ExportablePolygon*>(layer);
        if (polygons != nullptr && !writeLayer(*polygons, *templates, style, file, progress)) {
            return std::nullopt;
        }
    }
    file.write((*templates)[kEnd]);
    return file.finish();
}

}  // namespace campora
