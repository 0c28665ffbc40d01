// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "platform/classes_registry.h"
#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/settings_store.h"
#include "platform/shell.h"
#include "platform/user_locale.h"

namespace campora {

/// Writes down what the program says and answers its questions from queues, first answer first.
/// A question without an answer fails the test and is cancelled or gets No.
class ScriptedDialogs : public Dialogs {
public:
    std::deque<bool> yesNoAnswers;
    /// None: the user cancels.
    std::deque<std::optional<std::string>> inputAnswers;
    std::deque<Answer> answers;
    std::deque<std::vector<std::string>> openAnswers;
    /// Selections in the open dialog before it is answered.
    std::deque<std::vector<std::string>> openSelections;
    std::deque<SaveAnswer> saveAnswers;
    std::deque<std::string> folderAnswers;
    std::deque<std::optional<Color>> colorAnswers;
    /// Reports of progress after which the user cancels; none: never.
    std::optional<int> cancelAfter;

    /// "icon|caption|text" with the icon's name: Plain, Information, Question, Exclamation, Error.
    std::vector<std::string> messages;
    /// As `messages`.
    std::vector<std::string> questions;
    /// "number of the prompt|caption|proposed".
    std::vector<std::string> inputs;
    /// The files that they are about.
    std::vector<std::string> inputFiles;
    std::vector<OpenRequest> opens;
    std::vector<SaveRequest> saves;
    std::vector<FolderRequest> folders;
    /// The colours that were preselected.
    std::vector<Color> colors;

    void message(std::string_view text, MessageIcon icon, std::string_view caption) override {
        messages.push_back(box(icon, caption, text));
    }
    [[nodiscard]] bool askYesNo(std::string_view text, MessageIcon icon,
                                std::string_view caption) override {
        questions.push_back(box(icon, caption, text));
        return next(yesNoAnswers, questions.back());
    }
    [[nodiscard]] Answer askYesNoCancel(std::string_view text, MessageIcon icon,
                                        std::string_view caption) override {
        questions.push_back(box(icon, caption, text));
        return answers.empty() ? Answer::Cancel : next(answers, questions.back());
    }
    [[nodiscard]] std::optional<std::string> inputBox(const InputRequest& request) override {
        inputs.push_back(std::to_string(static_cast<int>(request.prompt)) + "|" + request.caption +
                         "|" + request.proposed);
        inputFiles.push_back(request.file);
        return next(inputAnswers, inputs.back());
    }
    [[nodiscard]] std::vector<std::string> openFiles(const OpenRequest& request) override {
        opens.push_back(request);
        for (; !openSelections.empty(); openSelections.pop_front()) {
            if (request.preview) {
                request.preview(openSelections.front());
            }
        }
        return next(openAnswers, request.caption);
    }
    [[nodiscard]] SaveAnswer saveFile(const SaveRequest& request) override {
        saves.push_back(request);
        return next(saveAnswers, request.caption);
    }
    [[nodiscard]] std::string chooseFolder(const FolderRequest& request) override {
        folders.push_back(request);
        return next(folderAnswers, request.caption);
    }
    [[nodiscard]] std::optional<Color> chooseColor(Color current) override {
        colors.push_back(current);
        return next(colorAnswers, "colour");
    }
    [[nodiscard]] std::unique_ptr<Progress> progress(std::string_view /*caption*/) override {
        return std::make_unique<Reports>(*this);
    }

private:
    class Reports final : public Progress {
    public:
        explicit Reports(ScriptedDialogs& dialogs) : dialogs_(dialogs) {}

        [[nodiscard]] bool report(int /*percent*/) override {
            ++count_;
            return !dialogs_.cancelAfter || count_ < *dialogs_.cancelAfter;
        }

    private:
        ScriptedDialogs& dialogs_;
        int count_ = 0;
    };

    static std::string box(MessageIcon icon, std::string_view caption, std::string_view text) {
        constexpr std::array kIcons = {"Plain", "Information", "Question", "Exclamation", "Error"};
        return std::string(kIcons.at(static_cast<std::size_t>(icon))) + "|" + std::string(caption) +
               "|" + std::string(text);
    }
    template <typename T>
    static T next(std::deque<T>& from, const std::string& question) {
        if (from.empty()) {
            ADD_FAILURE() << "unexpected question: " << question;
            return T{};
        }
        T answer = std::move(from.front());
        from.pop_front();
        return answer;
    }
};

/// A locale that does not depend on the machine.
class FixedLocale : public UserLocale {
public:
    explicit FixedLocale(char symbol = '.', std::string dateForm = "dd/mm/yyyy")
        : symbol_(symbol), dateForm_(std::move(dateForm)) {}

    [[nodiscard]] char decimalSymbol() const override { return symbol_; }
    [[nodiscard]] std::string shortDateForm() const override { return dateForm_; }
    [[nodiscard]] int languageNumber() const override { return language; }

    /// Spanish of Argentina.
    int language = 0x2C0A;

private:
    char symbol_;
    std::string dateForm_;
};

class MemorySettings : public SettingsStore {
public:
    std::map<std::string, std::string, std::less<>> values;

    [[nodiscard]] std::optional<std::string> read(std::string_view key) const override {
        const auto found = values.find(key);
        return found == values.end() ? std::nullopt : std::optional(found->second);
    }
    void write(std::string_view key, std::string_view value) override {
        values.insert_or_assign(std::string(key), std::string(value));
    }
};

class MemoryClipboard : public Clipboard {
public:
    std::string text;
    Picture picture;

    void setText(std::string_view newText) override { text = newText; }
    void setPicture(const Picture& newPicture) override { picture = newPicture; }
};

/// Time passes only while someone sleeps.
class ScriptedClock : public Clock {
public:
    std::uint32_t now = 0;
    /// All sleeps, in milliseconds.
    std::vector<std::uint32_t> sleeps;
    int events = 0;
    /// What the user does when events are processed; told how many times they have been.
    std::function<void(int)> onEvents;

    [[nodiscard]] std::uint32_t ticks() const override { return now; }
    void sleep(std::uint32_t milliseconds) override {
        sleeps.push_back(milliseconds);
        now += milliseconds;
    }
    void processEvents() override {
        ++events;
        if (onEvents) {
            onEvents(events);
        }
    }
    [[nodiscard]] Date today() const override { return {2018, 3, 5}; }
};

class ScriptedShell : public Shell {
public:
    /// What was opened, in order.
    std::vector<std::string> opened;
    /// Whether the system knows a program for it.
    bool succeeds = true;

    [[nodiscard]] bool open(std::string_view path) override {
        opened.emplace_back(path);
        return succeeds;
    }
};

class MemoryClasses : public ClassesRegistry {
public:
    std::map<std::string, std::string, std::less<>> values;
    bool finished = false;

    void setDefault(std::string_view key, std::string_view value) override {
        values.insert_or_assign(std::string(key), std::string(value));
    }
    void finish() override { finished = true; }
};

}  // namespace campora
