// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/generation.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <optional>
#include <utility>

#include "base/files.h"
#include "base/numbers.h"
#include "base/text.h"
#include "base/typed_number.h"
#include "model/geodesy.h"
#include "presc/dose_grid.h"
#include "presc/dose_raster.h"
#include "presc/grid_geometry.h"
#include "presc/pre_file.h"
#include "presc/vrt_file.h"

namespace campora {

namespace {

constexpr double kMargin = 2;  // cells between the map and the grid's edge
constexpr double kMinutesPerDegree = 60;
constexpr double kSquareMetresPerHectare = 10'000;
constexpr double kHundredths = 100;
constexpr std::size_t kCompanionRecord = 32;
/// The companion of a larger grid would be no file that the program itself can read.
constexpr std::int64_t kMostCells = (std::int64_t{1} << 31U) / std::int64_t{kCompanionRecord} - 1;
constexpr std::int64_t kMostInHeader = std::numeric_limits<std::int16_t>::max();

constexpr DoseScale kPreDoses{1};
constexpr DoseScale kVrtDoses{VrtFile::kDoseUnits};

/// Where a grid lies and what is in it.
struct Grid {
    double metres = 0;
    std::int32_t metresPerDegree = 0;
    /// The outer corner of the first cell, degrees.
    LonLat origin;
    CellCentres centres;
    std::vector<std::int16_t> doses;

    [[nodiscard]] std::size_t cells() const { return centres.x.size() * centres.y.size(); }
};

BoundingBox boundOf(std::span<const ChannelZones> channels) {
    BoundingBox bound;
    for (const ChannelZones& channel : channels) {
        if (channel.bound.isSet) {
            bound.addBoundingBox(channel.bound);
        }
    }
    return bound;
}

/// What of the channels and the wish for cells stands against any grid.
std::optional<Failure> faultOf(std::span<const ChannelZones> channels, const BoundingBox& bound,
                               const DoseScale& scale, double metres) {
    if (!bound.isSet) {
        return Failure{TextId::PrescriptionWithoutZones, {}};
    }
    if (std::optional<Failure> fault = cellSizeFault(metres)) {
        return fault;
    }
    if (metresPerDegreeAt(bound.minY) <= 0 || metresPerDegreeAt(bound.maxY) <= 0) {
        return Failure{TextId::PrescriptionAtPole, {}};
    }
    return doseFault(channels, scale);
}

std::optional<Failure> faultOf(const GridSize& size, std::int64_t mostAcross, double metres,
                               const BoundingBox& bound) {
    if (std::max(size.columns, size.rows) > mostAcross) {
        return impossibleGrid(size.columns, size.rows, metres, {bound.minX, bound.minY});
    }
    if (size.columns * size.rows > kMostCells) {
        return Failure{TextId::FileTooLarge, {}};
    }
    return std::nullopt;
}

/// North to south.
Grid preGrid(const BoundingBox& bound, double metres, const GridSize& size) {
    Grid grid{metres, metresPerDegreeAt(bound.maxY), {}, {}, {}};
    const double perDegree = grid.metresPerDegree;
    const double top = bound.maxY + kMargin * metres / METERS_PER_DEGREE;
    const double left = bound.minX - kMargin * metres / perDegree;
    grid.origin = {left, top};
    for (std::int64_t column = 0; column < size.columns; ++column) {
        const double east = metres * static_cast<double>(column) + metres / 2;
        grid.centres.x.push_back(left + east / perDegree);
    }
    for (std::int64_t row = 0; row < size.rows; ++row) {
        const double south = metres * static_cast<double>(row) + metres / 2;
        grid.centres.y.push_back(top - south / METERS_PER_DEGREE);
    }
    return grid;
}

/// South to north; the origin is the one that the file keeps in single precision.
Grid vrtGrid(const BoundingBox& bound, double metres, const GridSize& size) {
    Grid grid{metres, metresPerDegreeAt(bound.minY), {}, {}, {}};
    const double perDegree = grid.metresPerDegree;
    const double west = inSinglePrecision(bound.minX - kMargin * metres / perDegree);
    const double south = inSinglePrecision(bound.minY - kMargin * metres / METERS_PER_DEGREE);
    grid.origin = {west, south};
    for (std::int64_t column = 0; column < size.columns; ++column) {
        const double east = metres * static_cast<double>(column) + metres / 2;
        grid.centres.x.push_back(west + east / perDegree);
    }
    for (std::int64_t row = 0; row < size.rows; ++row) {
        const double north = metres * static_cast<double>(row) + metres / 2;
        grid.centres.y.push_back(south + north / METERS_PER_DEGREE);
    }
    return grid;
}

std::optional<std::vector<std::int16_t>> askFallbackDoses(std::span<const ChannelZones> channels,
                                                          const GenerationContext& context) {
    std::vector<std::int16_t> doses;
    for (std::size_t channel = 0; channel < channels.size(); ++channel) {
        const std::string answer = context.dialogs.inputBox(
            kFallbackQuestions[channel], context.texts(TextId::ProgramName),
            numberText(std::floor(static_cast<double>(channels[channel].meanDose))));
        const std::optional<double> dose =
            trim(answer).empty() ? std::optional(0.0) : typedNumber(answer);
        const double steps = roundHalfEven(dose.value_or(0));
        if (!dose || !kPreDoses.holds(steps)) {
            context.refuse({TextId::AnswerNotANumber, {answer}});
            return std::nullopt;
        }
        doses.push_back(static_cast<std::int16_t>(steps));
    }
    return doses;
}

bool fillGrid(Grid& grid, std::span<const ChannelZones> channels, const DoseScale& scale,
              std::span<const std::int16_t> fallback, const GenerationContext& context) {
    const std::unique_ptr<Progress> progress =
        context.dialogs.progress(context.texts(TextId::MakingPrescription));
    std::optional<std::vector<std::int16_t>> doses =
        dosesUnder(channels, grid.centres, scale, fallback, *progress);
    if (!doses) {
        return false;
    }
    grid.doses = std::move(*doses);
    return true;
}

std::string encodePre(const Grid& grid, std::size_t channels) {
    PreHeader header;
    header.latitude = encodePreCoordinate(grid.origin.y);
    header.longitude = encodePreCoordinate(grid.origin.x);
    header.columns = static_cast<std::int16_t>(grid.centres.x.size());
    header.rows = static_cast<std::int16_t>(grid.centres.y.size());
    header.cellSize = static_cast<std::int16_t>(grid.metres);
    header.metresPerMinuteOfLatitude =
        static_cast<std::int16_t>(roundToInt32(METERS_PER_DEGREE / kMinutesPerDegree));
    header.metresPerMinuteOfLongitude =
        static_cast<std::int16_t>(roundToInt32(grid.metresPerDegree / kMinutesPerDegree));
    header.channels = static_cast<int>(channels);
    return encodePre(header, grid.doses);
}

std::string encodeVrt(const Grid& grid, std::size_t channels, const VrtTexts& about) {
    VrtHeader header;
    header.x0 = static_cast<float>(grid.origin.x);
    header.y0 = static_cast<float>(grid.origin.y);
    header.resolution = static_cast<float>(grid.metres);
    header.columns = static_cast<std::int32_t>(grid.centres.x.size());
    header.rows = static_cast<std::int32_t>(grid.centres.y.size());
    header.channels = static_cast<int>(channels);
    header.name = about.name;
    header.description = about.description;
    return encodeVrt(header, grid.doses);
}

std::optional<Failure> write(std::string_view path, std::string_view bytes) {
    return writeFile(path, std::as_bytes(std::span(bytes.data(), bytes.size())));
}

/// Both files or neither: an earlier prescription comes back when its companion cannot be written.
std::optional<Failure> writeWithCompanion(std::string_view path, std::string_view bytes,
                                          std::size_t cells) {
    const std::string companion = companionPath(path);
    const Result<FileBytes> earlier = readFile(path);
    std::optional<Failure> failure = write(path, bytes);
    if (failure || companion == path) {
        return failure;
    }
    failure = write(companion, std::string(companionSize(cells), '\0'));
    if (failure) {
        static_cast<void>(earlier ? writeFile(path, earlier->bytes()) : deleteFile(path));
    }
    return failure;
}

/// Says how much stands in the file.
void tellWritten(std::string_view path, const Grid& grid, std::size_t channels,
                 const DoseScale& scale, const GenerationContext& context) {
    const double cellHa = grid.metres * grid.metres / kSquareMetresPerHectare;
    const auto shown = [&](double value) {
        return numberText(roundHalfEven(value * kHundredths) / kHundredths,
                          context.locale.decimalSymbol());
    };
    std::string text = context.texts.format(TextId::PrescriptionWritten,
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
            "\n" + context.texts.format(TextId::PrescriptionChannelWritten,
                                        {numberText(channel + 1), numberText(dosed),
                                         shown(static_cast<double>(dosed) * cellHa),
                                         shown(static_cast<double>(steps) / scale.steps * cellHa)});
    }
    context.dialogs.message(text, MessageIcon::Information, context.texts(TextId::ProgramName));
}

bool refuse(std::string_view path, Failure cause, const GenerationContext& context) {
    context.refuse(because(TextId::FileCannotBeWritten, {std::string(path)}, std::move(cause)));
    return false;
}

}  // namespace

ChannelZones zonesOf(const GphPresc& presc) {
    const SetList* const doses = presc.currentDosisSet();
    return {presc.polygons(), presc.searchOrder(), presc.Gph_bound(),
            doses != nullptr ? doses->getRealAverage() : 0};
}

std::vector<ChannelZones> zonesOf(const GphPrescVex& prescription) {
    std::vector<ChannelZones> channels;
    channels.reserve(static_cast<std::size_t>(prescription.channelsCnt()));
    for (int i = 0; i < prescription.channelsCnt(); ++i) {
        channels.push_back(zonesOf(prescription.channel(i)));
    }
    return channels;
}

bool generatePRE(std::string_view path, int cellSize, std::span<const ChannelZones> channels,
                 const GenerationContext& context) {
    const BoundingBox bound = boundOf(channels);
    if (std::optional<Failure> fault = faultOf(channels, bound, kPreDoses, cellSize)) {
        return refuse(path, std::move(*fault), context);
    }
    const auto fallback = askFallbackDoses(channels, context);
    const auto metres =
        fallback ? settleCellSize(bound, cellSize, kPreFormat, context) : std::nullopt;
    if (!metres) {
        return false;
    }
    const GridSize size = gridSize(bound, *metres);
    if (std::optional<Failure> fault = faultOf(size, kMostInHeader, *metres, bound)) {
        return refuse(path, std::move(*fault), context);
    }
    Grid grid = preGrid(bound, *metres, size);
    if (!fillGrid(grid, channels, kPreDoses, *fallback, context)) {
        return false;
    }
    if (const std::optional<Failure> failure =
            writeWithCompanion(path, encodePre(grid, channels.size()), grid.cells())) {
        context.refuse(*failure);
        return false;
    }
    tellWritten(path, grid, channels.size(), kPreDoses, context);
    return true;
}

bool generateVRT(std::string_view path, float resolution, const VrtTexts& about,
                 std::span<const ChannelZones> channels, const GenerationContext& context) {
    const BoundingBox bound = boundOf(channels);
    if (std::optional<Failure> fault = faultOf(channels, bound, kVrtDoses, resolution)) {
        return refuse(path, std::move(*fault), context);
    }
    const auto metres = settleCellSize(bound, resolution, kVrtFormat, context);
    if (!metres) {
        return false;
    }
    const GridSize size = gridSize(bound, *metres);
    if (std::optional<Failure> fault = faultOf(size, kMostCells, *metres, bound)) {
        return refuse(path, std::move(*fault), context);
    }
    Grid grid = vrtGrid(bound, *metres, size);
    const std::vector<std::int16_t> none(channels.size(), 0);
    if (!fillGrid(grid, channels, kVrtDoses, none, context)) {
        return false;
    }
    if (const std::optional<Failure> failure =
            write(path, encodeVrt(grid, channels.size(), about))) {
        context.refuse(*failure);
        return false;
    }
    tellWritten(path, grid, channels.size(), kVrtDoses, context);
    return true;
}

std::string companionPath(std::string_view path) {
    constexpr std::string_view kEnding = "rpt";
    return std::string(path.substr(0, path.size() - std::min(path.size(), kEnding.size())))
        .append(kEnding);
}

std::size_t companionSize(std::size_t cells) {
    return cells * kCompanionRecord - 2;
}

}  // namespace campora
