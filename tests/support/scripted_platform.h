// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/clipboard.h"
#include "platform/dialogs.h"
#include "platform/settings_store.h"
#include "platform/user_locale.h"

namespace campora {

/// Writes down what the program says and answers its questions from queues, first answer first.
/// A question without an answer fails the test and gets No or an empty answer.
class ScriptedDialogs : public Dialogs {
public:
    std::deque<bool> yesNoAnswers;
    std::deque<std::string> inputAnswers;
    std::deque<std::string> openAnswers;

    /// "icon|caption|text" with the icon's name: Plain, Information, Exclamation, Error.
    std::vector<std::string> messages;
    /// As `messages`.
    std::vector<std::string> questions;
    /// "number of the prompt|caption|proposed".
    std::vector<std::string> inputs;
    std::vector<OpenRequest> opens;

    void message(std::string_view text, MessageIcon icon, std::string_view caption) override;
    [[nodiscard]] bool askYesNo(std::string_view text, MessageIcon icon,
                                std::string_view caption) override;
    [[nodiscard]] std::string inputBox(TextId prompt, std::string_view caption,
                                       std::string_view proposed) override;
    [[nodiscard]] std::string openFile(const OpenRequest& request) override;
};

/// A locale that does not depend on the machine.
class FixedLocale : public UserLocale {
public:
    explicit FixedLocale(char symbol = '.', std::string dateForm = "dd/mm/yyyy")
        : symbol_(symbol), dateForm_(std::move(dateForm)) {}

    [[nodiscard]] char decimalSymbol() const override { return symbol_; }
    [[nodiscard]] std::string shortDateForm() const override { return dateForm_; }

private:
    char symbol_;
    std::string dateForm_;
};

class MemorySettings : public SettingsStore {
public:
    std::map<std::string, std::string, std::less<>> values;

    [[nodiscard]] std::optional<std::string> read(std::string_view key) const override;
    void write(std::string_view key, std::string_view value) override;
};

class MemoryClipboard : public Clipboard {
public:
    std::string text;

    void setText(std::string_view newText) override { text = newText; }
};

}  // namespace campora
