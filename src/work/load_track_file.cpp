// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <memory>
#include <string>

#include "base/encoding.h"
#include "base/file_head.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "base/text.h"
#include "base/text_lines.h"
#include "work/companion_names.h"
#include "work/gph_track.h"
#include "work/reader_tools.h"
#include "work/summary_file.h"
#include "work/track_log.h"
#include "work/value_bounds.h"

namespace campora {

namespace {

/// A line that is something else must not fill the screen.
constexpr std::size_t kMostVersionLetters = 40;

/// Empty in an empty file.
std::string_view firstLineOf(std::string_view text) {
    std::string_view line;
    static_cast<void>(TextLines(text).next(line));
    return line;
}

/// Adds a track for every pass; widens the ranges of flow and litres per hectare. Whether a point
/// without flow is among them.
bool addTracks(const TrackLog& log, const std::shared_ptr<const LoggerSource>& source,
               LoadedWork& work, BoundsCheck& bounds) {
    bool hasFlowStops = false;
    for (std::size_t pass = 0; pass < log.passStarts.size(); ++pass) {
        const std::size_t begin = log.passStarts[pass];
        const bool isLast = pass + 1 == log.passStarts.size();
        const std::size_t end = isLast ? log.points.size() : log.passStarts[pass + 1];
        auto track = std::make_unique<GphTrack>();
        track->reserve(end - begin);
        for (std::size_t i = begin; i < end; ++i) {
            const TrackPoint& point = log.points[i];
            bounds.check(BoundedValue::Swath, log.header.swath, i + 1, point.position);
            bounds.check(BoundedValue::Flow, point.flow, i + 1, point.position);
            bounds.check(BoundedValue::Speed, point.speed, i + 1, point.position);
            const TrackDataNBR record(point.flow, point.speed, log.header.swath, source);
            extend(work.ranges.flow, point.flow);
            extend(work.ranges.litres, record.litrosH());
            hasFlowStops = hasFlowStops || point.flow == 0;
            track->addPoint(point.position.x, point.position.y, record);
        }
        work.group->addGph(std::move(track));
    }
    return hasFlowStops;
}

/// "15 - log0105.nbr (LV-ABC)": order and registration as far as there are any.
std::string displayName(std::string_view path, const TrackHeader& header,
                        std::string_view registration) {
    std::string name = lowerCase(fileNamePart(path));
    if (!registration.empty()) {
        name.append(" (").append(registration).append(")");
    }
    return header.order == "0" ? name : header.order + " - " + name;
}

void addRemarks(const TrackLog& log, const BoundsCheck& bounds, const UserLocale& locale,
                FileGphGroup& group) {
    if (log.shortLines.count > 0) {
        group.addRemark(log.shortLines.remark(TextId::RemarkShortLines));
    }
    if (log.offGlobe.count > 0) {
        group.addRemark(log.offGlobe.remark(TextId::RemarkOffGlobe));
    }
    bounds.tell(group, locale);
    FileProperties& summary = group.File_resumen();
    for (const SummaryEntry& entry : summary.entries()) {
        // The console's own sums; which of them counted the value it does not say.
        if (bounds.foundAny() && !trim(entry.unit).empty()) {
            summary.markDoubtful(entry.property);
        }
    }
}

/// The version that the first line of a track file names, 0 for a file that the program does not
/// read. Says so in that case, and warns of versions newer than the program.
float readTrackHeader(std::string_view firstLine, std::string_view path, const Desk& desk) {
    const TrackVersion version = trackVersion(firstLine);
    if (version.number == 0) {
        desk.tellWrongFile({TextId::FileNotCompatibleNamed, {std::string(path)}});
    } else if (version.number > kNewestTrackVersion) {
        std::string warning(desk.texts(TextId::NewerVersion));
        warning.append(decodeText(version.text.substr(0, kMostVersionLetters)));
        warning.append("\r\n").append(desk.texts(TextId::SupportedVersion));
        warning += numberText(kNewestTrackVersion);
        desk.titled(TextId::IncompatibleVersion).tell(warning);
    }
    return version.number;
}

}  // namespace

std::optional<LoadedWork> readTrackFile(std::string_view path, const FileBytes& bytes,
                                        const WorkDesk& desk) {
    if (readTrackHeader(firstLineOf(bytes.text()), path, desk) == 0) {
        return std::nullopt;
    }
    const TrackLog log = decodeTrackLog(bytes.text());
    if (log.points.empty()) {
        return refuseWithoutPoints(path, desk);
    }
    const TrackHeader& header = log.header;
    const std::string registration = desk.registrations.registrationOf(header.serial);
    LoadedWork work = startWork(path);
    FileGphGroup& group = *work.group;
    BoundsCheck bounds;
    work.hasFlowStops = addTracks(log,
                                  std::make_shared<LoggerSource>(
                                      LoggerSource{header.serial, std::string(path), registration}),
                                  work, bounds);
    group.icon = "nbrfile";
    group.name = displayName(path, header, registration);
    group.id = lowerCase(header.serial) + '-' + header.startTime + '-' + header.date;
    group.priority = static_cast<std::int32_t>(log.lines - 1);
    loadSummaryFile(findIgnoringCase(companionNames(path).summaryPath), group.File_resumen());
    addRemarks(log, bounds, desk.locale, group);
    return work;
}

std::optional<LoadedWork> loadTrackFile(std::string_view path, const WorkDesk& desk) {
    // What is no track file shows it in its first line, and need not be read to its end.
    constexpr std::size_t kHeadBytes = 4096;
    if (const std::optional<std::string> head = readFileHead(path, kHeadBytes)) {
        const std::string_view line = firstLineOf(*head);
        if (trackVersion(line).number == 0) {
            static_cast<void>(readTrackHeader(line, path, desk));
            return std::nullopt;
        }
    }
    return readFromDisk(path, desk, readTrackFile);
}

}  // namespace campora
