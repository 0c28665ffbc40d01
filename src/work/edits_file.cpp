// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/edits_file.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include <nlohmann/json.hpp>

#include "base/file_draft.h"
#include "base/files.h"
#include "base/paths.h"
#include "base/sha256.h"

namespace campora {

namespace {

using Json = nlohmann::ordered_json;

constexpr std::string_view kEnding = ".campora.json";
constexpr int kVersion = 1;
/// Far more than a person types.
constexpr std::size_t kMostBytes = std::size_t{1} << 20U;

namespace key {
constexpr const char* kVersion = "version";
constexpr const char* kReport = "report";
constexpr const char* kName = "name";
constexpr const char* kSha256 = "sha256";
constexpr const char* kRows = "rows";
constexpr const char* kProperty = "property";
constexpr const char* kValue = "value";
constexpr const char* kUnit = "unit";
constexpr const char* kRemoved = "removed";
}  // namespace key

FormatError damaged() {
    return FormatError({TextId::EditsDamaged, {}, {}});
}

const Json& member(const Json& object, const char* name) {
    const auto found = object.is_object() ? object.find(name) : object.end();
    if (!object.is_object() || found == object.end()) {
        throw damaged();
    }
    return *found;
}

/// Control characters have no place in a row and could move the lines of a terminal.
std::string textOf(const Json& value) {
    if (!value.is_string()) {
        throw damaged();
    }
    auto text = value.get<std::string>();
    std::replace_if(
        text.begin(), text.end(),
        [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }, ' ');
    return text;
}

const Json& arrayOf(const Json& object, const char* name) {
    const Json& array = member(object, name);
    if (!array.is_array()) {
        throw damaged();
    }
    return array;
}

SummaryEdits::Row rowOf(const Json& object) {
    SummaryEdits::Row row{textOf(member(object, key::kProperty))};
    if (object.contains(key::kValue)) {
        row.value =
            SummaryEdits::Value{textOf(object[key::kValue]), textOf(member(object, key::kUnit))};
    }
    return row;
}

/// Throws `FormatError` for what is no file of edits, or not of the report with that sum.
SummaryEdits decode(std::string_view text, const std::string& sum) {
    const Json file = Json::parse(text, nullptr, false);
    const Json& version = member(file, key::kVersion);
    if (!version.is_number_integer() || version < 1) {
        throw damaged();
    }
    if (version > kVersion) {
        throw FormatError({TextId::EditsLaterVersion, {}, {}});
    }
    if (textOf(member(member(file, key::kReport), key::kSha256)) != sum) {
        throw FormatError({TextId::EditsOtherReport, {}, {}});
    }
    SummaryEdits edits;
    for (const Json& row : arrayOf(file, key::kRows)) {
        edits.rows.push_back(rowOf(row));
    }
    for (const Json& name : arrayOf(file, key::kRemoved)) {
        edits.removed.push_back(textOf(name));
    }
    return edits;
}

std::string encode(const SummaryEdits& edits, std::string_view name, const std::string& sum) {
    Json file;
    file[key::kVersion] = kVersion;
    file[key::kReport][key::kName] = std::string(name);
    file[key::kReport][key::kSha256] = sum;
    Json& rows = file[key::kRows] = Json::array();
    for (const SummaryEdits::Row& row : edits.rows) {
        Json written;
        written[key::kProperty] = row.property;
        if (row.value) {
            written[key::kValue] = row.value->value;
            written[key::kUnit] = row.value->unit;
        }
        rows.push_back(std::move(written));
    }
    file[key::kRemoved] = edits.removed;
    return file.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}

}  // namespace

std::string editsPath(std::string_view path) {
    return std::string(path).append(kEnding);
}

ReadEdits readEdits(std::string_view path) {
    const std::string file = findIgnoringCase(editsPath(path));
    if (path.empty() || !isThere(file)) {
        return {};
    }
    const auto unused = [&file](Failure why) {
        return ReadEdits{{}, because(TextId::EditsNotUsed, {file}, std::move(why))};
    };
    const Result<FileBytes> bytes = readFile(file);
    if (!bytes) {
        return unused(bytes.failure());
    }
    const Result<FileBytes> report = readFile(path);
    if (!report) {
        return unused(report.failure());
    }
    try {
        if (bytes->size() > kMostBytes) {
            throw damaged();
        }
        return {decode(bytes->text(), sha256(report->bytes()))};
    } catch (const FormatError& error) {
        return unused(error.failure());
    }
}

std::optional<Failure> writeEdits(std::string_view path, const SummaryEdits& edits) {
    const std::string file = findIgnoringCase(editsPath(path));
    if (edits.empty()) {
        return deleteFile(file);
    }
    const Result<FileBytes> report = readFile(path);
    if (!report) {
        return report.failure();
    }
    FileDraft draft(file);
    draft.write(encode(edits, fileNamePart(path), sha256(report->bytes())));
    return draft.finish();
}

void addKeptEdits(File& file) {
    FileProperties& summary = file.File_resumen();
    if (!summary.sourcePath.empty()) {
        return;
    }
    ReadEdits read = readEdits(file.File_diskPath());
    summary.edits = std::move(read.edits);
    if (read.unused) {
        file.addRemark(std::move(*read.unused));
    }
}

}  // namespace campora
