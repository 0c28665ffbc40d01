// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace campora {

/// The distinct values of one numeric column or channel, with totals of every value added.
/// Not-a-number has no place in an order: adding it does nothing. Reading puts in order what was
/// added since: the first reader after an addition must be alone.
class SetList {
public:
    /// Adds to the totals and, unless an equal value is there, to the values, kept ascending.
    void addDosis(double value);
    /// The older rule: a linear walk that keeps the values descending. Do not mix the two on one
    /// set.
    void addDosisOld(double value);

    /// The distinct values in their stored order.
    [[nodiscard]] const std::vector<double>& getSet() const;
    /// Number of distinct values.
    [[nodiscard]] int count() const { return static_cast<int>(getSet().size()); }
    /// Sum of all values added, repeats included.
    [[nodiscard]] double sum() const { return sum_; }

    /// Mean of all values added; 0 for an empty set.
    [[nodiscard]] float getRealAverage() const;
    /// Mean of the distinct values, with every partial sum rounded to a whole number (halves to
    /// even); 0 for an empty set.
    [[nodiscard]] float getAverage() const;

private:
    /// False for not-a-number, which is left out.
    [[nodiscard]] bool addToTotals(double value);

    /// Takes the values that wait behind the sorted ones in among them.
    void sortIn() const;

    mutable std::vector<double> values_;
    /// So many values, from the first on, are in order and distinct.
    mutable std::size_t sorted_ = 0;
    double sum_ = 0;
    std::int32_t added_ = 0;
};

}  // namespace campora
