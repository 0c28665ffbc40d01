// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/color.h"
#include "base/failure.h"
#include "base/text_id.h"
#include "colour/set_list.h"

namespace campora {

/// A class of a colour scale: an interval of values, or one value when both bounds are equal.
struct Clase {
    Color color;
    double lower = 0;
    double upper = 0;

    bool operator==(const Clase&) const = default;
};

/// Maps a number (a dose, an error, a day number) to a colour through ascending classes.
/// There is always at least one class. Bad indices throw `std::out_of_range`, class numbers below 1
/// `std::invalid_argument`; nothing has changed then.
class ColorScale {
    struct Listeners;

public:
    /// Keeps a listener registered while it lives; it may outlive the scale.
    class Subscription {
    public:
        Subscription() = default;
        Subscription(Subscription&&) noexcept = default;
        Subscription& operator=(Subscription&& other) noexcept;
        Subscription(const Subscription&) = delete;
        Subscription& operator=(const Subscription&) = delete;
        ~Subscription();

        void reset();

    private:
        friend class ColorScale;
        Subscription(std::weak_ptr<Listeners> listeners, int id);

        std::weak_ptr<Listeners> listeners_;
        int id_ = 0;
    };

    /// `index`: the class; its single value changed from `oldValue` to `newValue`.
    using ValueListener = std::function<void(int index, double oldValue, double newValue)>;

    /// Everything but the listeners, for putting a scale back.
    struct Content {
        std::vector<Clase> classes;
        double valueMin = 0;
        double valueMax = 0;
        Color colorStart;
        std::optional<Color> colorMiddle;
        Color colorEnd;
        std::string unit;
        bool allowClassEdit = true;
        bool allowValueChange = false;
        bool isDate = false;
        bool openEnds = false;
    };

    /// Six classes over 0 to 100 from yellow over green to red.
    ColorScale();
    ColorScale(const ColorScale&) = delete;
    ColorScale& operator=(const ColorScale&) = delete;
    ~ColorScale();

    Color colorStart = Color::rgb(255, 255, 0);
    /// None: a ramp of two colours.
    std::optional<Color> colorMiddle = Color::rgb(0, 255, 0);
    Color colorEnd = Color::rgb(255, 0, 0);
    /// Unit shown beside the values.
    std::string unit;
    bool allowClassEdit = true;
    bool allowValueChange = false;
    TextId valueChangeCaption = TextId::ChangeValue;
    /// The values are day numbers.
    bool isDate = false;
    /// There are values beyond the extremes, which take the first and the last class.
    bool openEnds = false;

    [[nodiscard]] Content content() const;
    /// `content` must come from a scale.
    void setContent(Content content);

    [[nodiscard]] double valueMin() const { return valueMin_; }
    [[nodiscard]] double valueMax() const { return valueMax_; }
    [[nodiscard]] int count() const { return static_cast<int>(classes_.size()); }
    [[nodiscard]] const Clase& getClass(int index) const;
    [[nodiscard]] const std::vector<Clase>& classes() const { return classes_; }

    void setClassColor(int index, Color color);
    /// Gives a single-value class another value; why not, of an interval.
    [[nodiscard]] std::optional<Failure> setClassValue(int index, double value);

    // `notify`: whether listeners are told. Those without it tell them unless they say otherwise.
    /// Gradation: colours all classes in a ramp from `c1` over `c2` to `c3`, and keeps these for
    /// classes to come. Without `c2` as `degrade2`.
    void degrade(Color c1, std::optional<Color> c2, Color c3, bool notify);
    /// The same in a ramp of two colours.
    void degrade2(Color c1, Color c2, bool notify);
    /// Makes the classes equally wide from `min` to `max`, which are the extremes from now on.
    void calcRanges(double min, double max, bool notify);
    /// One class more between the same extremes. Tells the listeners twice.
    void addClass();
    /// Takes the last class out; the others share the extremes. A single class stays.
    void quitClass();
    /// Appends a class, whose bounds are above those of the last one. Tells nobody.
    void addClassManual(double lower, double upper);
    /// So many new classes between the same extremes, or between others.
    void setClassNumber(int n);
    void setClassNumberExt(int n, double min, double max);
    /// Leaves a single class with these bounds; the extremes stay. Tells nobody.
    void clearClass(double lower, double upper);
    /// One class a value, from value - value * tolerance to value + value * tolerance.
    /// An empty set changes nothing.
    void loadFromSetList(const SetList& set, float tolerance);

    /// The first class whose upper bound reaches `value`; the last one for values above all; none
    /// only for not-a-number.
    [[nodiscard]] const Clase* getClassByValue(double value) const;
    [[nodiscard]] int getClassIndexByValue(double value) const;
    /// Colour of the class of `value`; not-a-number takes that of class 0.
    [[nodiscard]] Color getColor(double value) const;

    /// Classes, bounds or colours changed.
    [[nodiscard]] Subscription onChanged(std::function<void()> listener);
    [[nodiscard]] Subscription onClassValueChanged(ValueListener listener);

private:
    void boundsChanged();
    [[nodiscard]] int scanForClass(double value) const;
    void colorAgain();
    void raiseChanged();

    std::vector<Clase> classes_;
    double valueMin_ = 0;
    double valueMax_ = 100;
    /// Upper bounds never fall from one class to the next: lookups may skip classes.
    bool ascending_ = true;
    std::shared_ptr<Listeners> listeners_;
};

}  // namespace campora
