// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "app/open_map.h"
#include "base/dates.h"
#include "base/texts.h"
#include "cli/arguments.h"
#include "platform/desk.h"
#include "platform/quiet_dialogs.h"
#include "platform/user_locale.h"

namespace campora {

/// A line break inside a box as " | ", so that one box is one line, and nothing in it that steers
/// the terminal.
[[nodiscard]] std::string oneLine(std::string_view text);

/// Boxes go to a stream, one a line, questions too; the answers come from the command line.
class BatchDialogs : public QuietDialogs {
public:
    BatchDialogs(const Arguments& arguments, std::ostream& boxes)
        : arguments_(arguments), boxes_(boxes) {}

    void message(std::string_view text, MessageIcon icon, std::string_view caption) override;
    [[nodiscard]] bool askYesNo(std::string_view text, MessageIcon icon,
                                std::string_view caption) override;
    [[nodiscard]] Answer askYesNoCancel(std::string_view text, MessageIcon icon,
                                        std::string_view caption) override;
    [[nodiscard]] std::optional<std::string> inputBox(const InputRequest& request) override;
    /// Shows nothing; what is under way is cancelled when the program is interrupted.
    [[nodiscard]] std::unique_ptr<Progress> progress(std::string_view caption) override;
    /// The remarks on a file that was opened, a line each.
    void note(const File& file, const Texts& texts);

protected:
    [[nodiscard]] const Arguments& arguments() const { return arguments_; }

private:
    const Arguments& arguments_;
    std::ostream& boxes_;
};

class BatchLocale final : public UserLocale {
public:
    explicit BatchLocale(const Arguments& arguments) : arguments_(arguments) {}

    [[nodiscard]] char decimalSymbol() const override { return arguments_.decimalSymbol; }
    [[nodiscard]] std::string shortDateForm() const override { return arguments_.dateForm; }
    [[nodiscard]] int languageNumber() const override { return 0; }

private:
    const Arguments& arguments_;
};

/// What the batch program tells and asks, in the language and the signs of its command line.
class BatchDesk {
public:
    /// `arguments` and `boxes` must outlive it.
    BatchDesk(const Arguments& arguments, std::ostream& boxes)
        : dialogs_(arguments, boxes), locale_(arguments), texts_(arguments.language) {}

    [[nodiscard]] BatchDialogs& dialogs() { return dialogs_; }
    [[nodiscard]] Desk desk() { return {dialogs_, texts_, locale_}; }

private:
    BatchDialogs dialogs_;
    BatchLocale locale_;
    Texts texts_;
};

/// Goes on until the program is interrupted.
class UntilInterrupted final : public Progress {
public:
    [[nodiscard]] bool report(int percent) override;
};

/// An open map as the command line describes it.
class BatchMap {
public:
    /// `arguments` and `boxes` must outlive it.
    BatchMap(const Arguments& arguments, std::ostream& boxes);

    [[nodiscard]] OpenMap& map() { return map_; }
    [[nodiscard]] const Desk& desk() const { return map_.desk(); }
    /// Opens the files of the command line in order and notes what is to be said about each; false
    /// when one was not taken, or only as far as it is sound, and when the program was interrupted.
    [[nodiscard]] bool openFiles();

private:
    const Arguments& arguments_;
    BatchDesk desk_;
    OpenMap map_;
};

/// For the files that say when they were written.
[[nodiscard]] Date today();

}  // namespace campora
