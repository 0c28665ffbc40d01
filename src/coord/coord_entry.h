// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "base/lon_lat.h"
#include "base/texts.h"
#include "coord/coord_functions.h"
#include "platform/user_locale.h"

namespace campora {

/// What a user types to name a position: degrees, minutes and seconds of latitude and longitude, a
/// sign for either, and the form that says which boxes there are.
class CoordEntry {
public:
    enum class Axis { Latitude, Longitude };
    enum class Box { LatDegrees, LatMinutes, LatSeconds, LongDegrees, LongMinutes, LongSeconds };
    static constexpr std::size_t kBoxes = 6;

    /// All boxes hold 0 and the positive signs are chosen. Both references are kept.
    CoordEntry(const Texts& texts, const UserLocale& locale, CoordType form);

    [[nodiscard]] CoordType form() const { return form_; }
    /// Boxes that the form hides are set to 0.
    void setForm(CoordType form);
    /// Fills boxes and signs with a position, in the present form.
    void setPoint(LonLat position);
    /// "." and "," become the user's decimal symbol; otherwise the text is kept as it is.
    void setText(Box box, std::string_view text);
    [[nodiscard]] const std::string& text(Box box) const { return texts_[index(box)]; }
    /// The negative sign turns the typed value round.
    void setNegative(Axis axis, bool negative);

    [[nodiscard]] bool isNegative(Axis axis) const {
        return axis == Axis::Latitude ? negativeLat_ : negativeLong_;
    }

    [[nodiscard]] bool isShown(Box box) const;
    /// Whether the box holds no number, or degrees that make the position lie outside of the globe.
    [[nodiscard]] bool isWrong(Box box) const { return wrong_[index(box)]; }
    /// None while a box is wrong.
    [[nodiscard]] std::optional<LonLat> getPoint() const;
    /// "Lat:" or "Long:" and the value as it was understood; without value while a box is wrong.
    [[nodiscard]] std::string readBack(Axis axis) const;

private:
    [[nodiscard]] static std::size_t index(Box box) { return static_cast<std::size_t>(box); }
    void update();
    void fill(std::size_t first, double degrees);
    /// The value of the three boxes from `first` on.
    [[nodiscard]] std::optional<double> value(std::size_t first, bool negative, double limit);

    const Texts& words_;
    const UserLocale& locale_;
    CoordType form_;
    std::array<std::string, kBoxes> texts_;
    std::array<bool, kBoxes> wrong_{};
    bool negativeLat_ = false;
    bool negativeLong_ = false;
    std::optional<double> lat_;
    std::optional<double> long_;
};

}  // namespace campora
