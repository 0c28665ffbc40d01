// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "lots/lot.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <optional>

#include "base/encoding.h"
#include "base/number_forms.h"
#include "base/numbers.h"
#include "base/text.h"
#include "base/text_lines.h"

namespace campora {

namespace {

/// What keeps a line of the description from being read as something else.
constexpr char kMark = '_';

std::size_t takeDigits(std::string_view& text) {
    const auto* const end = std::find_if_not(text.begin(), text.end(), isDigit);
    const auto count = static_cast<std::size_t>(end - text.begin());
    text.remove_prefix(count);
    return count;
}

void takeSign(std::string_view& text) {
    if (text.starts_with('-') || text.starts_with('+')) {
        text.remove_prefix(1);
    }
}

/// Whether the text is a number from end to end; a lone point is one.
bool isNumber(std::string_view text) {
    takeSign(text);
    std::size_t figures = takeDigits(text);
    if (text.starts_with('.')) {
        text.remove_prefix(1);
        figures += takeDigits(text);
        if (figures == 0) {
            return text.empty();
        }
    }
    if (figures > 0 && (text.starts_with('e') || text.starts_with('E'))) {
        text.remove_prefix(1);
        takeSign(text);
        return takeDigits(text) > 0 && text.empty();
    }
    return figures > 0 && text.empty();
}

/// The number that the whole text is, blanks around it aside; one too large for a double is
/// infinite.
std::optional<double> wholeNumber(std::string_view text) {
    text = trim(text);
    if (!isNumber(text)) {
        return std::nullopt;
    }
    if (text.find_first_of("0123456789") == std::string_view::npos) {
        return 0;  // as a coordinate of 0 is written
    }
    return leadingNumber(text).value_or(std::numeric_limits<double>::infinity());
}

/// End of the second piece between commas; none when there is but one.
std::optional<std::size_t> secondPieceEnd(std::string_view line) {
    const std::size_t comma = line.find(',');
    if (comma == std::string_view::npos) {
        return std::nullopt;
    }
    return std::min(line.find(',', comma + 1), line.size());
}

/// The pair of numbers that a line of the file begins with, as a position; it may be off the globe.
std::optional<LonLat> numbersOf(std::string_view line) {
    const std::optional<std::size_t> end = secondPieceEnd(line);
    if (!end) {
        return std::nullopt;
    }
    const std::size_t comma = line.find(',');
    const std::optional<double> south = wholeNumber(line.substr(0, comma));
    const std::optional<double> west = wholeNumber(line.substr(comma + 1, *end - comma - 1));
    if (!south || !west) {
        return std::nullopt;
    }
    return LonLat{0 - *west, 0 - *south};  // not -x: there is no coordinate of -0
}

bool isOnGlobe(LonLat position) {
    return std::fabs(position.y) <= kPole && std::fabs(position.x) <= kDateLine;
}

/// The vertex that a line of the file is; none for a line of the description.
std::optional<LonLat> vertexOf(std::string_view line) {
    const std::optional<LonLat> numbers = numbersOf(line);
    return numbers && isOnGlobe(*numbers) ? numbers : std::nullopt;
}

/// A line of the description as the file has it. The mark stands where it breaks the number: with
/// more than two pieces the end of the line would be too late.
std::string guarded(std::string line) {
    // As it will be read: the letters of a byte-order mark vanish.
    const std::string read = decodeText(toWindows1252(line));
    if (vertexOf(read)) {
        line.insert(*secondPieceEnd(line), 1, kMark);
    } else if (wholeNumber(read)) {
        line.push_back(kMark);
    }
    return line;
}

}  // namespace

Lot decodeLot(std::string_view bytes) {
    const std::string text = decodeText(bytes);
    Lot lot;
    TextLines lines(text);
    for (std::string_view line; lines.next(line);) {
        const std::optional<LonLat> numbers = numbersOf(line);
        if (numbers && isOnGlobe(*numbers)) {
            lot.vertices.push_back(*numbers);
            continue;
        }
        if (numbers) {
            lot.noPositions.add(lines.lineNumber());
        }
        lot.description.append(line).append("\r\n");
    }
    return lot;
}

std::string encodeLot(std::span<const LonLat> vertices, std::string_view description) {
    std::string text;
    std::vector<std::string> lines = descriptionLines(description);
    lines.resize(std::min(lines.size(), kLotDescriptionLines));
    for (std::string& line : lines) {
        text.append(guarded(std::move(line))).append("\r\n");
    }
    for (const auto& [x, y] : vertices) {
        text.append(sharpNumberText(-y)).append(" , ").append(sharpNumberText(-x)).append("\r\n");
    }
    return toWindows1252(text);
}

std::vector<std::string> descriptionLines(std::string_view text) {
    const std::string unified = replaceAll(replaceAll(text, "\r\n", "\n"), "\r", "\n");
    std::vector<std::string> lines;
    for (const std::string_view line : readAllLines(unified)) {
        lines.emplace_back(line);
    }
    return lines;
}

}  // namespace campora
