// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "model/file_properties.h"

#include <algorithm>
#include <cstddef>

namespace campora {

const std::string& FileProperties::property(int i) const {
    return entries_.at(static_cast<std::size_t>(i)).property;
}

std::string FileProperties::value(int i) const {
    return value_(i) + " " + unit_(i);
}

const std::string& FileProperties::value_(int i) const {
    return entries_.at(static_cast<std::size_t>(i)).value;
}

const std::string& FileProperties::unit_(int i) const {
    return entries_.at(static_cast<std::size_t>(i)).unit;
}

void FileProperties::addProperty(std::string_view property, std::string_view value,
                                 std::string_view unit) {
    entries_.push_back({std::string(property), std::string(value), std::string(unit)});
}

void FileProperties::setProperty(std::string_view property, std::string_view value,
                                 std::string_view unit) {
    const auto found =
        std::find_if(entries_.begin(), entries_.end(),
                     [property](const SummaryEntry& entry) { return entry.property == property; });
    if (found == entries_.end()) {
        addProperty(property, value, unit);
        return;
    }
    found->value = value;
    found->unit = unit;
}

}  // namespace campora
