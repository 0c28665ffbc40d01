// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "sample_job/work_files.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>

#include "base/dates.h"
#include "base/encoding.h"
#include "base/numbers.h"
#include "sample_job/job_figures.h"

namespace campora::sample {

namespace {

constexpr std::uint32_t kReportMagic = 0x000055AA;
constexpr int kReportHeaderTail = 12;  ///< bytes of the header after its last field
constexpr int kReportSlots = 4;        ///< channel slots of a record with more than one channel
constexpr double kMicro = 1e6;
constexpr std::string_view kLineEnd = "\r\n";

void putU32(std::string& bytes, std::uint32_t value) {
    for (unsigned shift = 0; shift < 32; shift += 8) {
        bytes.push_back(static_cast<char>(static_cast<unsigned char>(value >> shift)));
    }
}

void putI32(std::string& bytes, std::int32_t value) {
    putU32(bytes, static_cast<std::uint32_t>(value));
}

void putF32(std::string& bytes, double value) {
    putU32(bytes, std::bit_cast<std::uint32_t>(static_cast<float>(value)));
}

void putRecord(std::string& bytes, const Job& job, const JobRecord& record) {
    putF32(bytes, record.latMicro / kMicro);
    putF32(bytes, record.lonMicro / kMicro);
    const int slots = job.channels > 1 ? kReportSlots : 1;
    for (int slot = 0; slot < slots; ++slot) {
        const auto c = static_cast<std::size_t>(slot);
        putI32(bytes, slot < job.channels ? record.real[c] * 10 : 0);
        putI32(bytes, slot < job.channels ? record.spec[c] : 0);
    }
    putI32(bytes, record.speedTenths);
    putU32(bytes, record.alarms);
    putI32(bytes, job.swathCm);
    putU32(bytes, encodeFatDateTime(record.time));
}

/// `value` / 10^`decimals`, with all its decimals.
std::string fixedText(std::int64_t value, int decimals, char symbol) {
    std::string digits = std::to_string(value < 0 ? -value : value);
    const auto least = static_cast<std::size_t>(decimals) + 1;
    digits.insert(0, least - std::min(least, digits.size()), '0');
    if (decimals > 0) {
        digits.insert(digits.size() - static_cast<std::size_t>(decimals), 1, symbol);
    }
    return (value < 0 ? "-" : "") + digits;
}

std::string tenthsText(double value) {
    return fixedText(roundToInt32(value * 10), 1, ',');
}

std::string wholeText(double value) {
    return std::to_string(roundToInt32(value));
}

std::string joined(const std::vector<std::string>& fields, char separator) {
    std::string line;
    for (const std::string& field : fields) {
        line += line.empty() ? field : separator + field;
    }
    return line.append(kLineEnd);
}

/// Litres a minute: l/ha times hectares a minute.
std::uint32_t flowOf(const Job& job, const JobRecord& record) {
    const double metres = job.swathCm / 100.0;
    const double kmh = record.speedTenths / 10.0;
    return static_cast<std::uint32_t>(roundToInt32(record.real[0] * kmh * metres / 600));
}

/// North-eastern corner of the job: track files count from it to the west and to the south.
JobRecord northEast(const Job& job) {
    JobRecord corner = job.records.front();
    for (const JobRecord& record : job.records) {
        corner.lonMicro = std::max(corner.lonMicro, record.lonMicro);
        corner.latMicro = std::max(corner.latMicro, record.latMicro);
    }
    return corner;
}

std::string trackLine(const Job& job, const JobRecord& record, const JobRecord& reference) {
    const auto west = static_cast<std::uint32_t>(reference.lonMicro - record.lonMicro);
    const auto south = static_cast<std::uint32_t>(reference.latMicro - record.latMicro);
    const auto kmh = static_cast<std::uint32_t>(roundToInt32(record.speedTenths / 10.0));
    std::string line = hexText(west, 5) + hexText(south, 5);
    line += hexText(flowOf(job, record), 3) + hexText(kmh, 3);
    return line.append(kLineEnd);
}

std::string summaryLine(std::string_view name, std::string_view value, std::string_view unit) {
    std::string line = "\"";
    line.append(name).append(":\",\"").append(value).append("\",\"").append(unit).append("\"");
    return line.append(kLineEnd);
}

}  // namespace

std::string reportBytes(const Job& job) {
    std::string bytes;
    putU32(bytes, kReportMagic);
    putU32(bytes, job.serialFirst);
    putU32(bytes, job.serialSecond);
    putI32(bytes, job.channels);
    putU32(bytes, job.versions);
    bytes.append(kReportHeaderTail, '\0');
    for (const JobRecord& record : job.records) {
        putRecord(bytes, job, record);
    }
    return bytes;
}

std::string tableText(const Job& job) {
    std::string text = job.title + std::string(kLineEnd);
    text += joined({"Longitud", "Latitud", "Dosis real", "Dosis espec.", "Velocidad", "Código",
                    "Ancho (cm)", "Hora"},
                   '\t');
    for (const JobRecord& record : job.records) {
        text += joined({fixedText(record.lonMicro, 6, '.'), fixedText(record.latMicro, 6, '.'),
                        std::to_string(record.real[0]), std::to_string(record.spec[0]),
                        fixedText(record.speedTenths, 1, '.'), "0", std::to_string(job.swathCm),
                        timeText(record.time.time)},
                       '\t');
    }
    return toWindows1252(text);
}

std::string trackText(const Job& job) {
    const JobRecord reference = northEast(job);
    const DateTime start = job.records.front().time;
    std::string text =
        joined({"*TRACKER LOG FILE* V1.3", std::to_string(job.order), "0",
                dateText(start.date, "dd/mm/yy"), timeText(start.time), job.serial,
                fixedText(-reference.lonMicro, 6, '.'), fixedText(-reference.latMicro, 6, '.'),
                numberText(job.swathCm / 100.0)},
               '\n');
    std::string line;
    int pass = job.records.front().pass;
    for (const JobRecord& record : job.records) {
        if (record.pass != pass) {
            // The next pass begins where this one has ended, so that no step between them is lost.
            text.append(kLineEnd).append(line);
            pass = record.pass;
        }
        line = trackLine(job, record, reference);
        text += line;
    }
    return text;
}

std::string summaryText(const Job& job, std::string_view trackName, const SummaryLines& further) {
    const JobFigures figures = figuresOf(job);
    const DateTime start = job.records.front().time;
    std::string text = summaryLine("Nombre Archivo", trackName, "");
    text += summaryLine("Fecha", dateText(start.date, "dd/mm/yyyy"), "");
    text += summaryLine("Hora inicio", timeText(start.time), "");
    text += summaryLine("Hectáreas", tenthsText(figures.hectares), "Has");
    text += summaryLine("Litros aplicados", wholeText(figures.litres), "lts");
    text += summaryLine("Dosis Promedio", tenthsText(figures.averageDose), "lt/hect");
    text += summaryLine("Vel Promedio", tenthsText(figures.averageKmh), "km/h");
    text += summaryLine("Duración", std::to_string(figures.minutes), "min");
    for (const auto& [name, value] : further) {
        text += summaryLine(name, value, "");
    }
    return toWindows1252(text);
}

}  // namespace campora::sample
