// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/text_id.h"

namespace campora {

enum class MessageIcon { Plain, Information, Exclamation, Error };

/// One row of the file-type box of an open dialog: its caption and the endings ("*.rpt").
struct FileFilter {
    std::string caption;
    std::vector<std::string> patterns;
};

struct OpenRequest {
    std::string caption;
    /// Empty: wherever the platform places the dialog.
    std::string folder;
    std::vector<FileFilter> filters;
};

/// What the program tells and asks the user: boxes in the window, options and standard error in the
/// batch program, scripted answers in tests.
class Dialogs {
public:
    virtual ~Dialogs() = default;

    virtual void message(std::string_view text, MessageIcon icon, std::string_view caption) = 0;
    [[nodiscard]] virtual bool askYesNo(std::string_view text, MessageIcon icon,
                                        std::string_view caption) = 0;
    /// The typed answer; empty when the user cancels. `prompt` tells which question it is.
    [[nodiscard]] virtual std::string inputBox(TextId prompt, std::string_view caption,
                                               std::string_view proposed) = 0;
    /// The chosen path; empty when the user cancels.
    [[nodiscard]] virtual std::string openFile(const OpenRequest& request) = 0;
};

}  // namespace campora
