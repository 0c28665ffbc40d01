// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/track_log.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>

#include "base/encoding.h"
#include "base/failure.h"
#include "base/numbers.h"
#include "base/text.h"
#include "base/text_lines.h"
#include "model/geodesy.h"

namespace campora {

namespace {

constexpr std::string_view kSignature = "*TRACKER LOG FILE*";
constexpr float kFirstVersionWithSpeed = 1.3F;

/// Numbers of the header's lines, from 1.
namespace header_line {
constexpr std::size_t kVersion = 1;
constexpr std::size_t kOrder = 2;
constexpr std::size_t kDate = 4;
constexpr std::size_t kStartTime = 5;
constexpr std::size_t kSerial = 6;
constexpr std::size_t kReferenceWest = 7;   // degrees, positive to the west
constexpr std::size_t kReferenceSouth = 8;  // degrees, positive to the south
constexpr std::size_t kSwath = 9;           // metres
constexpr std::size_t kLast = kSwath;
}  // namespace header_line

/// The columns of a point: west and south of the reference with so many digits each, then flow and
/// speed.
struct PointColumns {
    std::size_t offsetDigits;
    /// A line needs this many characters; of the speed some or all may be missing.
    std::size_t shortest;
    [[nodiscard]] std::size_t flowAt() const { return 2 * offsetDigits; }
    [[nodiscard]] std::size_t speedAt() const { return flowAt() + kValueDigits; }

    static constexpr std::size_t kValueDigits = 3;
};
constexpr PointColumns kColumnsBelow2{5, 13};
constexpr PointColumns kColumnsFrom2{7, 18};

constexpr double kOffsetsPerDegree = 1e6;
constexpr double kLongestStep = 500;  // metres

/// An odd number of digits, read as bytes: the first digit alone, then pairs. A pair that does not
/// begin with a digit counts as 0.
std::uint32_t hexOffset(std::string_view digits) {
    std::uint32_t value = leadingHex(digits.substr(0, 1));
    for (std::size_t i = 1; i < digits.size(); i += 2) {
        value = value << 8U | leadingHex(digits.substr(i, 2));
    }
    return value;
}

float hexValue(std::string_view digits) {
    return static_cast<float>(leadingHex(digits));
}

double headerNumber(std::string_view text, std::size_t lineNumber) {
    const std::optional<double> number = leadingNumber(text);
    if (!number || std::abs(*number) > std::numeric_limits<float>::max()) {
        throw FormatError({TextId::LineNotANumber, {numberText(lineNumber)}});
    }
    return *number;
}

/// Whether a step is longer than the longest of a pass.
bool isLeap(LonLat from, LonLat to) {
    // No way between two points is longer than the one along the meridian and then the parallel,
    // measured on the equator. Nearly all steps are out of question by this.
    const double detour = (std::abs(to.x - from.x) + std::abs(to.y - from.y)) * METERS_PER_DEGREE;
    return detour > kLongestStep - 1 && surfaceDistance(from.y, from.x, to.y, to.x) > kLongestStep;
}

/// Reads the lines of points.
class PointReader {
public:
    PointReader(float version, LonLat reference, TrackLog& log)
        : columns_(version < 2 ? kColumnsBelow2 : kColumnsFrom2),
          hasSpeed_(version >= kFirstVersionWithSpeed),
          reference_(reference),
          log_(log) {}

    void read(std::string_view line, std::size_t lineNumber) {
        if (trim(line).empty()) {
            passEnded_ = true;
            return;
        }
        if (line.size() < columns_.shortest) {
            log_.shortLines.add(lineNumber);
            return;
        }
        const TrackPoint point = decode(line);
        if (std::abs(point.position.x) > kDateLine || std::abs(point.position.y) > kPole) {
            log_.offGlobe.add(lineNumber);
            return;
        }
        auto& points = log_.points;
        if (points.empty() || passEnded_ || isLeap(points.back().position, point.position)) {
            log_.passStarts.push_back(points.size());
        }
        passEnded_ = false;
        points.push_back(point);
    }

    /// No more points than these can stand in so many characters.
    [[nodiscard]] std::size_t mostPoints(std::size_t characters) const {
        return characters / (columns_.shortest + 1) + 1;
    }

private:
    [[nodiscard]] TrackPoint decode(std::string_view line) const {
        const std::size_t digits = columns_.offsetDigits;
        const auto offset = [&](std::size_t at) {
            return hexOffset(line.substr(at, digits)) / kOffsetsPerDegree;
        };
        TrackPoint point;
        point.position = {reference_.x - offset(0), reference_.y - offset(digits)};
        point.flow = hexValue(line.substr(columns_.flowAt(), PointColumns::kValueDigits));
        if (hasSpeed_) {
            point.speed = hexValue(line.substr(columns_.speedAt(), PointColumns::kValueDigits));
        }
        return point;
    }

    PointColumns columns_;
    bool hasSpeed_;
    LonLat reference_;
    TrackLog& log_;
    bool passEnded_ = false;
};

}  // namespace

TrackVersion trackVersion(std::string_view firstLine) {
    const std::size_t mark = firstLine.find('V');
    if (firstLine.find(kSignature) == std::string_view::npos || mark == std::string_view::npos) {
        return {};
    }
    const std::string_view text = firstLine.substr(mark + 1);
    constexpr double kMost = 1e6;  // beyond any version; larger ones need not fit a float
    return {static_cast<float>(std::clamp(leadingNumber(text).value_or(0), -kMost, kMost)), text};
}

TrackLog decodeTrackLog(std::string_view text) {
    TrackLog log;
    TextLines lines(text);
    std::array<std::string_view, header_line::kLast + 1> header;  // by number
    for (std::size_t number = 1; number <= header_line::kLast; ++number) {
        if (!lines.next(header[number])) {
            log.lines = lines.lineNumber();
            return log;
        }
    }
    const std::string_view last = header[header_line::kLast];
    const auto headerSize = static_cast<std::size_t>(last.data() + last.size() - text.data());
    const bool utf8 = isUtf8(text.substr(0, headerSize));
    const auto textOf = [&](std::size_t number) { return decodeText(header[number], utf8); };
    const auto numberOf = [&](std::size_t number) { return headerNumber(header[number], number); };
    log.header = {std::string(trim(textOf(header_line::kOrder))), textOf(header_line::kDate),
                  textOf(header_line::kStartTime), textOf(header_line::kSerial),
                  static_cast<float>(numberOf(header_line::kSwath))};
    const LonLat reference{-numberOf(header_line::kReferenceWest),
                           -numberOf(header_line::kReferenceSouth)};

    PointReader reader(trackVersion(header[header_line::kVersion]).number, reference, log);
    log.points.reserve(reader.mostPoints(text.size() - headerSize));
    for (std::string_view line; lines.next(line);) {
        reader.read(line, lines.lineNumber());
    }
    log.lines = lines.lineNumber();
    return log;
}

}  // namespace campora
