// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/dates.h"
#include "base/lon_lat.h"
#include "base/numbers.h"
#include "support/work_records.h"

namespace campora {

/// As `atMetres`, from a place that is a little off 0, 0, which is no position for a logger.
[[nodiscard]] inline LonLat fixAt(double east, double north) {
    return atMetres(1000 + east, 1000 + north);
}

/// The bytes of a binary report, record by record.
class RptBytes {
public:
    struct Record {
        LonLat position;
        std::array<std::int32_t, 4> realTenths{1000, 0, 0, 0};
        std::array<std::int32_t, 4> spec{100, 0, 0, 0};
        std::int32_t speedTenths = 120;
        std::uint32_t alarms = 0;
        std::int32_t swathCm = 2000;
        DateTime time{{2018, 3, 5}, {10, 0, 0}};
    };

    /// Without a header the records have one slot, and a time of day instead of a date.
    RptBytes() = default;
    RptBytes(std::int32_t channels, std::uint32_t serialFirst = 0x6001,
             std::uint32_t serialSecond = 0x1B2C4, std::uint32_t version = 0)
        : slots_(channels > 1 ? 4 : 1), dated_(true) {
        put(21930);
        put(serialFirst);
        put(serialSecond);
        put(static_cast<std::uint32_t>(channels));
        put(version);
        bytes_.append(12, '\0');
    }

    void add(const Record& record) {
        putPosition(record.position);
        for (std::size_t slot = 0; slot < slots_; ++slot) {
            put(static_cast<std::uint32_t>(record.realTenths[slot]));
            put(static_cast<std::uint32_t>(record.spec[slot]));
        }
        put(static_cast<std::uint32_t>(record.speedTenths));
        put(record.alarms);
        put(static_cast<std::uint32_t>(record.swathCm));
        const TimeOfDay& time = record.time.time;
        put(dated_ ? encodeFatDateTime(record.time)
                   : static_cast<std::uint32_t>(time.hour | time.minute << 8 | time.second << 16));
    }
    /// A record of the older form with four fields.
    void addFourFields(LonLat position, std::int32_t realTenths) {
        putPosition(position);
        put(0);
        put(static_cast<std::uint32_t>(realTenths));
    }
    void reserve(std::size_t records) { bytes_.reserve(32 + records * (24 + 8 * slots_)); }

    [[nodiscard]] const std::string& bytes() const { return bytes_; }

private:
    void put(std::uint32_t value) {
        for (unsigned shift = 0; shift < 32; shift += 8) {
            bytes_.push_back(static_cast<char>(value >> shift & 0xFFU));
        }
    }
    void putPosition(LonLat position) {
        put(std::bit_cast<std::uint32_t>(static_cast<float>(position.y)));
        put(std::bit_cast<std::uint32_t>(static_cast<float>(position.x)));
    }

    std::string bytes_;
    std::size_t slots_ = 1;
    bool dated_ = false;
};

/// The text of a logger's track file; fields may be changed before the first line is added.
struct TrackText {
    std::string version = "1.3";
    std::string order = "0";
    std::string date = "15/07/16";
    std::string startTime = "18:03:32";
    std::string serial = "6001";
    std::string west = "60.5";
    std::string south = "31.5";
    std::string swath = "18";
    std::string lineEnd = "\r\n";
    std::string lines;

    void add(std::string_view line) { lines.append(line).append(lineEnd); }
    /// Offsets in millionths of a degree, flow in l/min, speed in km/h.
    void addPoint(std::uint32_t westOffset, std::uint32_t southOffset, std::uint32_t flow,
                  std::uint32_t speed) {
        const int digits = version < "2" ? 5 : 7;
        add(hexText(westOffset, digits) + hexText(southOffset, digits) + hexText(flow, 3) +
            hexText(speed, 3));
    }

    [[nodiscard]] std::string bytes() const {
        std::string text = "*TRACKER LOG FILE* V" + version + lineEnd;
        for (const std::string& line :
             {order, std::string("0"), date, startTime, serial, west, south, swath}) {
            text += line + lineEnd;
        }
        return text + lines;
    }
};

}  // namespace campora
