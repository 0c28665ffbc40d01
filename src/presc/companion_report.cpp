// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// The report that stands beside a prescription: blank until the console has worked.

#include <algorithm>
#include <array>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>

#include "base/paths.h"
#include "presc/generation.h"

namespace campora {

namespace {

constexpr std::size_t kChunk = 65536;

/// Whether nothing would be lost with the file: all its bytes can be read and are zero. What is no
/// ordinary file is not replaced in any case.
bool holdsNothing(const std::string& path) {
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(nativePath(path), ignored)) {
        return true;
    }
    std::ifstream file(nativePath(path), std::ios::binary);
    if (!file) {
        return false;
    }
    std::array<char, kChunk> chunk{};
    do {
        file.read(chunk.data(), kChunk);
        const auto end = chunk.begin() + file.gcount();
        if (std::any_of(chunk.begin(), end, [](char byte) { return byte != 0; })) {
            return false;
        }
    } while (file);
    return file.eof();
}

}  // namespace

std::optional<Failure> whyReportStands(std::string_view path) {
    const std::string report = findIgnoringCase(companionPath(path));
    if (!isThere(report) || holdsNothing(report)) {
        return std::nullopt;
    }
    return because(TextId::FileCannotBeWritten, {std::string(path)},
                   {TextId::ReportHoldsData, {report}});
}

}  // namespace campora
