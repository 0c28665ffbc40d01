// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/texts.h"
#include "desktop/platform/progress_windows.h"
#include "platform/dialogs.h"

class QWidget;

namespace campora {

/// Boxes over the main window. Each stands in front of all work under way, which waits for it; the
/// pointer is an arrow over it.
class QtDialogs final : public Dialogs {
public:
    /// The window over which the boxes stand and the words of their prompts; both outlive this.
    void attach(QWidget& window, const Texts& texts);

    void message(std::string_view text, MessageIcon icon, std::string_view caption) override;
    /// No is the default and the answer of Esc.
    [[nodiscard]] bool askYesNo(std::string_view text, MessageIcon icon,
                                std::string_view caption) override;
    [[nodiscard]] std::optional<std::string> inputBox(const InputRequest& request) override;
    [[nodiscard]] Answer askYesNoCancel(std::string_view text, MessageIcon icon,
                                        std::string_view caption) override;
    [[nodiscard]] std::vector<std::string> openFiles(const OpenRequest& request) override;
    [[nodiscard]] SaveAnswer saveFile(const SaveRequest& request) override;
    [[nodiscard]] std::string chooseFolder(const FolderRequest& request) override;
    [[nodiscard]] std::optional<Color> chooseColor(Color current) override;
    [[nodiscard]] std::unique_ptr<Progress> progress(std::string_view caption) override;

private:
    /// The window that a new box stands over: a dialog that is open already, else the main window.
    [[nodiscard]] QWidget* owner() const;

    ProgressWindows progress_;
    QWidget* window_ = nullptr;
    const Texts* texts_ = nullptr;
};

}  // namespace campora
