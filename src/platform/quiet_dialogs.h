// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/dialogs.h"

namespace campora {

class NoProgress final : public Progress {
public:
    [[nodiscard]] bool report(int /*percent*/) override { return true; }
};

/// Says nothing, gives an input box the answer that it proposes, No to every other question, and
/// cancels every dialog. For work that must not disturb the user: previews, measuring.
class QuietDialogs : public Dialogs {
public:
    void message(std::string_view /*text*/, MessageIcon /*icon*/,
                 std::string_view /*caption*/) override {}
    [[nodiscard]] bool askYesNo(std::string_view /*text*/, MessageIcon /*icon*/,
                                std::string_view /*caption*/) override {
        return false;
    }
    [[nodiscard]] Answer askYesNoCancel(std::string_view /*text*/, MessageIcon /*icon*/,
                                        std::string_view /*caption*/) override {
        return Answer::No;
    }
    [[nodiscard]] std::optional<std::string> inputBox(const InputRequest& request) override {
        return request.proposed;
    }
    [[nodiscard]] std::vector<std::string> openFiles(const OpenRequest& /*request*/) override {
        return {};
    }
    [[nodiscard]] SaveAnswer saveFile(const SaveRequest& /*request*/) override { return {}; }
    [[nodiscard]] std::string chooseFolder(const FolderRequest& /*request*/) override { return {}; }
    [[nodiscard]] std::optional<Color> chooseColor(Color /*current*/) override {
        return std::nullopt;
    }
    [[nodiscard]] std::unique_ptr<Progress> progress(std::string_view /*caption*/) override {
        return std::make_unique<NoProgress>();
    }
};

}  // namespace campora
