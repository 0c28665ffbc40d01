// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/rpt_view.h"

#include <algorithm>
#include <cmath>

#include "base/byte_reader.h"
#include "base/lon_lat.h"
#include "base/numbers.h"

namespace campora {

namespace {

/// Everything is little-endian. Offsets and sizes are bytes.
namespace header {
constexpr std::int32_t kMagic = 21930;      // i32 at offset 0; the older forms have no header
constexpr std::size_t kSerial = 4;          // two u32
constexpr std::size_t kChannels = 12;       // i32
constexpr std::size_t kVersion = 16;        // u32: firmware low, hardware high
constexpr std::size_t kSize = 32;           // the rest is not used
constexpr std::uint32_t kSprayer = 0x6000;  // first serial part from which on it is a sprayer
}  // namespace header

namespace record {
constexpr std::size_t kPosition = 8;     // f32 latitude, f32 longitude
constexpr std::size_t kSlot = 8;         // i32 real dose x 10, i32 specified dose
constexpr std::size_t kTail = 16;        // i32 km/h x 10, u32 alarms, i32 centimetres, u32 time
constexpr std::size_t kFourFields = 16;  // position, an unused i32, i32 real dose x 10
constexpr std::int32_t kMostSlots = 4;   // in files of more than one channel
}  // namespace record

// The fifth field of the first record of a file without header: its speed where there are eight
// fields, and the latitude of the next record, no such small number, where there are four.
constexpr std::size_t kFormProbe = 16;
constexpr std::int32_t kHighestSpeed = 999;

RptView::Form olderForm(std::span<const std::byte> bytes) {
    if (bytes.size() < kFormProbe + sizeof(std::int32_t)) {
        return RptView::Form::FourFields;
    }
    const std::int32_t probe = ByteReader(bytes, kFormProbe).i32le();
    return probe >= 0 && probe <= kHighestSpeed ? RptView::Form::EightFields
                                                : RptView::Form::FourFields;
}

bool hasMagic(std::span<const std::byte> bytes) {
    return bytes.size() >= sizeof(std::int32_t) && ByteReader(bytes).i32le() == header::kMagic;
}

/// Doses and speeds are kept in tenths.
double tenths(std::int32_t value) {
    return value / 10.0;
}

LonLat readPosition(ByteReader& reader) {
    LonLat position;
    position.y = reader.f32le();
    position.x = reader.f32le();
    return position;
}

void readTime(std::uint32_t value, RptView::Form form, TrackDataRPT::Fields& fields) {
    if (form == RptView::Form::Current) {
        const DateTime stamp = decodeFatDateTime(value);
        fields.time = stamp.time;
        fields.date = stamp.date;
        return;
    }
    const auto byteAt = [value](unsigned shift) {
        return static_cast<int>(value >> shift & 0xFFU);
    };
    fields.time = {byteAt(0), byteAt(8), byteAt(16)};
}

}  // namespace

RptView::RptView(std::span<const std::byte> bytes) : bytes_(bytes) {
    if (hasMagic(bytes)) {
        readHeader();
    } else {
        form_ = olderForm(bytes);
    }
    const std::size_t slots = highestChannel_ == 0 ? 1 : record::kMostSlots;
    recordSize_ = form_ == Form::FourFields
                      ? record::kFourFields
                      : record::kPosition + slots * record::kSlot + record::kTail;
    recordCount_ = (bytes_.size() - recordsAt_) / recordSize_;
}

void RptView::readHeader() {
    ByteReader reader(bytes_);
    reader.skip(header::kSize);
    reader.seek(header::kSerial);
    serialFirst_ = reader.u32le();
    serialSecond_ = reader.u32le();
    reader.seek(header::kChannels);
    highestChannel_ = std::max(reader.i32le(), 1) - 1;
    reader.seek(header::kVersion);
    version_ = reader.u32le();
    kind_ = serialFirst_ >= header::kSprayer ? WorkKind::Sprayer : WorkKind::Seeder;
    recordsAt_ = header::kSize;
}

std::string RptView::serial() const {
    return hexText(serialFirst_, 4) + '-' + hexText(serialSecond_, 8);
}

ReportRecord RptView::record(std::size_t i) const {
    ByteReader reader(bytes_, recordsAt_ + i * recordSize_);
    ReportRecord result;
    TrackDataRPT::Fields& fields = result.fields;
    result.position = readPosition(reader);
    fields.kind = kind_;
    fields.channels = static_cast<std::uint8_t>(std::min(highestChannel_, kHighestChannel) + 1);
    if (form_ == Form::FourFields) {
        reader.skip(sizeof(std::int32_t));
        fields.real[0] = roundToInt32(tenths(reader.i32le()));
        fields.swath = askedSwath_;
        return result;
    }
    const std::size_t slotsAt = reader.offset();
    const std::int32_t used = std::min<std::int32_t>(fields.channels, record::kMostSlots);
    for (std::size_t channel = 0; channel < static_cast<std::size_t>(used); ++channel) {
        fields.real[channel] = roundToInt32(tenths(reader.i32le()));
        fields.spec[channel] = reader.i32le();
    }
    reader.seek(slotsAt + recordSize_ - record::kPosition - record::kTail);
    fields.speed = static_cast<float>(tenths(reader.i32le()));
    fields.alarms = reader.u32le();
    fields.swath = static_cast<float>(reader.i32le() / 100.0);
    readTime(reader.u32le(), form_, fields);
    return result;
}

bool isFix(const LonLat& position) {
    const double latitude = std::abs(position.y);
    const double longitude = std::abs(position.x);
    return latitude > 0 && latitude < kPole && longitude > 0 && longitude < kDateLine;
}

std::string formatVersion(std::uint16_t word) {
    const int build = word & 0xFF;
    return numberText(word >> 12) + '.' + numberText((word >> 8) & 0xF) +
           (build < 10 ? ".0" : ".") + numberText(build);
}

}  // namespace campora
