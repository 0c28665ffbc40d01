// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "support/scripted_platform.h"

#include <array>
#include <cstddef>

#include <gtest/gtest.h>

namespace campora {

namespace {

std::string_view iconName(MessageIcon icon) {
    constexpr std::array kNames = {"Plain", "Information", "Exclamation", "Error"};
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

std::string ScriptedDialogs::openFile(const OpenRequest& request) {
    opens.push_back(request);
    return nextAnswer(openAnswers, request.caption);
}

std::optional<std::string> MemorySettings::read(std::string_view key) const {
    const auto found = values.find(key);
    return found == values.end() ? std::nullopt : std::optional(found->second);
}

void MemorySettings::write(std::string_view key, std::string_view value) {
    values.insert_or_assign(std::string(key), std::string(value));
}

}  // namespace campora
