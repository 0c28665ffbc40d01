// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "colour/color_scale.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <map>
#include <stdexcept>
#include <utility>

#include "base/numbers.h"

namespace campora {

namespace {

constexpr int kInitialClasses = 6;
/// Classes that a lookup compares at one go.
constexpr std::size_t kBlock = 16;
/// More classes than these are searched by halves.
constexpr std::size_t kManyClasses = 128;

/// Runs from one colour to another in equal steps a component.
class Ramp {
public:
    Ramp(Color from, Color to, int steps)
        : from_(from),
          stepRed_(step(from.red(), to.red(), steps)),
          stepGreen_(step(from.green(), to.green(), steps)),
          stepBlue_(step(from.blue(), to.blue(), steps)) {}

    [[nodiscard]] Color at(int i) const {
        return Color::rgb(component(from_.red(), stepRed_, i),
                          component(from_.green(), stepGreen_, i),
                          component(from_.blue(), stepBlue_, i));
    }

private:
    // Steps are single precision, which decides some of the ties.
    [[nodiscard]] static float step(int from, int to, int steps) {
        return static_cast<float>(to - from) / static_cast<float>(steps);
    }
    [[nodiscard]] static int component(int from, float step, int i) {
        return roundToInt32(static_cast<double>(step) * i + from);
    }

    Color from_;
    float stepRed_;
    float stepGreen_;
    float stepBlue_;
};

/// The first step of the ramp on class `first`, and so on up to class `last`.
void paint(std::vector<Clase>& classes, const Ramp& ramp, int first, int last) {
    for (int i = first; i <= last; ++i) {
        classes[static_cast<std::size_t>(i)].color = ramp.at(i - first + 1);
    }
}

}  // namespace

struct ColorScale::Listeners {
    std::map<int, std::function<void()>> changed;
    std::map<int, ValueListener> valueChanged;
    int lastId = 0;

    /// Calls those that were there at the start and still are: a listener may take itself or others
    /// away or add new ones while it is called.
    template <typename Function, typename... Arguments>
    static void raise(const std::map<int, Function>& listeners, Arguments... arguments) {
        for (const auto& [id, listener] : std::map(listeners)) {
            if (listeners.contains(id)) {
                listener(arguments...);
            }
        }
    }
};

ColorScale::Subscription::Subscription(std::weak_ptr<Listeners> listeners, int id)
    : listeners_(std::move(listeners)), id_(id) {}

ColorScale::Subscription& ColorScale::Subscription::operator=(Subscription&& other) noexcept {
    if (this != &other) {
        reset();
        listeners_ = std::exchange(other.listeners_, {});
        id_ = other.id_;
    }
    return *this;
}

ColorScale::Subscription::~Subscription() {
    reset();
}

void ColorScale::Subscription::reset() {
    if (const auto listeners = listeners_.lock()) {
        listeners->changed.erase(id_);
        listeners->valueChanged.erase(id_);
    }
    listeners_.reset();
}

ColorScale::ColorScale() : listeners_(std::make_shared<Listeners>()) {
    setClassNumber(kInitialClasses);
}

ColorScale::~ColorScale() = default;

const Clase& ColorScale::getClass(int index) const {
    return classes_.at(static_cast<std::size_t>(index));
}

void ColorScale::setClassColor(int index, Color color) {
    classes_.at(static_cast<std::size_t>(index)).color = color;
    raiseChanged();
}

std::optional<Failure> ColorScale::setClassValue(int index, double value) {
    Clase& edited = classes_.at(static_cast<std::size_t>(index));
    if (edited.lower != edited.upper) {
        return Failure{TextId::IntervalCannotChange, {}};
    }
    const double oldValue = edited.lower;
    edited.lower = value;
    edited.upper = value;
    boundsChanged();
    const auto alive = listeners_;
    Listeners::raise(alive->valueChanged, index, oldValue, value);
    return std::nullopt;
}

void ColorScale::degrade(Color c1, std::optional<Color> c2, Color c3, bool notify) {
    if (!c2) {
        degrade2(c1, c3, notify);
        return;
    }
    colorStart = c1;
    colorMiddle = c2;
    colorEnd = c3;
    classes_.front().color = c1;
    const int last = count() - 1;
    if (last >= 1) {
        const int middle = roundToInt32(last / 2.0 + 0.01);
        paint(classes_, Ramp(c1, *c2, middle), 1, middle);
        // With an even number of classes the second ramp paints over the middle colour.
        const int second = last % 2 == 0 ? middle + 1 : middle;
        paint(classes_, Ramp(*c2, c3, last + 1 - second), second, last);
    }
    if (notify) {
        raiseChanged();
    }
}

void ColorScale::degrade2(Color c1, Color c2, bool notify) {
    colorStart = c1;
    colorMiddle.reset();
    colorEnd = c2;
    classes_.front().color = c1;
    const int last = count() - 1;
    if (last > 0) {
        paint(classes_, Ramp(c1, c2, last), 1, last);
    }
    if (notify) {
        raiseChanged();
    }
}

void ColorScale::calcRanges(double min, double max, bool notify) {
    valueMin_ = min;
    valueMax_ = max;
    const double width = (max - min) / count();
    for (std::size_t i = 0; i < classes_.size(); ++i) {
        classes_[i].lower = width * static_cast<double>(i) + min;
        classes_[i].upper = width * static_cast<double>(i + 1) + min;
    }
    boundsChanged();
    if (notify) {
        raiseChanged();
    }
}

void ColorScale::addClass() {
    classes_.emplace_back();
    calcRanges(valueMin_, valueMax_, true);
    colorAgain();
    raiseChanged();
}

void ColorScale::quitClass() {
    if (count() == 1) {
        return;
    }
    classes_.pop_back();
    calcRanges(valueMin_, valueMax_, true);
    colorAgain();
    raiseChanged();
}

void ColorScale::addClassManual(double lower, double upper) {
    classes_.push_back({.color = {}, .lower = lower, .upper = upper});
    boundsChanged();
    colorAgain();
}

void ColorScale::setClassNumber(int n) {
    setClassNumberExt(n, valueMin_, valueMax_);
}

void ColorScale::setClassNumberExt(int n, double min, double max) {
    if (n < 1) {
        throw std::invalid_argument("a colour scale needs a class");
    }
    classes_.assign(static_cast<std::size_t>(n), Clase{});
    calcRanges(min, max, false);
    colorAgain();
    raiseChanged();
}

void ColorScale::clearClass(double lower, double upper) {
    classes_.assign(1, Clase{.color = {}, .lower = lower, .upper = upper});
    boundsChanged();
    colorAgain();
}

void ColorScale::loadFromSetList(const SetList& set, float tolerance) {
    if (set.count() == 0) {
        return;
    }
    classes_.clear();
    for (const double stored : set.getSet()) {
        const double value = static_cast<float>(stored);
        const double reach = value * tolerance;
        classes_.push_back({.color = {}, .lower = value - reach, .upper = reach + value});
    }
    boundsChanged();
    colorAgain();
    raiseChanged();
}

const Clase* ColorScale::getClassByValue(double value) const {
    return std::isnan(value) ? nullptr : &getClass(getClassIndexByValue(value));
}

int ColorScale::getClassIndexByValue(double value) const {
    if (!ascending_) {
        return scanForClass(value);
    }
    // Counting instead of stopping at the class: a branch on the value is guessed wrong half the
    // time, which costs more than looking at a whole block. Not-a-number is above nothing.
    const std::size_t size = classes_.size();
    if (size > kManyClasses) {
        const auto at =
            std::lower_bound(classes_.begin(), classes_.end(), value,
                             [](const Clase& clase, double v) { return clase.upper < v; });
        return std::min(static_cast<int>(at - classes_.begin()), count() - 1);
    }
    std::size_t below = 0;
    while (below + kBlock < size && classes_[below + kBlock - 1].upper < value) {
        below += kBlock;
    }
    const std::size_t end = std::min(below + kBlock, size);
    for (std::size_t i = below; i < end; ++i) {
        below += classes_[i].upper < value ? 1 : 0;
    }
    return static_cast<int>(std::min(below, size - 1));
}

int ColorScale::scanForClass(double value) const {
    if (std::isnan(value)) {
        return 0;
    }
    const auto found =
        std::find_if(classes_.begin(), classes_.end(),
                     [value](const Clase& candidate) { return candidate.upper >= value; });
    return std::min(static_cast<int>(found - classes_.begin()), count() - 1);
}

Color ColorScale::getColor(double value) const {
    return classes_[static_cast<std::size_t>(getClassIndexByValue(value))].color;
}

ColorScale::Subscription ColorScale::onChanged(std::function<void()> listener) {
    const int id = ++listeners_->lastId;
    listeners_->changed.emplace(id, std::move(listener));
    return {listeners_, id};
}

ColorScale::Subscription ColorScale::onClassValueChanged(ValueListener listener) {
    const int id = ++listeners_->lastId;
    listeners_->valueChanged.emplace(id, std::move(listener));
    return {listeners_, id};
}

ColorScale::Content ColorScale::content() const {
    return {classes_, valueMin_,      valueMax_,        colorStart, colorMiddle, colorEnd,
            unit,     allowClassEdit, allowValueChange, isDate,     openEnds};
}

void ColorScale::setContent(Content content) {
    classes_ = std::move(content.classes);
    valueMin_ = content.valueMin;
    valueMax_ = content.valueMax;
    colorStart = content.colorStart;
    colorMiddle = content.colorMiddle;
    colorEnd = content.colorEnd;
    unit = std::move(content.unit);
    allowClassEdit = content.allowClassEdit;
    allowValueChange = content.allowValueChange;
    isDate = content.isDate;
    openEnds = content.openEnds;
    boundsChanged();
    raiseChanged();
}

void ColorScale::boundsChanged() {
    ascending_ = std::is_sorted(classes_.begin(), classes_.end(),
                                [](const Clase& a, const Clase& b) { return a.upper < b.upper; });
}

void ColorScale::colorAgain() {
    degrade(colorStart, colorMiddle, colorEnd, false);
}

void ColorScale::raiseChanged() {
    const auto alive = listeners_;
    Listeners::raise(alive->changed);
}

}  // namespace campora
