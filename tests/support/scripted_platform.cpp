// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "support/scripted_platform.h"

#include <array>
#include <cstddef>

#include <gtest/gtest.h>

namespace campora {

namespace {

std::string_view iconName(MessageIcon icon) {
    constexpr std::array kNames = {"Plain", "Information", "Question", "Exclamation",
                                      "Error"};
    return kNames.at(static_cast<std::size_t>(icon));
}

std::string joined(std::string_view a, std::string_view b, std::string_view c) {
    return std::string(a).append("|").append(b).append("|").append(c);
}

template <typename T>
T nextAnswer(std::deque<T>& answers, const std::string& question) {
    if (answers.empty()) {
        ADD_FAILURE() << "unexpected question: " << question;
        return T{};
    }
    T answer = answers.front();
    answers.pop_front();
    return answer;
}

/// Writes its percentages down with the dialogs that made it.
class ScriptedProgress final : public Progress {
public:
    ScriptedProgress(ScriptedDialogs& dialogs, std::size_t index)
        : dialogs_(dialogs), index_(index) {}

    [[nodiscard]] bool report(int percent) override {
        dialogs_.progresses.at(index_) += " " + std::to_string(percent);
        ++reports_;
        return !dialogs_.cancelAfter || reports_ < *dialogs_.cancelAfter;
    }

private:
    ScriptedDialogs& dialogs_;
    std::size_t index_;
    int reports_ = 0;
};

}  // namespace

void ScriptedDialogs::message(std::string_view text, MessageIcon icon, std::string_view caption) {
    messages.push_back(joined(iconName(icon), caption, text));
}

bool ScriptedDialogs::askYesNo(std::string_view text, MessageIcon icon, std::string_view caption) {
    questions.push_back(joined(iconName(icon), caption, text));
    return nextAnswer(yesNoAnswers, questions.back());
}

std::string ScriptedDialogs::inputBox(TextId prompt, std::string_view caption,
                                      std::string_view proposed) {
    inputs.push_back(joined(std::to_string(static_cast<int>(prompt)), caption, proposed));
    return nextAnswer(inputAnswers, inputs.back());
}

Answer ScriptedDialogs::askYesNoCancel(std::string_view text, MessageIcon icon,
                                       std::string_view caption) {
    questions.push_back(joined(iconName(icon), caption, text));
    return answers.empty() ? Answer::Cancel : nextAnswer(answers, questions.back());
}

std::vector<std::string> ScriptedDialogs::openFiles(const OpenRequest& request) {
    opens.push_back(request);
    for (; !openSelections.empty(); openSelections.pop_front()) {
        if (request.preview) {
            request.preview(openSelections.front());
        }
    }
    return nextAnswer(openAnswers, request.caption);
}

SaveAnswer ScriptedDialogs::saveFile(const SaveRequest& request) {
    saves.push_back(request);
    return nextAnswer(saveAnswers, request.caption);
}

std::string ScriptedDialogs::chooseFolder(const FolderRequest& request) {
    folders.push_back(request);
    return nextAnswer(folderAnswers, request.caption);
}

std::optional<Color> ScriptedDialogs::chooseColor(Color current) {
    colors.push_back(current);
    return nextAnswer(colorAnswers, "colour");
}

std::unique_ptr<Progress> ScriptedDialogs::progress(std::string_view caption) {
    progresses.emplace_back(std::string(caption) + ":");
    return std::make_unique<ScriptedProgress>(*this, progresses.size() - 1);
}

std::optional<std::string> MemorySettings::read(std::string_view key) const {
    const auto found = values.find(key);
    return found == values.end() ? std::nullopt : std::optional(found->second);
}

void MemorySettings::write(std::string_view key, std::string_view value) {
    values.insert_or_assign(std::string(key), std::string(value));
}

}  // namespace campora
