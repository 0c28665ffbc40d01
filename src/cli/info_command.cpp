// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <map>
#include <string>

#include "base/numbers.h"
#include "base/plain_text.h"
#include "base/text.h"
#include "cli/batch_map.h"
#include "cli/commands.h"
#include "cli/info_json.h"
#include "model/exportable.h"
#include "model/shown_summary.h"

namespace campora {

namespace {

/// The figures of a file in lines for a person.
class InfoText {
public:
    InfoText(const Arguments& arguments, const Texts& texts, std::ostream& out)
        : texts_(texts), symbol_(arguments.decimalSymbol), out_(out) {}

    void print(File& file) const {
        out_ << plainLine(file.File_name()) << '\n';
        line(file.File_diskPath());
        const FileProperties& summary = file.File_resumen();
        for (int i = 0; i < summary.count(); ++i) {
            const std::string value = summary.value(i);
            const bool doubtful = summary.isDoubtful(summary.property(i));
            line(std::string(trim(summary.property(i)))
                     .append(" ")
                     .append(trim(value))
                     .append(doubtful ? " " : "")
                     .append(doubtful ? kDoubtMark : ""));
        }
        for (const ShownEntry& row : shownEntries(summary)) {
            if (row.origin != ShownEntry::Origin::Measured) {
                const std::string value = row.value + " " + row.unit;
                line(texts_.format(
                    TextId::EditedValue,
                    {std::string(trim(row.property)).append(" ").append(trim(value))}));
            }
        }
        printLayers(file);
        if (const BoundingBox& box = file.File_bound(); box.isSet) {
            line(texts_.format(TextId::CliBound,
                               {position(box.minX, box.minY), position(box.maxX, box.maxY),
                                metres(box.widthM), metres(box.heightM)}));
        }
    }

private:
    struct Total {
        std::int64_t layers = 0;
        std::int64_t elements = 0;
        std::int64_t points = 0;
    };

    /// A line a kind: a work may have hundreds of passes.
    void printLayers(const File& file) const {
        std::map<std::string, Total, std::less<>> totals;
        for (const Gph* layer : file.File_gphList()) {
            Total& total = totals[std::string(layer->Gph_kind())];
            const auto* const points = dynamic_cast<const ExportablePoint*>(layer);
            total.layers += 1;
            total.elements += layer->Gph_count();
            total.points += points != nullptr ? points->ExportablePoint_pointCount() : 0;
        }
        for (const auto& [kind, total] : totals) {
            line(texts_.format(TextId::CliLayers,
                               {kind, numberText(total.layers), numberText(total.elements),
                                numberText(total.points)}));
        }
    }
    void line(std::string_view text) const { out_ << "  " << plainLine(text) << '\n'; }
    [[nodiscard]] std::string position(double x, double y) const {
        return std::string("(").append(degrees(x)).append("; ").append(degrees(y)).append(")");
    }
    /// To a centimetre.
    [[nodiscard]] std::string degrees(double value) const {
        return numberText(roundHalfEven(value * 1e7) / 1e7, symbol_);
    }
    [[nodiscard]] static std::string metres(double value) {
        return numberText(roundHalfEven(value));
    }

    const Texts& texts_;
    char symbol_;
    std::ostream& out_;
};

}  // namespace

int runInfo(const Arguments& arguments, const Console& console) {
    BatchMap batch(arguments, console.boxes);
    const bool all = batch.openFiles();
    if (arguments.json) {
        printJson(infoJson(batch.map()), console.out);
    } else {
        const InfoText text(arguments, batch.desk().texts, console.out);
        for (File* file : batch.map().files().all()) {
            text.print(*file);
        }
    }
    return all ? exit_status::kDone : exit_status::kRefused;
}

}  // namespace campora
