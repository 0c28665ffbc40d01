// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/gph_presc.h"

#include <algorithm>
#include <cstddef>
#include <stdexcept>
#include <utility>

#include "base/numbers.h"
#include "base/paths.h"
#include "base/typed_number.h"
#include "model/measures.h"
#include "model/shown_number.h"
#include "rtree/tree_units.h"

namespace campora {

namespace {

/// Canvas units from the pointer to a line or a point that it means.
constexpr std::int32_t kReach = 90;
constexpr std::string_view kLineEnd = "\r\n";

}  // namespace

GphPresc::GphPresc(Color plain) : plain_(plain) {
    scale_.allowClassEdit = false;
    scale_.allowValueChange = true;
    scale_.valueChangeCaption = TextId::ChangeDose;
    changes_ = scale_.onChanged([this] { colorAgain(); });
    valueChanges_ =
        scale_.onClassValueChanged([this](int /*index*/, double oldValue, double newValue) {
            changeValue(oldValue, newValue);
        });
}

bool GphPresc::loadFromFile(std::string_view path, const Desk& desk) {
    if (!isThere(path)) {
        return false;
    }
    const auto tellWhy = [&desk](const Failure& failure) {
        desk.tell(because(TextId::ShapeCannotOpen, {}, failure), MessageIcon::Plain);
    };
    if (const std::optional<Failure> failure = table_.open(path)) {
        tellWhy(*failure);
        return false;
    }
    if (const std::optional<Failure>& warning = table_.notes().tableWarning) {
        desk.tell(*warning);
    }
    name_ = fileNamePart(path);
    path_ = path;
    readRecords();
    if (const std::optional<Failure>& damage = table_.notes().damage) {
        tellWhy(*damage);
    }
    if (!bound_.isSet) {
        desk.tell({TextId::ShapeWithoutPolygons, {path_}});
    }
    return true;
}

void GphPresc::readRecords() {
    report(0, 1);
    const std::int32_t records = table_.recordCount();
    polygons_.reserve(static_cast<std::size_t>(records));
    table_.readFigures([&](std::int32_t record, GphPolygonMulti figure) {
        report(record, records);
        addPolygon(std::move(figure));
    });
    const auto first =
        std::find_if(polygons_.begin(), polygons_.end(),
                     [](const GphPolygonMulti& polygon) { return polygon.Gph_bound().isSet; });
    figures_ = first == polygons_.end() ? FigureKind::Zone : first->kind;
    rank();
    if (!order_.empty()) {
        figures_ = FigureKind::Zone;
    }
    report(1, 1);
}

void GphPresc::rank() {
    const std::optional<R2TreeFound> all =
        tree_.Find(tree_.MinX(), tree_.MaxX(), tree_.MinY(), tree_.MaxY(), R2Tree::kOverlapping);
    order_.clear();
    below_.clear();
    above_.clear();
    for (const R2TreeEntry* entry : all->entries) {
        const GphPolygonMulti& polygon = polygons_[static_cast<std::size_t>(entry->ChildID)];
        const bool isOpen = polygon.kind != FigureKind::Zone;
        (polygon.isZone() ? order_ : isOpen ? above_ : below_).push_back(entry->ChildID);
    }
}

void GphPresc::addPolygon(GphPolygonMulti polygon) {
    polygon.color = plain_;
    const BoundingBox& box = polygon.Gph_bound();
    if (box.isSet) {
        bound_.addBoundingBox(box);
        tree_.Insert(treeUnits(box.minX), treeUnits(box.minY), treeUnits(box.maxX),
                     treeUnits(box.maxY), Gph_count());
    }
    polygons_.push_back(std::move(polygon));
}

void GphPresc::report(std::int64_t done, std::int64_t all) const {
    if (progress) {
        progress(static_cast<int>(
            roundHalfEven(static_cast<double>(done) * 100 / static_cast<double>(all))));
    }
}

bool GphPresc::columnaNumeric(int column) const {
    return table_.setOf(column) != nullptr;
}

const std::vector<double>& GphPresc::dosisCollection(int column) const {
    static const std::vector<double> none;
    const SetList* const set = table_.setOf(column);
    return set == nullptr ? none : set->getSet();
}

const SetList* GphPresc::currentDosisSet() const {
    return table_.setOf(column_);
}

ColumnSurvey GphPresc::survey(int column) const {
    return table_.survey(column, polygons_);
}

std::vector<std::optional<double>> GphPresc::values(int column, ColumnForm form) const {
    return table_.values(column, form, polygons_);
}

void GphPresc::setColumnaDosis(int column, ColumnForm form) {
    if (column < 1 || column > columnCount() || (form == ColumnForm() && !columnaNumeric(column))) {
        return;
    }
    const std::vector<std::optional<double>> read = values(column, form);
    SetList set;
    set.addDosis(0);
    for (std::size_t i = 0; i < polygons_.size(); ++i) {
        for (std::size_t part = 0; part < polygons_[i].rings().size(); ++part) {
            if (read[i]) {
                set.addDosis(*read[i]);
            }
        }
    }
    column_ = column;
    listedDoses_.clear();
    report(0, 1);
    const std::int32_t count = Gph_count();
    for (std::int32_t i = 0; i < count; ++i) {
        report(i, count);
        GphPolygonMulti& polygon = polygons_[static_cast<std::size_t>(i)];
        const std::optional<double> value = read[static_cast<std::size_t>(i)];
        // A record without parts has no say in whether the column is numeric.
        polygon.hasDose = value.has_value() || !form.blanksOutside;
        polygon.dosis = static_cast<float>(value.value_or(0));
        listedDoses_.push_back(polygon.dosis);
    }
    rank();
    table_.replaceSet(column, std::move(set));
    scale_.loadFromSetList(*currentDosisSet(), 0);  // which colours the zones
    report(1, 1);
}

void GphPresc::setDosis(std::int32_t polygon, float dosis) {
    GphPolygonMulti& changed = polygons_.at(static_cast<std::size_t>(polygon));
    if (column_ == kNoColumn) {
        return;
    }
    changed.dosis = dosis;
    dosesChanged_ = true;
    recalculateColorScale();
}

void GphPresc::recalculateColorScale() {
    if (column_ == kNoColumn) {
        return;
    }
    SetList set;
    set.addDosis(0);
    for (const GphPolygonMulti& polygon : polygons_) {
        if (polygon.hasDose) {
            set.addDosis(static_cast<double>(polygon.dosis));
        }
    }
    table_.replaceSet(column_, std::move(set));
    scale_.loadFromSetList(*currentDosisSet(), 0);
}

void GphPresc::changeValue(double oldValue, double newValue) {
    const auto before = static_cast<float>(oldValue);
    for (GphPolygonMulti& polygon : polygons_) {
        if (polygon.hasDose && polygon.dosis == before) {
            polygon.dosis = static_cast<float>(newValue);
            dosesChanged_ = true;
        }
    }
    recalculateColorScale();
}

void GphPresc::colorAgain() {
    // In single precision, as doses and classes are: the value in the table may lie beside both.
    for (GphPolygonMulti& polygon : polygons_) {
        polygon.color = scale_.getColor(static_cast<double>(polygon.dosis));
    }
}

std::vector<std::int32_t> GphPresc::recordsNear(const BoundingBox& box) const {
    const std::optional<R2TreeFound> found =
        tree_.Find(treeUnits(box.minX), treeUnits(box.maxX), treeUnits(box.minY),
                   treeUnits(box.maxY), R2Tree::kOverlapping);
    std::vector<std::int32_t> records;
    for (const R2TreeEntry* entry : found->entries) {
        records.push_back(entry->ChildID);
    }
    return records;
}

std::int32_t GphPresc::polygonIndexAt(LonLat position) const {
    const std::int32_t x = treeUnits(position.x);
    const std::int32_t y = treeUnits(position.y);
    const std::optional<R2TreeFound> found = tree_.Find(x, x, y, y, R2Tree::kOverlapping);
    // The one that the search hands out last lies on top.
    const auto hit =
        std::find_if(found->entries.rbegin(), found->entries.rend(), [&](const R2TreeEntry* entry) {
            const GphPolygonMulti& polygon = polygons_[static_cast<std::size_t>(entry->ChildID)];
            return polygon.hasDose && polygon.ringAt(position) >= 0;
        });
    return hit == found->entries.rend() ? -1 : (*hit)->ChildID;
}

const GphPolygonMulti* GphPresc::getPolygonAtPoint(double x, double y) const {
    const std::int32_t index = polygonIndexAt({x, y});
    return index < 0 ? nullptr : &polygons_[static_cast<std::size_t>(index)];
}

void GphPresc::Gph_plot(MapContext& context) const {
    context.canvas.setPenColor(context.style.colors.fore);
    for (const std::vector<std::int32_t>* const rank : {&below_, &order_, &above_}) {
        for (const std::int32_t record : *rank) {
            polygons_[static_cast<std::size_t>(record)].Gph_plot(context);
        }
    }
}

std::int32_t GphPresc::Gph_mouseOver(const ViewTransform& view, const MapStyle& /*style*/,
                                     LonLat position, std::int32_t /*start*/) const {
    BoundingBox around;
    around.addPoint(position.x, position.y);
    const CanvasPoint place =
        view.isFitted() ? view.mapToScreen(position.x, position.y) : CanvasPoint();
    for (const std::int32_t reach : {-kReach, kReach}) {
        if (view.isFitted() && !above_.empty()) {
            const LonLat corner = view.screenToMap(static_cast<float>(place.x + reach),
                                                   static_cast<float>(place.y + reach));
            around.addPoint(corner.x, corner.y);
        }
    }
    // From what lies on top down.
    const std::vector<std::int32_t> near = recordsNear(around);
    const auto topmost = [&](const auto& isMeant) {
        const auto hit = std::find_if(near.rbegin(), near.rend(), [&](std::int32_t record) {
            return isMeant(polygons_[static_cast<std::size_t>(record)]);
        });
        return hit == near.rend() ? -1 : *hit;
    };
    const std::int32_t open = topmost(
        [&](const GphPolygonMulti& figure) { return figure.isDrawnNear(view, place, kReach); });
    const std::int32_t zone = open >= 0 ? open : polygonIndexAt(position);
    return zone >= 0 ? zone : topmost([&](const GphPolygonMulti& figure) {
        return figure.ringAt(position) >= 0;
    });
}

std::string GphPresc::Gph_getInfo(const InfoContext& context, std::int32_t n) const {
    const GphPolygonMulti& polygon = polygons_.at(static_cast<std::size_t>(n));
    std::string text;
    for (int column = 1; column <= columnCount(); ++column) {
        text.append(columnNames()[static_cast<std::size_t>(column) - 1]).append(": ");
        text.append(table_.shownCell(n + 1, column, context.locale));
        text.append(kLineEnd);
        if (column == column_ && polygon.dosis != listedDoses_[static_cast<std::size_t>(n)]) {
            text.append(context.texts.format(
                TextId::DoseNow, {numberToType(polygon.dosis, context.locale.decimalSymbol())}));
            text.append(kLineEnd);
        }
    }
    if (polygon.kind != FigureKind::Zone) {
        return text;
    }
    const double hectares = static_cast<double>(polygon.Area()) / kSquareMetresPerHectare;
    text.append(context.texts.format(TextId::PolygonArea, {shownNumber(hectares, context.locale)}));
    return text.append(kLineEnd);
}

}  // namespace campora
