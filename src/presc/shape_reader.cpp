// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/shape_reader.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "base/encoding.h"
#include "base/file_endings.h"
#include "base/file_head.h"
#include "base/numbers.h"
#include "base/paths.h"

namespace campora {

namespace {

/// The path without the ending of its name.
std::string_view withoutEnding(std::string_view path) {
    const std::string_view name = fileNamePart(path);
    const std::size_t point = name.rfind('.');
    return point == std::string_view::npos ? path
                                           : path.substr(0, path.size() - name.size() + point);
}

std::string companionOf(std::string_view base, std::string_view ending) {
    return findIgnoringCase(std::string(base) + std::string(ending));
}

FileBytes readIfPossible(std::string_view path) {
    Result<FileBytes> file = readFile(path);
    return file ? std::move(*file) : FileBytes();
}

/// The failure with the projection of the map in place of the mere fact that it has one.
Failure withProjection(Failure failure, const CoordinateSystem& system) {
    if (failure.text == TextId::ShapeNotGeographic && !system.projection.empty()) {
        failure.text = TextId::MapNotGeographicNamed;
        failure.arguments.push_back(system.projection);
    }
    return failure;
}

CoordinateSystem readCoordinateSystem(std::string_view base) {
    constexpr std::size_t kLongest = 20'000;
    return coordinateSystemOf(decodeText(
        readFileHead(companionOf(base, kReferenceEnding), kLongest).value_or(std::string())));
}

}  // namespace

ShapeReader::ShapeReader() : files_(std::make_unique<Files>()) {}

std::optional<Failure> ShapeReader::open(std::string_view path) {
    const std::string found = findIgnoringCase(path);
    Result<FileBytes> main = readFile(found);
    if (!main) {
        return main.failure();
    }
    auto files = std::make_unique<Files>();
    files->shapeBytes = std::move(*main);
    const std::string_view base = withoutEnding(path);
    files->notes.system = readCoordinateSystem(base);
    const FileBytes index = readIfPossible(companionOf(base, kShapeIndexEnding));
    try {
        files->shapes = ShapefileView(files->shapeBytes.bytes(), index.bytes());
    } catch (const FormatError& error) {
        return because(TextId::FileCannotBeRead, {std::string(path)},
                       withProjection(error.failure(), files->notes.system));
    }
    if (const std::optional<Failure>& damage = files->shapes.damage()) {
        files->notes.damage =
            because(TextId::ShapeReadInPart,
                    {std::string(path), numberText(files->shapes.recordCount())}, *damage);
    }
    readTable(base, *files);
    files_ = std::move(files);
    moveFirst();
    return std::nullopt;
}

void ShapeReader::readTable(std::string_view base, Files& files) {
    const std::string path = companionOf(base, kTableEnding);
    if (!isThere(path)) {
        files.notes.isTableMissing = true;
        return;
    }
    Result<FileBytes> table = readFile(path);
    if (!table) {
        files.notes.tableWarning = because(TextId::TableLeftOut, {}, table.failure());
        return;
    }
    files.tableBytes = std::move(*table);
    constexpr std::size_t kLongestPageName = 64;
    const std::string page =
        readFileHead(companionOf(base, kCodePageEnding), kLongestPageName).value_or(std::string());
    try {
        files.table = DbaseView(files.tableBytes.bytes(), page);
    } catch (const FormatError& error) {
        files.notes.tableWarning = because(
            TextId::TableLeftOut, {}, because(TextId::FileCannotBeRead, {path}, error.failure()));
    }
}

void ShapeReader::place(std::int32_t record) {
    record_ = record;
    shape_ = record > recordCount() ? ShapeView() : files_->shapes.shape(record - 1);
    shape_.collectParts(parts_);
}

void ShapeReader::moveNext() {
    place(std::min(record_, recordCount()) + 1);
}

void ShapeReader::moveTo(std::int32_t record) {
    if (record < 1 || record > recordCount()) {
        throw std::out_of_range("no such record");
    }
    place(record);
}

const std::string& ShapeReader::fieldName(int column) const {
    return files_->table.fieldName(column - 1);
}

CellValue ShapeReader::fieldValue(int column) const {
    return files_->table.value(row(), column - 1);
}

std::optional<double> ShapeReader::fieldNumber(int column) const {
    return files_->table.number(row(), column - 1);
}

std::optional<double> ShapeReader::fieldNumber(std::int32_t record, int column) const {
    return files_->table.number(record - 1, column - 1);
}

std::string ShapeReader::fieldText(std::int32_t record, int column) const {
    return files_->table.text(record - 1, column - 1);
}

bool ShapeReader::isTextField(int column) const {
    return files_->table.isTextColumn(column - 1);
}

const ShapePart& ShapeReader::part(std::int32_t part) const {
    return parts_.at(static_cast<std::size_t>(part) - 1);
}

std::int32_t ShapeReader::partFirstVertex(std::int32_t part) const {
    return this->part(part).first;
}

std::int32_t ShapeReader::partLastVertex(std::int32_t part) const {
    return this->part(part).last;
}

bool ShapeReader::partIsHole(std::int32_t part) const {
    return this->part(part).isHole;
}

std::optional<TextId> readShapeKind(std::string_view path) {
    constexpr std::size_t kHead = 36;
    const std::optional<std::string> head = readFileHead(path, kHead);
    if (!head) {
        return std::nullopt;
    }
    const std::optional<std::int32_t> type =
        shapeTypeOfHeader(std::as_bytes(std::span(head->data(), head->size())));
    switch (static_cast<ShapeType>(type.value_or(0))) {
    case ShapeType::Point:
        return TextId::ShapePoints;
    case ShapeType::PolyLine:
        return TextId::ShapeLines;
    case ShapeType::Polygon:
        return TextId::ShapePolygons;
    case ShapeType::Null:
    case ShapeType::MultiPoint:
        break;
    }
    return std::nullopt;
}

}  // namespace campora
