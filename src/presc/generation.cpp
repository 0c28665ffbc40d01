// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/generation.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <optional>
#include <utility>

#include "base/file_draft.h"
#include "base/file_endings.h"
#include "base/files.h"
#include "base/numbers.h"
#include "base/text.h"
#include "base/typed_number.h"
#include "model/geodesy.h"
#include "model/grid_geometry.h"
#include "model/measures.h"
#include "presc/dose_grid.h"
#include "presc/dose_raster.h"
#include "presc/grid_layout.h"
#include "presc/pre_grid.h"
#include "presc/vrt_grid.h"

namespace campora {

namespace {

constexpr double kMinutesPerDegree = 60;
constexpr double kHundredths = 100;
constexpr std::size_t kCompanionRecord = 32;
constexpr std::int64_t kMostInHeader = std::numeric_limits<std::int16_t>::max();

/// Where a grid lies and what is in it.
struct Grid {
    GridLayout layout;
    std::vector<std::int16_t> doses;

    [[nodiscard]] std::size_t cells() const { return layout.cells(); }
};

/// What of the channels and the wish for cells stands against any grid.
std::optional<Failure> faultOf(std::span<const ChannelZones> channels, const BoundingBox& bound,
                               const DoseScale& scale, double metres) {
    if (!bound.isSet) {
        return Failure{TextId::PrescriptionWithoutZones, {}};
    }
    if (std::optional<Failure> fault = cellSizeFault(metres)) {
        return fault;
    }
    if (wholeMetresPerDegree(bound.minY) <= 0 || wholeMetresPerDegree(bound.maxY) <= 0) {
        return Failure{TextId::PrescriptionAtPole, {}};
    }
    return doseFault(channels, scale);
}

std::optional<Failure> faultOf(const GridSize& size, std::int64_t mostAcross, double metres,
                               const BoundingBox& bound) {
    if (std::max(size.columns, size.rows) > mostAcross) {
        return impossibleGrid(size.columns, size.rows, metres, {bound.minX, bound.minY});
    }
    if (size.columns * size.rows > kMostGridCells) {
        return Failure{TextId::FileTooLarge, {}};
    }
    return std::nullopt;
}

std::optional<std::vector<std::int16_t>> askFallbackDoses(std::span<const ChannelZones> channels,
                                                          const Desk& desk) {
    std::vector<std::int16_t> doses;
    for (std::size_t channel = 0; channel < channels.size(); ++channel) {
        const std::optional<std::string> answer =
            desk.askText(kFallbackQuestions[channel],
                         numberText(std::floor(static_cast<double>(channels[channel].meanDose))),
                         channels[channel].path);
        if (!answer) {
            return std::nullopt;
        }
        const std::optional<double> dose =
            trim(*answer).empty() ? std::optional(0.0) : typedNumber(*answer);
        const double steps = roundHalfEven(dose.value_or(0));
        if (!dose || !doseScaleOf(GridKind::Pre).holds(steps)) {
            desk.tell({TextId::AnswerNotANumber, {*answer}});
            return std::nullopt;
        }
        doses.push_back(static_cast<std::int16_t>(steps));
    }
    return doses;
}

void refuse(std::string_view path, Failure cause, const Desk& desk) {
    desk.tell(because(TextId::FileCannotBeWritten, {std::string(path)}, std::move(cause)));
}

/// None when the user cancels, or when no cell meets a zone, which is said.
std::optional<Grid> fillGrid(GridLayout layout, std::span<const ChannelZones> channels,
                             const GridRule& rule, std::string_view path, const Desk& desk) {
    const std::unique_ptr<Progress> progress =
        desk.dialogs.progress(desk.texts(TextId::MakingPrescription));
    std::optional<GridDoses> filled =
        dosesUnder(channels, layout.centres, doseScaleOf(rule.kind), rule.fallback, *progress);
    if (!filled) {
        return std::nullopt;
    }
    if (!filled->meetZones) {
        refuse(path, {TextId::PrescriptionWithoutCells, {}}, desk);
        return std::nullopt;
    }
    return Grid{std::move(layout), std::move(filled->doses)};
}

std::string preBytes(const Grid& grid, std::size_t channels) {
    PreHeader header;
    header.latitude = encodePreCoordinate(grid.layout.origin.y);
    header.longitude = encodePreCoordinate(grid.layout.origin.x);
    header.columns = static_cast<std::int16_t>(grid.layout.centres.x.size());
    header.rows = static_cast<std::int16_t>(grid.layout.centres.y.size());
    header.cellSize = static_cast<std::int16_t>(grid.layout.metres);
    header.metresPerMinuteOfLatitude =
        static_cast<std::int16_t>(roundToInt32(METERS_PER_DEGREE / kMinutesPerDegree));
    header.metresPerMinuteOfLongitude =
        static_cast<std::int16_t>(roundToInt32(grid.layout.metresPerDegree / kMinutesPerDegree));
    header.channels = static_cast<int>(channels);
    return encodePre(header, grid.doses);
}

std::string vrtBytes(const Grid& grid, std::size_t channels, const VrtTexts& about) {
    VrtHeader header;
    header.x0 = static_cast<float>(grid.layout.origin.x);
    header.y0 = static_cast<float>(grid.layout.origin.y);
    header.resolution = static_cast<float>(grid.layout.metres);
    header.columns = static_cast<std::int32_t>(grid.layout.centres.x.size());
    header.rows = static_cast<std::int32_t>(grid.layout.centres.y.size());
    header.channels = static_cast<int>(channels);
    header.name = about.name;
    header.description = about.description;
    return encodeVrt(header, grid.doses);
}

std::optional<Failure> write(std::string_view path, std::string_view bytes) {
    return writeFile(path, std::as_bytes(std::span(bytes.data(), bytes.size())));
}

/// Piece by piece: the companion of a fine grid is larger than its map, and than some memories.
void writeBlank(std::size_t bytes, FileDraft& draft) {
    constexpr std::size_t kPiece = std::size_t{1} << 16U;
    const std::string piece(std::min(bytes, kPiece), '\0');
    for (std::size_t left = bytes; left > 0 && !draft.failure();) {
        const std::size_t size = std::min(left, piece.size());
        draft.write(std::string_view(piece).substr(0, size));
        left -= size;
    }
}

/// Both files or neither.
std::optional<Failure> writeWithCompanion(std::string_view path, std::string_view bytes,
                                          std::size_t cells) {
    std::vector<FileDraft> files;
    files.emplace_back(path).write(bytes);
    const std::string companion = companionPath(path);
    if (companion != path) {
        writeBlank(companionSize(cells), files.emplace_back(companion));
    }
    return finishTogether(files);
}

/// Says how much stands in the file.
void tellWritten(std::string_view path, const Grid& grid, std::size_t channels,
                 const DoseScale& scale, const Desk& desk) {
    const double cellHa = grid.layout.metres * grid.layout.metres / kSquareMetresPerHectare;
    const auto shown = [&](double value) {
        return numberText(roundHalfEven(value * kHundredths) / kHundredths,
                          desk.locale.decimalSymbol());
    };
    std::string text = desk.texts.format(TextId::PrescriptionWritten,
                                         {std::string(path), numberText(grid.cells()),
                                          shown(static_cast<double>(grid.cells()) * cellHa)});
    for (std::size_t channel = 0; channel < channels; ++channel) {
        std::int64_t dosed = 0;
        std::int64_t steps = 0;
        for (std::size_t i = channel; i < grid.doses.size(); i += channels) {
            dosed += grid.doses[i] != 0 ? 1 : 0;
            steps += grid.doses[i];
        }
        text +=
            "\n" + desk.texts.format(TextId::PrescriptionChannelWritten,
                                     {numberText(channel + 1), numberText(dosed),
                                      shown(static_cast<double>(dosed) * cellHa),
                                      shown(static_cast<double>(steps) / scale.steps * cellHa)});
    }
    desk.tell(text, MessageIcon::Information);
}

}  // namespace

std::optional<GridRule> generatePRE(std::string_view path, int cellSize,
                                    std::span<const ChannelZones> channels, const Desk& desk) {
    const BoundingBox bound = boundOf(channels);
    if (const std::optional<Failure> stands = whyReportStands(path)) {
        desk.tell(*stands);
        return std::nullopt;
    }
    if (std::optional<Failure> fault =
            faultOf(channels, bound, doseScaleOf(GridKind::Pre), cellSize)) {
        refuse(path, std::move(*fault), desk);
        return std::nullopt;
    }
    const auto fallback = askFallbackDoses(channels, desk);
    const auto metres =
        fallback ? settleCellSize(bound, cellSize, kPreFormat, path, desk) : std::nullopt;
    if (!metres) {
        return std::nullopt;
    }
    const GridSize size = gridSize(bound, *metres);
    if (std::optional<Failure> fault = faultOf(size, kMostInHeader, *metres, bound)) {
        refuse(path, std::move(*fault), desk);
        return std::nullopt;
    }
    const GridRule rule{GridKind::Pre, *metres, *fallback};
    const std::optional<Grid> grid =
        fillGrid(gridLayout(rule.kind, bound, *metres, size), channels, rule, path, desk);
    if (!grid) {
        return std::nullopt;
    }
    std::optional<Failure> failure = whyReportStands(path);  // one may have come meanwhile
    if (!failure) {
        failure = writeWithCompanion(path, preBytes(*grid, channels.size()), grid->cells());
    }
    if (failure) {
        desk.tell(*failure);
        return std::nullopt;
    }
    tellWritten(path, *grid, channels.size(), doseScaleOf(GridKind::Pre), desk);
    return rule;
}

std::optional<GridRule> generateVRT(std::string_view path, float resolution, const VrtTexts& about,
                                    std::span<const ChannelZones> channels, const Desk& desk) {
    const BoundingBox bound = boundOf(channels);
    if (std::optional<Failure> fault =
            faultOf(channels, bound, doseScaleOf(GridKind::Vrt), resolution)) {
        refuse(path, std::move(*fault), desk);
        return std::nullopt;
    }
    const auto metres = settleCellSize(bound, resolution, kVrtFormat, path, desk);
    if (!metres) {
        return std::nullopt;
    }
    const GridSize size = gridSize(bound, *metres);
    if (std::optional<Failure> fault = faultOf(size, kMostGridCells, *metres, bound)) {
        refuse(path, std::move(*fault), desk);
        return std::nullopt;
    }
    const GridRule rule{GridKind::Vrt, *metres, std::vector<std::int16_t>(channels.size(), 0)};
    const std::optional<Grid> grid =
        fillGrid(gridLayout(rule.kind, bound, *metres, size), channels, rule, path, desk);
    if (!grid) {
        return std::nullopt;
    }
    if (const std::optional<Failure> failure =
            write(path, vrtBytes(*grid, channels.size(), about))) {
        desk.tell(*failure);
        return std::nullopt;
    }
    tellWritten(path, *grid, channels.size(), doseScaleOf(GridKind::Vrt), desk);
    return rule;
}

std::string companionPath(std::string_view path) {
    constexpr std::string_view kEnding = kReportEnding.substr(1);
    return std::string(path.substr(0, path.size() - std::min(path.size(), kEnding.size())))
        .append(kEnding);
}

std::size_t companionSize(std::size_t cells) {
    return cells * kCompanionRecord - 2;
}

}  // namespace campora
