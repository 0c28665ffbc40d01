// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/grid_size.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

#include "base/numbers.h"
#include "base/plain_text.h"
#include "base/typed_number.h"
#include "model/geodesy.h"

namespace campora {

namespace {

constexpr std::int64_t kMarginCells = 4;
constexpr double kWidestCell = std::numeric_limits<std::int16_t>::max();

std::int64_t cellsIn(double lengthM, double metres) {
    constexpr double kMost = std::numeric_limits<std::int32_t>::max() - kMarginCells;
    return static_cast<std::int64_t>(std::min(std::floor(lengthM / metres), kMost)) + kMarginCells;
}

/// The size that makes the grid small enough, or nearly; always above the present one, so that
/// who takes it each time comes to an end.
double proposedSize(const BoundingBox& bound, double metres, const GridFormat& format) {
    const auto cells = static_cast<double>(format.most - kMarginCells);
    const double least =
        std::max(roundHalfEven(bound.widthM / cells), roundHalfEven(bound.heightM / cells));
    const double proposed = format.wholeMetres ? least : roundSignificant(least);
    return proposed > metres ? proposed : metres + 1;
}

std::string shown(double value, const Desk& desk) {
    return numberText(value, desk.locale.decimalSymbol());
}

}  // namespace

GridSize gridSize(const BoundingBox& bound, double metres) {
    return {cellsIn(bound.widthM, metres), cellsIn(bound.heightM, metres)};
}

std::optional<Failure> cellSizeFault(double metres) {
    if (metres > 0 && metres <= kWidestCell) {
        return std::nullopt;
    }
    return Failure{TextId::BadCellSize, {numberText(metres)}};
}

std::optional<double> settleCellSize(const BoundingBox& bound, double metres,
                                     const GridFormat& format, std::string_view path,
                                     const Desk& desk) {
    for (;;) {
        const GridSize size = gridSize(bound, metres);
        if (std::max(size.columns, size.rows) <= format.most) {
            return metres;
        }
        const double proposed = proposedSize(bound, metres, format);
        const Answer change = desk.askOrCancel(namingFile(
            desk.texts.format(format.question, {shown(roundSignificant(proposed), desk)}), path));
        if (change != Answer::Yes) {
            return change == Answer::No ? std::optional(metres) : std::nullopt;
        }
        const std::optional<std::string> answer =
            desk.askText(TextId::AskSwath, shown(proposed, desk), path);
        if (!answer) {
            return std::nullopt;
        }
        if (answer->empty()) {
            continue;
        }
        const std::optional<double> typed = typedNumber(*answer);
        if (!typed) {
            desk.tell({TextId::AnswerNotANumber, {*answer}});
            return std::nullopt;
        }
        metres = format.wholeMetres ? roundHalfEven(*typed)
                                    : static_cast<double>(static_cast<float>(*typed));
        if (const std::optional<Failure> fault = cellSizeFault(metres)) {
            desk.tell(*fault);
            return std::nullopt;
        }
    }
}

}  // namespace campora
