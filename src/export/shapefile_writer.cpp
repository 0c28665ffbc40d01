// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "export/shapefile_writer.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "base/byte_writer.h"
#include "base/file_endings.h"

namespace campora {

namespace {

namespace header = shapefile::header;

constexpr std::uint64_t kMostBytes = 2 * std::uint64_t{std::numeric_limits<std::int32_t>::max()};

constexpr std::string_view kReference =
    R"(GEOGCS["GCS_WGS_1984",DATUM["D_WGS_1984",SPHEROID["WGS_1984",6378137.0,298.257223563]],)"
    R"(PRIMEM["Greenwich",0.0],UNIT["Degree",0.0174532925199433]])";
constexpr std::string_view kCodePage = "1252";
constexpr std::string_view kWritten[] = {kShapeEnding, kShapeIndexEnding, kTableEnding,
                                         kReferenceEnding, kCodePageEnding};
/// Indexes that other programs leave beside a set; they would look for the new figures in the
/// places of the old ones.
constexpr std::string_view kForeignIndexes[] = {".qix", ".sbn", ".sbx"};

std::int32_t words(std::uint64_t bytes) {
    return static_cast<std::int32_t>(bytes / 2);
}

}  // namespace

std::vector<std::string> filesOfShapefile(std::string_view basePath) {
    std::vector<std::string> files;
    for (const std::string_view ending : kWritten) {
        files.push_back(std::string(basePath).append(ending));
    }
    for (const std::string_view ending : kForeignIndexes) {
        files.push_back(std::string(basePath).append(ending));
    }
    return files;
}

void ShapefileWriter::Box::add(LonLat point) {
    minX = std::min(minX, point.x);
    minY = std::min(minY, point.y);
    maxX = std::max(maxX, point.x);
    maxY = std::max(maxY, point.y);
}

void ShapefileWriter::Box::append(std::string& bytes) const {
    for (const double limit : {minX, minY, maxX, maxY}) {
        appendLittle(bytes, limit);
    }
}

ShapefileWriter::ShapefileWriter(std::string_view basePath, ShapeType type,
                                 std::optional<Date> today)
    : basePath_(basePath),
      type_(type),
      table_(today),
      main_(std::string(basePath_).append(kShapeEnding)),
      index_(std::string(basePath_).append(kShapeIndexEnding)) {}

std::optional<Failure> ShapefileWriter::create(const BoundingBox& box) {
    std::string bytes;
    appendBig(bytes, header::kCode);
    bytes.resize(header::kLength, '\0');
    appendBig(bytes, 0);  // known at the end
    appendLittle(bytes, header::kVersion);
    appendLittle(bytes, static_cast<std::int32_t>(type_));
    const Box written = box.isSet ? Box{box.minX, box.minY, box.maxX, box.maxY} : Box{0, 0, 0, 0};
    written.append(bytes);
    bytes.resize(header::kSize, '\0');
    main_.write(bytes);
    index_.write(bytes);
    for (const FileDraft* file : {&main_, &index_}) {
        if (auto failure = file->failure()) {
            return failure;
        }
    }
    return table_.createDBF(basePath_);
}

void ShapefileWriter::addPolygon(std::span<const std::span<const LonLat>> parts) {
    Box box;
    std::size_t points = 0;
    for (const auto& part : parts) {
        std::for_each(part.begin(), part.end(), [&](LonLat point) { box.add(point); });
        points += part.size();
    }
    content_.clear();
    appendLittle(content_, static_cast<std::int32_t>(type_));
    box.append(content_);
    appendLittle(content_, static_cast<std::int32_t>(parts.size()));
    appendLittle(content_, static_cast<std::int32_t>(points));
    std::int32_t start = 0;
    for (const auto& part : parts) {
        appendLittle(content_, start);
        start += static_cast<std::int32_t>(part.size());
    }
    for (const auto& part : parts) {
        for (const LonLat& point : part) {
            appendLittle(content_, point.x);
            appendLittle(content_, point.y);
        }
    }
    covered_.add({box.minX, box.minY});
    covered_.add({box.maxX, box.maxY});
    writeRecord();
}

void ShapefileWriter::addPoint(LonLat point) {
    content_.clear();
    appendLittle(content_, static_cast<std::int32_t>(type_));
    appendLittle(content_, point.x);
    appendLittle(content_, point.y);
    covered_.add(point);
    writeRecord();
}

void ShapefileWriter::writeRecord() {
    const std::uint64_t offset = main_.size();
    isTooLarge_ = isTooLarge_ || offset + shapefile::kRecordHeader + content_.size() > kMostBytes;
    if (isTooLarge_) {
        return;
    }
    const std::int32_t length = words(content_.size());
    heading_.clear();
    appendBig(heading_, ++records_);
    appendBig(heading_, length);
    main_.write(heading_);
    main_.write(content_);
    heading_.clear();
    appendBig(heading_, words(offset));
    appendBig(heading_, length);
    index_.write(heading_);
}

bool ShapefileWriter::hasFailed() const {
    return isTooLarge_ || main_.failure() || index_.failure();
}

void ShapefileWriter::writeLength(FileDraft& file) {
    std::string length;
    appendBig(length, words(file.size()));
    file.overwrite(header::kLength, length);
    if (usesCoveredBox_ && records_ > 0) {
        std::string box;
        covered_.append(box);
        file.overwrite(header::kBox, box);
    }
}

std::optional<Failure> ShapefileWriter::finish() {
    if (isTooLarge_) {
        return because(TextId::FileCannotBeWritten, {std::string(basePath_).append(kShapeEnding)},
                       {TextId::FileTooLarge, {}});
    }
    writeLength(main_);
    writeLength(index_);
    std::vector<FileDraft> files;
    files.push_back(std::move(main_));
    files.push_back(std::move(index_));
    files.push_back(table_.takeDraft());
    files.emplace_back(std::string(basePath_).append(kReferenceEnding)).write(kReference);
    files.emplace_back(std::string(basePath_).append(kCodePageEnding)).write(kCodePage);
    std::vector<std::string> outdated;
    for (const std::string_view ending : kForeignIndexes) {
        outdated.push_back(std::string(basePath_).append(ending));
    }
    return finishTogether(files, outdated);
}

}  // namespace campora
