// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "export/kml_export.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "base/encoding.h"
#include "base/file_draft.h"
#include "base/files.h"
#include "base/number_forms.h"
#include "base/paths.h"
#include "base/text.h"
#include "base/text_lines.h"
#include "export/export_layers.h"

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

/// A layer's polygons on their way into the document.
class Polygons {
public:
    Polygons(const Templates& templates, const MapStyle& style, FileDraft& file)
        : templates_(templates), style_(style), file_(file) {}

    [[nodiscard]] bool empty() const { return empty_; }
    /// False when the user has cancelled.
    bool write(const ExportLayer& layer, ExportProgress& progress) {
        for (std::int32_t polygon = 0; polygon < layer.count; ++polygon) {
            if (!progress.next()) {
                return false;
            }
            write(*layer.polygons, polygon);
        }
        return true;
    }

private:
    void write(const ExportablePolygon& layer, std::int32_t polygon) {
        const std::int32_t points = layer.ExportablePolygon_polygonNCount(style_, polygon);
        if (points <= 0) {
            return;
        }
        text_ = templates_[kPolygonHead];
        for (std::int32_t point = points - 1; point >= 0; --point) {
            const LonLat at = layer.ExportablePolygon_polygonNpoint(polygon, point);
            text_.append(sharpNumberText(at.x)).append(",").append(sharpNumberText(at.y));
            text_.append(kAltitude);
        }
        text_ += templates_[kPolygonEnd];
        file_.write(text_);
        empty_ = false;
    }

    const Templates& templates_;
    const MapStyle& style_;
    FileDraft& file_;
    std::string text_;
    bool empty_ = true;
};

}  // namespace

std::optional<Failure> kmlExport(std::span<const Gph* const> layers, std::string_view path,
                                 std::string_view programFolder, const MapStyle& style,
                                 ExportProgress& progress) {
    const std::vector<ExportLayer> found = polygonLayers(layers);
    if (figureCount(found) == 0) {
        return Failure{TextId::NoPolygonsToExport, {}, {}};
    }
    const Result<Templates> templates = readTemplates(programFolder);
    if (!templates) {
        return templates.failure();
    }
    FileDraft file(path);
    file.write((*templates)[kHead]);
    file.write(nameLine(path));
    file.write((*templates)[kHeadEnd]);
    progress.expect(figureCount(found));
    Polygons polygons(*templates, style, file);
    for (const ExportLayer& layer : found) {
        if (!polygons.write(layer, progress)) {
            return std::nullopt;
        }
    }
    if (polygons.empty() && !file.failure()) {
        return Failure{TextId::NoPolygonsToExport, {}, {}};
    }
    file.write((*templates)[kEnd]);
    return file.finish();
}

}  // namespace campora
