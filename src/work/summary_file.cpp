// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/summary_file.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>

#include "base/encoding.h"
#include "base/files.h"
#include "base/text.h"
#include "base/text_lines.h"

namespace campora {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::size_t kFields = 3;  // name, value, unit
/// Far more than a console writes: the rest of a file that is something else is not kept.
constexpr int kMostEntries = 32767;

/// The field at the start of `rest`, up to a comma or the end, neither of which it takes away. None
/// for an opening quote without a closing one.
std::optional<std::string> takeField(std::string_view& rest) {
    rest.remove_prefix(std::min(rest.find_first_not_of(" \t"), rest.size()));
    if (!rest.starts_with('"')) {
        const std::string_view field = rest.substr(0, rest.find(','));
        rest.remove_prefix(field.size());
        return std::string(field);
    }
    std::string field;
    for (std::size_t i = 1; i < rest.size(); ++i) {
        if (rest[i] != '"') {
            field.push_back(rest[i]);
            continue;
        }
        const std::string_view after = trim(rest.substr(i + 1));
        if (after.empty() || after.front() == ',') {
            rest = after;
            return field;
        }
        // Consoles do not double the quotes that a user types; such a quote stands for itself.
        field.push_back('"');
        i += rest[i + 1] == '"' ? 1 : 0;
    }
    return std::nullopt;
}

/// The three fields of a line; none when it has another number of them.
std::optional<std::array<std::string, kFields>> splitLine(std::string_view line) {
    std::array<std::string, kFields> fields;
    std::string_view rest = line;
    for (std::size_t i = 0; i < kFields; ++i) {
        std::optional<std::string> field = takeField(rest);
        const bool isLast = i + 1 == kFields;
        if (!field || rest.empty() != isLast) {
            return std::nullopt;
        }
        fields[i] = std::move(*field);
        rest.remove_prefix(isLast ? 0 : 1);
    }
    return fields;
}

/// Without its last character, which may take several bytes.
std::string_view withoutLast(std::string_view text) {
    return text.substr(0, text.size() - lastCharacters(text, 1).size());
}

/// Texts of consoles are plain ASCII as often as not, which leaves the encoding open; they read
/// Windows-1252.
bool isUtf8Beyond(std::string_view bytes) {
    const bool ascii = std::all_of(bytes.begin(), bytes.end(),
                                   [](char c) { return static_cast<unsigned char>(c) < 0x80; });
    return !ascii && isUtf8(bytes);
}

std::string quoted(std::string_view field) {
    return '"' + replaceAll(field, "\"", "\"\"") + '"';
}

}  // namespace

SummaryContent splitSummary(std::string_view bytes) {
    SummaryContent content;
    SummaryFrame& frame = content.frame;
    frame.utf8 = isUtf8Beyond(bytes);
    const std::string text = decodeText(bytes);
    TextLines lines(text);
    TextLines raw(bytes);  // the same lines as on disk
    std::string_view unread = bytes;
    for (std::string_view line, rawLine; lines.next(line) && raw.next(rawLine);) {
        const auto fields = splitLine(line);
        if (!fields || content.entries.count() == kMostEntries) {
            break;
        }
        const auto& [name, value, unit] = *fields;
        content.entries.addProperty(std::string(trim(withoutLast(name))) + ':', value, unit);
        unread = raw.rest();
    }
    frame.unread = unread;
    const bool marked = bytes.starts_with(kByteOrderMark) && !unread.starts_with(kByteOrderMark);
    frame.byteOrderMark = marked ? kByteOrderMark : "";
    return content;
}

std::string encodeSummary(std::span<const SummaryEntry> entries, const SummaryFrame& frame) {
    std::string text;
    for (const SummaryEntry& entry : entries) {
        text.append(quoted(entry.property + ":")).append(",").append(quoted(entry.value));
        text.append(",").append(quoted(entry.unit)).append("\r\n");
    }
    return frame.byteOrderMark + (frame.utf8 ? text : toWindows1252(text)) + frame.unread;
}

FileProperties decodeSummary(std::string_view bytes) {
    return splitSummary(bytes).entries;
}

void loadSummaryFile(std::string_view path, FileProperties& summary) {
    if (path.empty()) {
        return;
    }
    summary = FileProperties();
    if (const Result<FileBytes> file = readFile(path)) {
        summary = decodeSummary(file->text());
        // A file of something else is no summary, whatever its name: it may be another work, and
        // must not be deleted or rewritten as part of this one. An empty one can be filled.
        if (summary.count() > 0 || trim(file->text()).empty()) {
            summary.sourcePath = path;
        }
    }
}

}  // namespace campora
