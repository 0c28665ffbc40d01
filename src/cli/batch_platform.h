// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <ostream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "app/session.h"
#include "cli/arguments.h"
#include "platform/quiet_dialogs.h"

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
    /// The maps of a prescription, one a question, in the order of its channels.
    [[nodiscard]] std::vector<std::string> openFiles(const OpenRequest& request) override;
    /// Shows nothing; what is under way is cancelled when the program is interrupted.
    [[nodiscard]] std::unique_ptr<Progress> progress(std::string_view caption) override;
    /// The remarks on a file that was opened, a line each.
    void note(const File& file, const Texts& texts);

protected:
    [[nodiscard]] const Arguments& arguments() const { return arguments_; }

private:
    const Arguments& arguments_;
    std::ostream& boxes_;
    std::size_t nextChannel_ = 0;
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

/// A run knows nothing of the settings of the user's window, and leaves them alone.
class NoSettings final : public SettingsStore {
public:
    [[nodiscard]] std::optional<std::string> read(std::string_view /*key*/) const override {
        return std::nullopt;
    }
    void write(std::string_view /*key*/, std::string_view /*value*/) override {}
};

class NoClipboard final : public Clipboard {
public:
    void setText(std::string_view /*text*/) override {}
    void setPicture(const Picture& /*picture*/) override {}
};

class NoWindow final : public MainWindowControls {
public:
    void setTitle(std::string_view /*title*/) override {}
    void setFileList(std::span<const FileListRow> /*rows*/,
                     std::optional<int> /*selected*/) override {}
    void setSummary(std::span<const SummaryRow> /*rows*/) override {}
    void setLegend(const LegendContent& /*legend*/) override {}
    void setViewControls(const ViewControls& /*controls*/) override {}
    void active(bool /*enabled*/, bool /*replayControls*/) override {}
    void commandsChanged() override {}
    void retranslate() override {}
    void setReplay(const ReplayState& /*state*/) override {}
    void setSpeedReadout(std::string_view /*text*/) override {}
    void setOverlay(const MapOverlay& /*overlay*/) override {}
    void setPosition(std::string_view /*text*/) override {}
    void setToolText(std::string_view /*text*/) override {}
    void setWorkStatus(std::string_view /*text*/) override {}
};

/// A run waits for nothing and has no user.
class NoClock final : public Clock {
public:
    [[nodiscard]] std::uint32_t ticks() const override { return 0; }
    void sleep(std::uint32_t /*milliseconds*/) override {}
    void processEvents() override {}
    [[nodiscard]] Date today() const override;
};

/// A run shows nothing.
class NoShell final : public Shell {
public:
    [[nodiscard]] bool open(std::string_view /*path*/) override { return true; }
};

/// A run registers nothing with the system.
class NoClasses final : public ClassesRegistry {
public:
    void setDefault(std::string_view /*key*/, std::string_view /*value*/) override {}
    void finish() override {}
};

/// A canvas without area, on which nothing shows.
class NoCanvas final : public MapCanvas {
public:
    [[nodiscard]] CanvasSize size() const override { return {}; }
    void clear() override {}
    void setBackgroundColor(Color /*color*/) override {}
    [[nodiscard]] Color backgroundColor() const override { return {}; }
    void setPenColor(Color /*color*/) override {}
    [[nodiscard]] Color penColor() const override { return {}; }
    void setPenWidth(int /*pixels*/) override {}
    void setPenStyle(PenStyle /*style*/) override {}
    [[nodiscard]] PenStyle penStyle() const override { return PenStyle::Solid; }
    void setFillColor(Color /*color*/) override {}
    void setFillStyle(FillStyle /*style*/) override {}
    void line(CanvasPoint /*from*/, CanvasPoint /*to*/, Color /*color*/) override {}
    void rectangle(CanvasPoint /*corner*/, CanvasPoint /*opposite*/, Color /*color*/,
                   RectangleStyle /*style*/) override {}
    void point(CanvasPoint /*at*/, Color /*color*/) override {}
    void polygon(std::span<const CanvasPoint> /*ring*/) override {}
    void polyPolygon(std::span<const std::span<const CanvasPoint>> /*rings*/) override {}
    void text(CanvasPoint /*at*/, std::string_view /*text*/, TextAnchor /*anchor*/,
              bool /*bold*/) override {}
    [[nodiscard]] CanvasSize textSize(std::string_view /*text*/, bool /*bold*/) const override {
        return {};
    }
    void paintPicture(MapPicture /*picture*/, CanvasPoint /*topLeft*/,
                      CanvasSize /*size*/) override {}
    [[nodiscard]] Picture picture() const override { return {}; }
    void takeSnapshot() override {}
    void paintSnapshot(CanvasPoint /*offset*/, double /*factor*/) override {}
    void refresh() override {}
    void setPointer(PointerShape /*shape*/) override {}
};

/// A session as the command line describes it, started, without a window.
class BatchSession {
public:
    /// `arguments`, `canvas` and `boxes` must outlive it.
    BatchSession(const Arguments& arguments, MapCanvas& canvas, std::ostream& boxes);

    [[nodiscard]] Session& session() { return session_; }
    /// Opens the files of the command line in order, without drawing them, and notes what is to be
    /// said about each; false when one was not taken, or only as far as it is sound, and when the
    /// program was interrupted.
    [[nodiscard]] bool openFiles();

private:
    const Arguments& arguments_;
    BatchDialogs dialogs_;
    BatchLocale locale_;
    NoSettings settings_;
    NoClipboard clipboard_;
    NoClock clock_;
    NoClasses classes_;
    NoShell shell_;
    NoWindow window_;
    Session session_;
};

}  // namespace campora
