// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

#include "base/failure.h"
#include "base/text_id.h"

namespace campora {

enum class Language { Spanish, Portuguese, English };

/// The interface texts in one language, which can be changed while the program runs.
class Texts {
public:
    explicit Texts(Language language = Language::Spanish) : language_(language) {}

    [[nodiscard]] Language language() const { return language_; }
    void setLanguage(Language language) { language_ = language; }

    [[nodiscard]] std::string_view operator()(TextId id) const;

    /// The text with %1 to %9 replaced by the arguments; an argument that holds "%1" stays as it
    /// is, and so does a place without an argument.
    [[nodiscard]] std::string format(TextId id, std::span<const std::string> arguments) const;
    [[nodiscard]] std::string format(TextId id, std::initializer_list<std::string> arguments) const;
    /// The failure in words, its causes included.
    [[nodiscard]] std::string sentence(const Failure& failure) const;

private:
    Language language_;
};

/// One row of the table, for tests and tools.
struct TextRow {
    TextId id{};
    std::string_view name;
    std::string_view spanish;
    std::string_view portuguese;
    std::string_view english;
};

/// All rows, in ascending order of id.
[[nodiscard]] std::span<const TextRow> textRows();

}  // namespace campora
