// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>

#include "base/dates.h"
#include "model/track_data.h"
#include "model/work_record.h"
#include "work/work_kind.h"

namespace campora {

/// A record of a report or of a report's text table. Reports of a million records are usual, so the
/// doses stand in place rather than on the heap.
class TrackDataRPT final : public TrackData {
public:
    static constexpr int kMaxChannels = 5;
    using Doses = std::array<std::int32_t, kMaxChannels>;

    /// Everything a reader knows about a record.
    struct Fields {
        Doses real{};     ///< applied dose per channel
        Doses spec{};     ///< prescribed dose per channel
        float swath = 0;  ///< metres
        float speed = 0;  ///< km/h
        std::uint32_t alarms = 0;
        std::int32_t pointIndex = 0;  ///< within the file's accepted points
        std::uint8_t channels = 1;    ///< 1 to kMaxChannels
        std::uint8_t code = 0;        ///< sixth column of 8-column tables, carried only
        WorkKind kind = WorkKind::Seeder;
        TimeOfDay time;
        std::optional<Date> date;
    };

    explicit TrackDataRPT(const Fields& fields);

    [[nodiscard]] int channels() const { return channels_; }
    /// Real doses, one a channel; `caudal` is their sum.
    [[nodiscard]] std::span<const std::int32_t> getCaudal() const;
    /// Specified doses, one a channel; `dosisTotal` is their sum.
    [[nodiscard]] std::span<const std::int32_t> getDosis() const;
    /// Replace the real and the specified doses: at most kMaxChannels; more throw
    /// `std::invalid_argument`. The number of channels follows the real doses.
    void setCaudal(std::span<const std::int32_t> real);
    void setDosis(std::span<const std::int32_t> spec);

    /// Speed in km/h.
    [[nodiscard]] float velocidad() const { return speed_; }
    /// A bit an alarm; `alarmText` says what it means.
    [[nodiscard]] std::uint32_t alarmas() const { return alarms_; }
    void clearAlarmas() { alarms_ = 0; }
    [[nodiscard]] std::int32_t pointIndex() const { return pointIndex_; }
    [[nodiscard]] std::uint8_t code() const { return code_; }
    [[nodiscard]] WorkKind workKind() const { return kind_; }
    [[nodiscard]] bool hasDate() const { return hasDate_; }
    [[nodiscard]] TimeOfDay time() const;

    /// Calendar date, normalized; meaningful with `hasDate`.
    [[nodiscard]] Date fecha() const;
    /// Time of day, "hh:mm:ss".
    [[nodiscard]] std::string hora() const;
    /// Date and time: days since 30 December 1899 with the time as fraction; `today` stands in
    /// without a date.
    [[nodiscard]] double fechaHora(const Date& today) const;
    /// Date and time in the user's short form; the time alone without a date.
    [[nodiscard]] std::string fechaHoraStr(const UserLocale& locale) const;
    /// How long after `other` this record is: whole days when there are any, then minutes.
    [[nodiscard]] std::string getTimeDifStr(const TrackDataRPT& other, const Texts& texts) const;
    /// Sum of the specified doses.
    [[nodiscard]] float dosisTotal() const;
    /// Percentage by which the real dose misses the specified one in `channel` (-1: the totals).
    [[nodiscard]] float getError(int channel) const;
    /// The dose that the scale colours: that of the selected channel, 0 without it, or the total.
    [[nodiscard]] double scaledValue(const MapStyle& style) const;
    /// The record in the form of all logs; `position`: of its point, degrees.
    [[nodiscard]] WorkRecord workRecord(LonLat position) const;
    [[nodiscard]] bool onAlarm(const MapStyle& style) const;

    /// Sum of the real doses; for one channel the same as `getCaudal()[0]`.
    [[nodiscard]] float caudal() const override;
    /// Ignored: the total follows from the doses.
    void caudal(float rate) override;
    [[nodiscard]] float trocha() const override { return swath_; }
    void trocha(float metres) override { swath_ = metres; }
    [[nodiscard]] Color color(const MapStyle& style) const override;
    [[nodiscard]] std::string resumen(const InfoContext& context) const override;
    [[nodiscard]] int getColumnCount() const override;
    [[nodiscard]] std::string getColumnNname(int column) const override;
    [[nodiscard]] ColumnType getColumnNtype(int column) const override;
    [[nodiscard]] CellValue getCell(int column, const CellOptions& options) const override;

private:
    Doses real_;
    Doses spec_;
    float swath_;
    float speed_;
    std::uint32_t alarms_;
    std::int32_t pointIndex_;
    std::int16_t year_ = 0;
    std::uint8_t channels_;
    std::uint8_t code_;
    std::uint8_t hour_;
    std::uint8_t minute_;
    std::uint8_t second_;
    std::uint8_t day_ = 0;
    std::uint8_t month_ = 0;
    WorkKind kind_;
    bool hasDate_;
};

}  // namespace campora
