// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/color.h"
#include "base/text_id.h"

namespace campora {

enum class MessageIcon { Plain, Information, Question, Exclamation, Error };
enum class Answer { Yes, No, Cancel };

/// One row of the file-type box of an open dialog: its caption and the endings ("*.rpt").
struct FileFilter {
    std::string caption;
    std::vector<std::string> patterns;
};

struct InputRequest {
    /// Which question it is.
    TextId prompt{};
    std::string caption;
    std::string proposed;
    /// The file that the question is about, shown under it; empty: none in particular.
    std::string file = {};
};

struct OpenRequest {
    std::string caption;
    /// Empty: wherever the platform places the dialog.
    std::string folder;
    std::vector<FileFilter> filters;
    /// More than one file may be chosen.
    bool several = false;
    /// Called with what is selected whenever that changes while the dialog is open; may be empty.
    std::function<void(const std::vector<std::string>& selected)> preview = {};
};

struct SaveRequest {
    std::string caption;
    std::string folder;
    /// Proposed file name; may be empty.
    std::string name;
    std::vector<FileFilter> filters;
};

struct SaveAnswer {
    /// With the first ending of the chosen filter when the user typed none. Empty: cancelled.
    std::string path;
    /// Index of the chosen filter.
    int filter = 0;
};

struct FolderRequest {
    std::string caption;
    std::string folder;
    /// What the chosen folder is for, in a line of its own; may be empty.
    std::string entry;
    /// The files that are shown in the folders; none without a pattern.
    FileFilter files;
};

/// A window that shows how far long work is; it closes when it is destroyed.
class Progress {
public:
    virtual ~Progress() = default;

    /// `percent`: 0 to 100. Lets pending events run. False when the user has cancelled.
    [[nodiscard]] virtual bool report(int percent) = 0;
};

/// What the program tells and asks the user: boxes in the window, options and standard error in the
/// batch program, scripted answers in tests.
class Dialogs {
public:
    virtual ~Dialogs() = default;

    virtual void message(std::string_view text, MessageIcon icon, std::string_view caption) = 0;
    [[nodiscard]] virtual bool askYesNo(std::string_view text, MessageIcon icon,
                                        std::string_view caption) = 0;
    [[nodiscard]] virtual Answer askYesNoCancel(std::string_view text, MessageIcon icon,
                                                std::string_view caption) = 0;
    /// The typed answer, which may be empty; none when the user cancels.
    [[nodiscard]] virtual std::optional<std::string> inputBox(const InputRequest& request) = 0;
    /// The chosen paths; none when the user cancels.
    [[nodiscard]] virtual std::vector<std::string> openFiles(const OpenRequest& request) = 0;
    [[nodiscard]] virtual SaveAnswer saveFile(const SaveRequest& request) = 0;
    /// The chosen folder; empty when the user cancels.
    [[nodiscard]] virtual std::string chooseFolder(const FolderRequest& request) = 0;
    /// None when the user cancels.
    [[nodiscard]] virtual std::optional<Color> chooseColor(Color current) = 0;
    /// Shows itself only when the work takes longer than half a second. Never null.
    [[nodiscard]] virtual std::unique_ptr<Progress> progress(std::string_view caption) = 0;
};

}  // namespace campora
