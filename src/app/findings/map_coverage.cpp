// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/findings/map_coverage.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <optional>
#include <utility>

#include "app/figure_text.h"
#include "app/findings/coverage_layer.h"
#include "lots/gph_lote.h"

namespace campora {

namespace {

class CoverageMode final : public ModeLayer {
public:
    /// `works`: files of which it is the coverage together.
    CoverageMode(Coverage coverage, std::vector<std::vector<LonLat>> lots, std::size_t works)
        : figures_(coverage.figures),
          lots_(std::move(lots)),
          layer_(std::move(coverage.grid), lots_),
          works_(works) {}

    [[nodiscard]] const Gph& layer() const override { return layer_; }
    [[nodiscard]] LegendContent legend(const Desk& desk) const override {
        const FigureText figure(desk.locale);
        const auto row = [&](Color color, TextId name, std::optional<double> value) {
            return LegendRow{color,
                             std::string(desk.texts(name)).append(": ") + figure.hectares(value)};
        };
        LegendContent legend;
        legend.unit = desk.texts(TextId::CoverageMap);
        legend.classes = {row(coverage_colors::kOnce, TextId::CoveredOnce, figures_.once),
                          row(coverage_colors::kTwice, TextId::CoveredTwice, figures_.twice),
                          row(coverage_colors::kMore, TextId::CoveredMore, figures_.more),
                          row(coverage_colors::kSkipped, skippedName(figures_), figures_.skipped)};
        return legend;
    }
    [[nodiscard]] std::vector<SummaryRow> figures(const File* current,
                                                  const Desk& desk) const override {
        std::vector<SummaryRow> rows;
        if (works_ > 1 && current != nullptr && !workLayers(*current).empty()) {
            addRows(figuresOf(*current), current->File_name(), desk, rows);
        }
        addRows(figures_, works_ > 1 ? std::string(desk.texts(TextId::AllWorkTogether)) : "", desk,
                rows);
        return rows;
    }

    [[nodiscard]] static TextId skippedName(const CoverageFigures& figures) {
        return figures.skippedIsEstimate ? TextId::SkippedEstimate : TextId::Skipped;
    }

private:
    /// `work`: whose figures these are; empty where there is no other.
    static void addRows(const CoverageFigures& figures, const std::string& work, const Desk& desk,
                        std::vector<SummaryRow>& rows) {
        const auto add = [&](TextId name, std::string value) {
            rows.push_back({std::string(desk.texts(name)).append(":"), std::move(value)});
        };
        if (!work.empty()) {
            add(TextId::CoverageMap, work);
        }
        for (CoverageRow& row : coverageRows(figures, desk)) {
            add(row.name, std::move(row.value));
        }
    }

    [[nodiscard]] const CoverageFigures& figuresOf(const File& file) const {
        const auto found = ofFiles_.find(&file);
        if (found != ofFiles_.end()) {
            return found->second;
        }
        const std::vector<LotRing> lots(lots_.begin(), lots_.end());
        return ofFiles_.emplace(&file, coverGround(workLayers(file), lots).figures).first->second;
    }

    CoverageFigures figures_;
    std::vector<std::vector<LonLat>> lots_;
    CoverageLayer layer_;
    std::size_t works_;
    /// Of files that were asked for: a mode is made anew when the files, or what is in them,
    /// change.
    mutable std::map<const File*, CoverageFigures> ofFiles_;
};

}  // namespace

CoverageInput coverageInput(const LoadedFileList& files) {
    CoverageInput input;
    for (const File* file : files.all()) {
        const std::vector<const WorkLayer*> work = workLayers(*file);
        input.work.insert(input.work.end(), work.begin(), work.end());
        for (const Gph* layer : file->File_gphList()) {
            if (const auto* const lot = dynamic_cast<const GphLote*>(layer)) {
                input.lots.emplace_back(lot->vertices());
            }
        }
    }
    return input;
}

std::vector<CoverageRow> coverageRows(const CoverageFigures& figures, const Desk& desk) {
    const FigureText figure(desk.locale);
    std::vector<CoverageRow> rows{
        {TextId::GrossArea, figure.hectares(figures.gross)},
        {TextId::DosedArea, figure.hectaresOf(figures.dosed, figures.gross)},
        {TextId::UndosedArea, figure.hectaresOf(figures.undosed, figures.gross)},
        {TextId::NetCoverage, figure.hectaresOf(figures.net, figures.dosed)},
        {TextId::Overlap, figure.hectaresOf(figures.overlap, figures.dosed)},
        {TextId::CoveredTwice, figure.hectaresOf(figures.twice, figures.net)},
        {TextId::CoveredMore, figure.hectaresOf(figures.more, figures.net)},
        {CoverageMode::skippedName(figures),
         figure.hectaresOf(figures.skipped,
                           figures.inside.value_or(figures.net) + figures.skipped.value_or(0))}};
    if (figures.inside) {
        rows.push_back({TextId::InsideLot, figure.hectaresOf(figures.inside, figures.net)});
        rows.push_back({TextId::OutsideLot, figure.hectaresOf(figures.outside, figures.net)});
    }
    return rows;
}

std::unique_ptr<ModeLayer> makeCoverageMode(const OpenMap& map) {
    const CoverageInput input = coverageInput(map.files());
    Coverage coverage = coverGround(input.work, input.lots);
    if (coverage.grid.tiles().empty()) {
        return nullptr;
    }
    std::vector<std::vector<LonLat>> lots;
    for (const LotRing& ring : input.lots) {
        lots.emplace_back(ring.begin(), ring.end());
    }
    const std::vector<File*> files = map.files().all();
    const auto works = std::count_if(files.begin(), files.end(),
                                     [](const File* file) { return !workLayers(*file).empty(); });
    return std::make_unique<CoverageMode>(std::move(coverage), std::move(lots),
                                          static_cast<std::size_t>(works));
}

}  // namespace campora
