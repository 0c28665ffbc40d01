// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "lots/load_lot.h"

#include <algorithm>
#include <string>

#include "base/failure.h"
#include "base/files.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "lots/gph_lote.h"
#include "model/measures.h"
#include "model/ring_geometry.h"
#include "model/shown_number.h"

namespace campora {

namespace {

/// Summaries are data: their names are the same in every language.
constexpr std::string_view kFile = "Nombre Archivo:";
constexpr std::string_view kArea = "Superficie:";
constexpr std::string_view kPerimeter = "Perímetro:";
constexpr std::string_view kVertices = "Vértices:";
constexpr std::string_view kDescription = "Descripcion";

void fillSummary(std::span<const Lot> lots, FileGphGroup& group, const UserLocale& locale) {
    double hectares = 0;
    double perimeter = 0;
    std::size_t vertices = 0;
    for (const Lot& lot : lots) {
        hectares += ringAreaM2(lot.vertices) / kSquareMetresPerHectare;
        perimeter += ringPerimeter(lot.vertices);
        vertices += lot.vertices.size();
    }
    FileProperties& summary = group.File_resumen();
    summary.addProperty(kFile, group.name, "");
    summary.addProperty(kArea, shownNumber(hectares, locale), "Has");
    summary.addProperty(kPerimeter, shownNumber(perimeter, locale), "m");
    summary.addProperty(kVertices, numberText(vertices), "");
    std::string_view property = kDescription;
    std::vector<std::string> lines = descriptionLines(lots.front().description);
    lines.resize(std::min(lines.size(), kLotDescriptionLines));
    for (const std::string& line : lines) {
        summary.addProperty(property, line, "");
        property = "";
    }
}

}  // namespace

std::unique_ptr<FileGphGroup> loadLot(std::string_view path, const Desk& desk) {
    const Result<FileBytes> file = readFile(path);
    if (!file) {
        desk.tellWrongFile(file.failure());
        return nullptr;
    }
    const Lot lot = decodeLot(file->text());
    if (lot.vertices.empty()) {
        desk.tellWrongFile(because(TextId::FileCannotBeRead, {std::string(path)},
                                   {TextId::LotWithoutVertices, {}}));
        return nullptr;
    }
    auto group = makeLotGroup({&lot, 1}, path, fileNamePart(path), desk.locale);
    if (lot.noPositions.count > 0) {
        group->addRemark(lot.noPositions.remark(TextId::RemarkNoVertex));
    }
    return group;
}

std::unique_ptr<FileGphGroup> makeLotGroup(std::span<const Lot> lots, std::string_view path,
                                           std::string_view name, const UserLocale& locale) {
    auto group = std::make_unique<FileGphGroup>();
    group->icon = "ruler";
    group->path = path;
    group->name = name;
    for (const Lot& lot : lots) {
        group->addGph(std::make_unique<GphLote>(lot.vertices, lot.description));
    }
    fillSummary(lots, *group, locale);
    return group;
}

}  // namespace campora
