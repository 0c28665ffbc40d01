// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

#include "platform/dialogs.h"
#include "platform/user_locale.h"

namespace campora {

/// Counts what it is told and gives every question the answer that it proposes; Yes/No questions
/// get No. For measuring and fuzzing; needs no test framework.
class QuietDialogs : public Dialogs {
public:
    int messages = 0;

    void message(std::string_view /*text*/, MessageIcon /*icon*/,
                 std::string_view /*caption*/) override {
        ++messages;
    }
    [[nodiscard]] bool askYesNo(std::string_view /*text*/, MessageIcon /*icon*/,
                                std::string_view /*caption*/) override {
        return false;
    }
    [[nodiscard]] std::string inputBox(TextId /*prompt*/, std::string_view /*caption*/,
                                       std::string_view proposed) override {
        return std::string(proposed);
    }
    [[nodiscard]] std::string openFile(const OpenRequest& /*request*/) override { return {}; }
};

class PlainLocale : public UserLocale {
public:
    [[nodiscard]] char decimalSymbol() const override { return '.'; }
    [[nodiscard]] std::string shortDateForm() const override { return "dd/mm/yyyy"; }
};

}  // namespace campora
