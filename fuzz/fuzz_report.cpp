// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// Binary reports, from bytes to tracks.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>

#include "base/failure.h"
#include "model/file_gph_group.h"
#include "work/gph_track.h"
#include "work/pass_builder.h"
#include "work/report_survey.h"
#include "work/rpt_view.h"

namespace {

using namespace campora;

void buildTracks(const RptView& report) {
    ValueRanges ranges;
    const ReportSurvey survey = surveyReport(report, ranges);
    FileGphGroup group;
    addPasses(group, survey.placements, [&](std::size_t i) { return report.record(i); });
    for (const Gph* layer : group.File_gphList()) {
        for (const LonLat& point : dynamic_cast<const GphTrack&>(*layer).points()) {
            if (!isFix(point)) {
                std::abort();  // a position off the globe reached the map
            }
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        RptView report(std::as_bytes(std::span(data, size)));
        if (report.highestChannel() <= RptView::kHighestChannel) {
            report.setSwath(16);
            buildTracks(report);
        }
    } catch (const FormatError&) {
        // Said to the user; nothing to build.
    }
    return 0;
}
