// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/map/replay_clock.h"

#include <algorithm>

#include "app/clock_text.h"
#include "model/work_layer.h"

namespace campora {

void ReplayClock::forget() {
    file_ = nullptr;
    pass_ = nullptr;
}

ReplayMoment ReplayClock::at(const WorkLayer& pass, std::int32_t n) {
    if (pass_ != &pass) {
        read(pass);
    }
    const WorkRecord record = pass.recordN(n);
    ReplayMoment moment;
    if (record.clock != RecordClock::None) {
        moment.second = record.second;
        moment.hasDate = record.clock == RecordClock::DateAndTime;
    }
    if (file_ != nullptr) {
        moment.elapsed = clock_.elapsedAt(record, before_ + static_cast<std::size_t>(n));
    }
    return moment;
}

void ReplayClock::read(const WorkLayer& pass) {
    const File* const known = file_;
    forget();
    for (const File* file : map_.files().all()) {
        const std::vector<const WorkLayer*> passes = workLayers(*file);
        const auto found = std::find(passes.begin(), passes.end(), &pass);
        if (found == passes.end()) {
            continue;
        }
        file_ = file;
        pass_ = &pass;
        before_ = 0;
        for (auto earlier = passes.begin(); earlier != found; ++earlier) {
            before_ += static_cast<std::size_t>((*earlier)->recordCount());
        }
        if (file == known) {
            return;
        }
        clock_ = {};
        for (const WorkLayer* each : passes) {
            for (std::int32_t n = 0; n < each->recordCount(); ++n) {
                clock_.add(each->recordN(n));
            }
        }
        return;
    }
}

std::string replayClockText(const ReplayMoment& moment, const UserLocale& locale) {
    return momentText(moment.second, moment.hasDate, locale) + (moment.elapsed ? "   +" : "   ") +
           durationText(moment.elapsed);
}

}  // namespace campora
