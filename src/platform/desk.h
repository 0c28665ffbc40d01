// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/failure.h"
#include "base/texts.h"
#include "platform/dialogs.h"
#include "platform/user_locale.h"

namespace campora {

/// The one way to speak to a person: boxes, and the language and the signs in which they are
/// written. What it refers to outlives it.
struct Desk {
    Dialogs& dialogs;
    const Texts& texts;
    const UserLocale& locale;
    /// Stands over the boxes.
    TextId caption = TextId::ProgramName;

    void tell(std::string_view text, MessageIcon icon = MessageIcon::Exclamation) const;
    void tell(const Failure& failure, MessageIcon icon = MessageIcon::Exclamation) const;
    /// Something that was asked for could not be done.
    void tellError(const Failure& failure) const;
    /// A file cannot be read, or is none of those that the program opens.
    void tellWrongFile(const Failure& failure) const;
    /// Yes or no.
    [[nodiscard]] bool ask(std::string_view question,
                           MessageIcon icon = MessageIcon::Exclamation) const;
    /// Yes, no or neither.
    [[nodiscard]] Answer askOrCancel(std::string_view question,
                                     MessageIcon icon = MessageIcon::Exclamation) const;
    /// The typed answer; none when the user cancels. `file`: what the question is about.
    [[nodiscard]] std::optional<std::string> askText(TextId prompt, std::string_view proposed,
                                                     std::string_view file = {}) const;

    [[nodiscard]] char decimalSymbol() const { return locale.decimalSymbol(); }
    /// The same with another text over the boxes.
    [[nodiscard]] Desk titled(TextId other) const { return {dialogs, texts, locale, other}; }
    /// The same with other boxes.
    [[nodiscard]] Desk with(Dialogs& others) const { return {others, texts, locale, caption}; }
};

}  // namespace campora
