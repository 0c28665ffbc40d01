// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "app/session.h"
#include "platform/dialogs.h"
#include "support/file_set.h"
#include "support/stop.h"

namespace campora {

/// A user whose answers are choices of the input; every text that is shown is checked.
class WatchedDialogs final : public Dialogs {
public:
    explicit WatchedDialogs(const FileSet& set) : set_(set) {}

    /// Where files are saved; one name after another.
    std::string folder;
    /// Typed where a width is asked for, in place of other numbers; empty: as the input chooses.
    std::string width;
    /// What the open dialog answers.
    std::vector<std::string> toOpen;

    /// Messages and questions so far.
    [[nodiscard]] int said() const { return said_; }
    [[nodiscard]] bool agreed() const { return agreed_; }
    [[nodiscard]] const std::string& lastText() const { return last_; }

    void message(std::string_view text, MessageIcon icon, std::string_view caption) override;
    [[nodiscard]] bool askYesNo(std::string_view text, MessageIcon icon,
                                std::string_view caption) override;
    [[nodiscard]] Answer askYesNoCancel(std::string_view text, MessageIcon icon,
                                        std::string_view caption) override;
    [[nodiscard]] std::optional<std::string> inputBox(const InputRequest& request) override;
    [[nodiscard]] std::vector<std::string> openFiles(const OpenRequest& request) override;
    [[nodiscard]] SaveAnswer saveFile(const SaveRequest& request) override;
    [[nodiscard]] std::string chooseFolder(const FolderRequest& request) override;
    [[nodiscard]] std::optional<Color> chooseColor(Color current) override;
    [[nodiscard]] std::unique_ptr<Progress> progress(std::string_view caption) override;

private:
    void say(std::string_view text, std::string_view caption);

    const FileSet& set_;
    int said_ = 0;
    int inputs_ = 0;
    int saves_ = 0;
    bool agreed_ = false;
    std::string last_;
};

class WatchedWindow final : public MainWindowControls {
public:
    void setTitle(std::string_view title) override { checkText(title, "title"); }
    void setFileList(std::span<const FileListRow> rows, std::optional<int> selected) override;
    void setSummary(std::span<const SummaryRow> rows) override;
    void setLegend(const LegendContent& legend) override;
    void setViewControls(const ViewControls& controls) override {
        checkText(controls.scaleLabel, "scale");
    }
    void active(bool /*enabled*/, bool /*replayControls*/) override {}
    void commandsChanged() override {}
    void retranslate() override {}
    void setReplay(const ReplayState& state) override;
    void setSpeedReadout(std::string_view text) override { checkText(text, "speed"); }
    void setOverlay(const MapOverlay& overlay) override {
        for (const MapShape& shape : overlay) {
            if (const auto* const plate = std::get_if<TextPlate>(&shape)) {
                checkText(plate->text, "information");
            }
        }
    }
    void setPosition(std::string_view text) override { checkText(text, "position"); }
    void setToolText(std::string_view text) override { checkText(text, "tool text"); }
    void setWorkStatus(std::string_view text) override { checkText(text, "remark"); }
};

class WatchedClipboard final : public Clipboard {
public:
    void setText(std::string_view text) override { checkText(text, "clipboard"); }
    void setPicture(const Picture& /*picture*/) override {}
};

/// Time that flies, so that a replay waits for nothing.
class FastClock final : public Clock {
public:
    [[nodiscard]] std::uint32_t ticks() const override { return now_ += 1000; }
    void sleep(std::uint32_t milliseconds) override { now_ += milliseconds; }
    void processEvents() override {}
    [[nodiscard]] Date today() const override { return {2018, 3, 5}; }

private:
    mutable std::uint32_t now_ = 0;
};

class ChosenLocale final : public UserLocale {
public:
    explicit ChosenLocale(const FileSet& set) : comma_(set.choice(0, 2)) {}

    [[nodiscard]] char decimalSymbol() const override { return comma_ ? ',' : '.'; }
    [[nodiscard]] std::string shortDateForm() const override {
        return comma_ ? "dd/mm/yyyy" : "m-d-yy";
    }
    [[nodiscard]] int languageNumber() const override { return 0; }

private:
    bool comma_;
};

struct NoSettings final : SettingsStore {
    [[nodiscard]] std::optional<std::string> read(std::string_view /*key*/) const override {
        return std::nullopt;
    }
    void write(std::string_view /*key*/, std::string_view /*value*/) override {}
};

struct NoShell final : Shell {
    [[nodiscard]] bool open(std::string_view /*path*/) override { return true; }
};

struct NoClasses final : ClassesRegistry {
    void setDefault(std::string_view /*key*/, std::string_view /*value*/) override {}
    void finish() override {}
};

/// A started session before such a user, on a canvas.
struct WatchedSession {
    WatchedSession(const FileSet& set, MapCanvas& canvas, const std::string& programFolder);

    WatchedDialogs dialogs;
    WatchedWindow window;
    ChosenLocale locale;
    NoSettings settings;
    WatchedClipboard clipboard;
    FastClock clock;
    NoClasses classes;
    NoShell shell;
    Session session;
};

}  // namespace campora
