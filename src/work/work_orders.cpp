// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/work_orders.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <map>
#include <system_error>
#include <utility>

#include "base/encoding.h"
#include "base/file_endings.h"
#include "base/file_head.h"
#include "base/folder_files.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "base/text.h"
#include "base/text_lines.h"
#include "work/track_log.h"

namespace campora {

namespace {

/// Nine short lines take a tenth of this.
constexpr std::size_t kHeadBytes = 2048;

/// Numbers of the header's lines, from 0.
namespace header_line {
constexpr std::size_t kVersion = 0;
constexpr std::size_t kOrder = 1;
constexpr std::size_t kDate = 3;
constexpr std::size_t kStartTime = 4;
constexpr std::size_t kLast = kStartTime;
}  // namespace header_line

/// 0 for a text that is no number, or none of 32 bits.
std::int32_t orderNumber(std::string_view line) {
    const std::string_view text = trim(line);
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool whole = error == std::errc() && end == text.data() + text.size();
    constexpr double kBound = 2147483648.0;
    return whole && std::abs(number) < kBound ? roundToInt32(number) : 0;
}

}  // namespace

std::optional<OrderHeader> decodeOrderHeader(std::string_view head) {
    TextLines rest(head);
    std::array<std::string_view, header_line::kLast + 1> lines;
    for (std::string_view& line : lines) {
        if (!rest.next(line)) {
            return std::nullopt;
        }
    }
    if (trackVersion(lines[header_line::kVersion]).number == 0) {
        return std::nullopt;
    }
    const auto textOf = [&](std::size_t line) {
        return std::string(trim(decodeText(lines[line])));
    };
    return OrderHeader{orderNumber(lines[header_line::kOrder]), textOf(header_line::kDate),
                       textOf(header_line::kStartTime)};
}

std::vector<WorkOrder> scanFolder(std::string_view folder, const Tick& tick) {
    std::vector<WorkOrder> orders;
    std::map<std::int32_t, std::size_t> byNumber;
    const auto isTrack = [](const std::string& path) { return pathEnding(path) == kTrackEnding; };
    for (std::string& path : filesIn(folder, isTrack)) {
        if (tick && !tick()) {
            break;
        }
        const std::optional<std::string> head = readFileHead(path, kHeadBytes);
        std::optional<OrderHeader> header = head ? decodeOrderHeader(*head) : std::nullopt;
        if (!header) {
            continue;
        }
        const auto [place, isNew] = byNumber.try_emplace(header->number, orders.size());
        if (isNew) {
            orders.push_back(
                {header->number, {}, std::move(header->date), std::move(header->startTime)});
        }
        orders[place->second].files.push_back(std::move(path));
    }
    return orders;
}

std::string orderCaption(const WorkOrder& order, const Texts& texts) {
    return order.number == 0 ? std::string(texts(TextId::OrderWithoutNumber))
                             : texts.format(TextId::OrderWithNumber, {numberText(order.number)});
}

}  // namespace campora
