// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/fresh_name.h"

#include <cstddef>
#include <random>

#include "base/numbers.h"

namespace campora {

namespace {

constexpr int kHalf = 8;  // digits of a random number
constexpr std::size_t kDigits = std::size_t{2} * kHalf;

}  // namespace

std::string freshName(const OwnNames& names) {
    std::random_device random;
    std::string name(names.begin);
    name += hexText(random(), kHalf);
    name += hexText(random(), kHalf);
    return name.append(names.end);
}

bool isOwnName(std::string_view name, const OwnNames& names) {
    return name.size() == names.begin.size() + kDigits + names.end.size() &&
           name.starts_with(names.begin) && name.ends_with(names.end) &&
           name.substr(names.begin.size(), kDigits).find_first_not_of("0123456789abcdefABCDEF") ==
               std::string_view::npos;
}

}  // namespace campora
