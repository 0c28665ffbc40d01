// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/texts.h"

#include <array>
#include <cstdint>

namespace campora {

namespace {

constexpr TextRow kRows[] = {
#define CAMPORA_TEXT(name, id, spanish, portuguese, english)                                       \
    {TextId::name, #name, spanish, portuguese, english},
#include "base/text_table.def"
#undef CAMPORA_TEXT
};

constexpr std::size_t kEndOfIds = 3500;

/// One more than the place of each text in `kRows`, by its number; 0 where there is none.
constexpr auto kPlaces = [] {
    std::array<std::uint16_t, kEndOfIds> places{};
    std::uint16_t place = 0;
    for (const TextRow& row : kRows) {
        places[static_cast<std::size_t>(row.id)] = ++place;
    }
    return places;
}();

}  // namespace

std::string_view Texts::operator()(TextId id) const {
    const auto number = static_cast<std::size_t>(id);
    const std::uint16_t place = number < kEndOfIds ? kPlaces[number] : std::uint16_t{0};
    if (place == 0) {
        return {};
    }
    const TextRow& row = kRows[place - 1];
    switch (language_) {
    case Language::Portuguese:
        return row.portuguese;
    case Language::English:
        return row.english;
    case Language::Spanish:
        break;
    }
    return row.spanish;
}

std::string Texts::format(TextId id, std::span<const std::string> arguments) const {
    const std::string_view form = (*this)(id);
    std::string text;
    for (std::size_t at = 0; at < form.size(); ++at) {
        const char digit = form[at] == '%' && at + 1 < form.size() ? form[at + 1] : '0';
        const auto place = static_cast<std::size_t>(digit - '1');
        if (digit >= '1' && digit <= '9' && place < arguments.size()) {
            text += arguments[place];
            ++at;
        } else {
            text.push_back(form[at]);
        }
    }
    return text;
}

std::string Texts::format(TextId id, std::initializer_list<std::string> arguments) const {
    return format(id, std::span(arguments.begin(), arguments.size()));
}

std::string Texts::sentence(const Failure& failure) const {
    std::vector<std::string> arguments = failure.arguments;
    for (const Failure& cause : failure.cause) {
        arguments.push_back(sentence(cause));
    }
    return format(failure.text, arguments);
}

std::span<const TextRow> textRows() {
    return kRows;
}

}  // namespace campora
