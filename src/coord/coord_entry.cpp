// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "coord/coord_entry.h"

#include <algorithm>
#include <cmath>

#include "base/numbers.h"
#include "base/text.h"

namespace campora {

namespace {

constexpr std::size_t kBoxesAnAxis = 3;
/// Parts of a degree, and of a minute or second, that are typed at the finest: hundredths of a
/// millimetre.
constexpr double kFinestDegree = 1e10;
constexpr double kFinestMinute = 1e8;
/// In degrees. Keeps a whole minute from coming out as 59.99999999 seconds of the one before.
constexpr double kNudge = 5e-13;

/// The number that the whole text is: a sign, digits and a decimal symbol, nothing else. A lone
/// decimal symbol, which is what a number looks like while it is typed, is 0.
std::optional<double> wholeNumber(std::string_view text, char decimalSymbol) {
    text = trim(text);
    std::string_view digits = text;
    if (digits.starts_with('-') || digits.starts_with('+')) {
        digits.remove_prefix(1);
    }
    const auto symbols = std::count(digits.begin(), digits.end(), decimalSymbol);
    const auto figures = std::count_if(digits.begin(), digits.end(), isDigit);
    if (symbols > 1 || symbols + figures != static_cast<std::ptrdiff_t>(digits.size())) {
        return std::nullopt;
    }
    if (figures == 0) {
        return symbols == 1 ? std::optional(0.0) : std::nullopt;
    }
    return leadingNumber(text, decimalSymbol);
}

/// Without the digits that taking degrees apart leaves behind the last one that counts.
std::string shortText(double value, double finest, char decimalSymbol) {
    return numberText(roundHalfEven(value * finest) / finest, decimalSymbol);
}

}  // namespace

CoordEntry::CoordEntry(const Texts& texts, const UserLocale& locale, CoordType form)
    : words_(texts), locale_(locale), form_(form) {
    texts_.fill("0");
    update();
}

void CoordEntry::setForm(CoordType form) {
    form_ = form;
    update();
}

void CoordEntry::setPoint(LonLat position) {
    negativeLat_ = position.y < 0;
    negativeLong_ = position.x < 0;
    fill(0, std::fabs(position.y));
    fill(kBoxesAnAxis, std::fabs(position.x));
    update();
}

void CoordEntry::fill(std::size_t first, double degrees) {
    std::array<double, kBoxesAnAxis> parts{degrees, 0, 0};
    if (form_ == CoordType::DegreesMinutes) {
        const DegreesMinutes split = toDegreesMinutes(degrees + kNudge);
        parts = {split.degrees, split.minutes, 0};
    } else if (form_ == CoordType::DegreesMinutesSeconds) {
        const DegreesMinutesSeconds split = toDegreesMinutesSeconds(degrees + kNudge);
        parts = {split.degrees, split.minutes, split.seconds};
    }
    for (std::size_t i = 0; i < kBoxesAnAxis; ++i) {
        texts_[first + i] =
            shortText(parts[i], i == 0 ? kFinestDegree : kFinestMinute, locale_.decimalSymbol());
    }
}

void CoordEntry::setText(Box box, std::string_view text) {
    std::string& kept = texts_[index(box)];
    kept = text;
    const char symbol = locale_.decimalSymbol();
    std::replace(kept.begin(), kept.end(), symbol == ',' ? '.' : ',', symbol);
    update();
}

void CoordEntry::setNegative(Axis axis, bool negative) {
    (axis == Axis::Latitude ? negativeLat_ : negativeLong_) = negative;
    update();
}

bool CoordEntry::isShown(Box box) const {
    switch (index(box) % kBoxesAnAxis) {
    case 0:
        return true;
    case 1:
        return form_ != CoordType::Degrees;
    default:
        return form_ == CoordType::DegreesMinutesSeconds;
    }
}

std::optional<LonLat> CoordEntry::getPoint() const {
    return lat_ && long_ ? std::optional(LonLat{*long_, *lat_}) : std::nullopt;
}

std::string CoordEntry::readBack(Axis axis) const {
    const bool isLatitude = axis == Axis::Latitude;
    std::string shown(words_(isLatitude ? TextId::Latitude : TextId::Longitude));
    if (const std::optional<double> degrees = isLatitude ? lat_ : long_) {
        shown += "   " + formatCoord(*degrees, form_);
    }
    return shown;
}

void CoordEntry::update() {
    for (std::size_t i = 0; i < kBoxes; ++i) {
        if (!isShown(static_cast<Box>(i))) {
            texts_[i] = "0";
        }
    }
    lat_ = value(0, negativeLat_, kPole);
    long_ = value(kBoxesAnAxis, negativeLong_, kDateLine);
}

std::optional<double> CoordEntry::value(std::size_t first, bool negative, double limit) {
    std::array<double, kBoxesAnAxis> parts{};
    bool numbers = true;
    for (std::size_t i = 0; i < kBoxesAnAxis; ++i) {
        const std::optional<double> part = wholeNumber(texts_[first + i], locale_.decimalSymbol());
        wrong_[first + i] = !part;
        numbers = numbers && part;
        parts[i] = part.value_or(0);
    }
    if (!numbers) {
        return std::nullopt;
    }
    const double degrees = fromDegreesMinutesSeconds(parts[0], parts[1], parts[2]);
    if (std::fabs(degrees) > limit) {
        wrong_[first] = true;
        return std::nullopt;
    }
    return negative ? -degrees : degrees;
}

}  // namespace campora
