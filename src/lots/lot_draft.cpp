// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "lots/lot_draft.h"

#include <utility>

namespace campora {

void LotDraft::select(std::optional<std::size_t> index) {
    endMove(true);
    now_.selected = index && *index < now_.vertices.size() ? index : std::nullopt;
}

void LotDraft::append(LonLat position) {
    endMove(true);
    change();
    now_.vertices.push_back(position);
    now_.selected = now_.vertices.size() - 1;
}

void LotDraft::moveTo(std::size_t index, LonLat position) {
    endMove(true);
    if (index < now_.vertices.size() && now_.vertices[index] != position) {
        change();
        now_.vertices[index] = position;
    }
}

LonLat LotDraft::halfwayFrom(std::size_t index) const {
    const LonLat& a = now_.vertices.at(index);
    const LonLat& b = now_.vertices[(index + 1) % now_.vertices.size()];
    return {(a.x + b.x) / 2, (a.y + b.y) / 2};
}

void LotDraft::insertAfter(std::size_t index) {
    beginInsert(index);
    endMove(true);
}

void LotDraft::remove(std::size_t index) {
    endMove(true);
    if (index >= now_.vertices.size()) {
        return;
    }
    change();
    now_.vertices.erase(now_.vertices.begin() + static_cast<std::ptrdiff_t>(index));
    const std::size_t count = now_.vertices.size();
    now_.selected =
        count == 0 ? std::nullopt : std::optional(index > 0 ? index - 1 : std::size_t{0});
}

void LotDraft::clear() {
    endMove(true);
    if (now_.vertices.empty() && description_.empty()) {
        return;
    }
    State old = now_;
    now_ = {};
    now_.afterUnsaved = old.afterUnsaved || isUnsaved(old.vertices);
    old.whole = Whole{std::exchange(description_, {}), std::exchange(home_, {})};
    keep(std::move(old));
}

void LotDraft::beginMove(std::size_t index) {
    endMove(true);
    if (index < now_.vertices.size()) {
        before_ = now_;
        now_.selected = index;
    }
}

void LotDraft::beginInsert(std::size_t index) {
    endMove(true);
    if (index >= now_.vertices.size()) {
        return;
    }
    before_ = now_;
    const LonLat halfway = halfwayFrom(index);
    now_.vertices.insert(now_.vertices.begin() + static_cast<std::ptrdiff_t>(index) + 1, halfway);
    now_.selected = index + 1;
}

void LotDraft::move(LonLat position) {
    if (before_) {
        now_.vertices[*now_.selected] = position;
    }
}

void LotDraft::endMove(bool keepIt) {
    if (!before_) {
        return;
    }
    State before = std::move(*before_);
    before_.reset();
    if (!keepIt) {
        now_ = std::move(before);
    } else if (before.vertices != now_.vertices) {
        keep(std::move(before));
    }
}

void LotDraft::keep(State state) {
    undo_.push_back(std::move(state));
    if (undo_.size() > kMostSteps) {
        undo_.pop_front();
    }
    redo_.clear();
}

void LotDraft::step(Steps& from, Steps& to) {
    endMove(true);
    if (from.empty()) {
        return;
    }
    State wanted = std::move(from.back());
    from.pop_back();
    if (wanted.whole) {
        now_.whole = Whole{std::exchange(description_, std::move(wanted.whole->description)),
                           std::exchange(home_, std::move(wanted.whole->home))};
        wanted.whole.reset();
    }
    to.push_back(std::exchange(now_, std::move(wanted)));
}

void LotDraft::undo() {
    step(undo_, redo_);
}

void LotDraft::redo() {
    step(redo_, undo_);
}

void LotDraft::start(Lot lot, LotOrigin origin) {
    *this = {};
    now_.vertices = lot.vertices;
    description_ = lot.description;
    home_ = {std::move(origin), std::move(lot)};
}

void LotDraft::markSaved(std::string path) {
    endMove(true);
    home_ = {{std::move(path), nullptr}, {now_.vertices, description_}};
    now_.afterUnsaved = false;
}

bool LotDraft::isUnsaved(const std::vector<LonLat>& vertices) const {
    return !vertices.empty() &&
           (vertices != home_.saved.vertices || description_ != home_.saved.description);
}

bool LotDraft::isChanged() const {
    return now_.afterUnsaved || isUnsaved(now_.vertices);
}

}  // namespace campora
