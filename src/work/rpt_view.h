// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "work/report_record.h"
#include "work/work_kind.h"

namespace campora {

/// The bytes of a binary report, read record by record: a header, in the current form, and records
/// to the end. A last record that is not whole does not count.
class RptView {
public:
    enum class Form {
        Current,      ///< with header and date
        EightFields,  ///< without header, time of day alone
        FourFields,   ///< position and dose alone
    };

    /// The highest channel index of which this program knows the layout.
    static constexpr std::int32_t kHighestChannel = TrackDataRPT::kMaxChannels - 1;

    /// Recognises the form. The bytes must outlive this object.
    /// Throws `FormatError` when the file ends within its header.
    explicit RptView(std::span<const std::byte> bytes);

    [[nodiscard]] Form form() const { return form_; }
    [[nodiscard]] WorkKind workKind() const { return kind_; }
    /// As the header says; records can be read only up to `kHighestChannel`.
    [[nodiscard]] std::int32_t highestChannel() const { return highestChannel_; }
    /// The logger's number: "6001-0001B2C4".
    [[nodiscard]] std::string serial() const;
    /// Low 16 bits firmware, high 16 bits hardware; 0 when unknown.
    [[nodiscard]] std::uint32_t version() const { return version_; }

    [[nodiscard]] std::size_t recordCount() const { return recordCount_; }
    [[nodiscard]] std::size_t recordSize() const { return recordSize_; }
    /// Bytes of a last record that is not whole.
    [[nodiscard]] std::size_t cutBytes() const {
        return (bytes_.size() - recordsAt_) % recordSize_;
    }
    /// Record i, from 0 to `recordCount()` - 1; doses in whole units, its index in the file not
    /// set.
    [[nodiscard]] ReportRecord record(std::size_t i) const;
    /// Swath width in metres of the form that does not have one.
    void setSwath(float metres) { askedSwath_ = metres; }

private:
    void readHeader();

    std::span<const std::byte> bytes_;
    Form form_ = Form::Current;
    WorkKind kind_ = WorkKind::OlderForm;
    std::uint32_t serialFirst_ = 0;
    std::uint32_t serialSecond_ = 0;
    std::int32_t highestChannel_ = 0;
    std::uint32_t version_ = 0;
    std::size_t recordsAt_ = 0;
    std::size_t recordSize_ = 0;
    std::size_t recordCount_ = 0;
    float askedSwath_ = 0;
};

/// Whether a logger had a position: a latitude between 0 and 90 and a longitude between 0 and 180
/// degrees of either sign, limits excluded. Not-a-number is none.
[[nodiscard]] bool isFix(const LonLat& position);

/// "1.2.03" for the word 0x1203.
[[nodiscard]] std::string formatVersion(std::uint16_t word);

}  // namespace campora
