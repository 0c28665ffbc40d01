// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "support/watched_platform.h"

#include <algorithm>
#include <iterator>

#include "base/typed_number.h"

namespace campora {

namespace {

/// What people type; the first place is for what is proposed.
constexpr std::string_view kTyped[] = {"", "", "16", "3,5", "0.5", "4", "8", "abc", "-2", "1e9"};

constexpr Language kLanguages[] = {Language::Spanish, Language::Portuguese, Language::English};

}  // namespace

void WatchedDialogs::say(std::string_view text, std::string_view caption) {
    checkText(text, "message");
    checkText(caption, "caption");
    if (text.empty() && caption.empty()) {
        stop("empty message");
    }
    ++said_;
    last_ = text;
}

void WatchedDialogs::message(std::string_view text, MessageIcon /*icon*/,
                             std::string_view caption) {
    say(text, caption);
}

bool WatchedDialogs::askYesNo(std::string_view text, MessageIcon /*icon*/,
                              std::string_view caption) {
    say(text, caption);
    agreed_ = agreed_ || set_.choice(0, 3);
    return set_.choice(0, 3);
}

Answer WatchedDialogs::askYesNoCancel(std::string_view text, MessageIcon /*icon*/,
                                      std::string_view caption) {
    say(text, caption);
    agreed_ = agreed_ || set_.choice(0, 3);
    return set_.choice(0, 3) ? Answer::Yes : set_.choice(0, 7) ? Answer::Cancel : Answer::No;
}

std::optional<std::string> WatchedDialogs::inputBox(const InputRequest& request) {
    say(Texts()(request.prompt), request.caption);
    checkText(request.proposed, "proposed answer");
    checkText(request.file, "file of a question");
    if (set_.choice(0, 7)) {
        return std::nullopt;
    }
    // A user who never learns gets what is proposed in the end.
    const std::size_t answer = ++inputs_ > 8 ? 0 : set_.pick(1, std::size(kTyped));
    const std::string typed = answer == 0 ? request.proposed : std::string(kTyped[answer]);
    const bool isWidth = request.prompt == TextId::AskSwath && typedNumber(typed).value_or(0) > 0;
    return isWidth && !width.empty() ? width : typed;
}

std::vector<std::string> WatchedDialogs::openFiles(const OpenRequest& request) {
    checkText(request.caption, "caption");
    return toOpen;
}

SaveAnswer WatchedDialogs::saveFile(const SaveRequest& request) {
    checkText(request.name, "proposed name");
    const std::string& pattern = request.filters.at(0).patterns.at(0);
    return {folder + "/saved" + std::to_string(++saves_) + pattern.substr(1), 0};
}

std::string WatchedDialogs::chooseFolder(const FolderRequest& request) {
    checkText(request.entry, "entry");
    return folder;
}

std::optional<Color> WatchedDialogs::chooseColor(Color current) {
    return current;
}

std::unique_ptr<Progress> WatchedDialogs::progress(std::string_view caption) {
    class Checked final : public Progress {
    public:
        [[nodiscard]] bool report(int percent) override {
            if (percent < 0 || percent > 100) {
                stop("progress", std::to_string(percent));
            }
            return true;
        }
    };
    checkText(caption, "progress");
    return std::make_unique<Checked>();
}

void WatchedWindow::setFileList(std::span<const FileListRow> rows, std::optional<int> selected) {
    for (const FileListRow& row : rows) {
        checkText(row.name, "list");
    }
    if (selected && (*selected < 0 || *selected >= static_cast<int>(rows.size()))) {
        stop("selected row", std::to_string(*selected));
    }
}

void WatchedWindow::setSummary(std::span<const SummaryRow> rows) {
    for (const SummaryRow& row : rows) {
        checkText(row.property, "summary");
        checkText(row.value, "summary");
        checkText(row.note, "note of the summary");
    }
}

void WatchedWindow::setLegend(const LegendContent& legend) {
    checkText(legend.unit, "legend");
    checkText(legend.remark, "remark of the legend");
    for (const auto* rows : {&legend.classes, &legend.reference}) {
        for (const LegendRow& row : *rows) {
            checkText(row.text, "legend");
        }
    }
}

void WatchedWindow::setReplay(const ReplayState& state) {
    if (state.position < 0 || state.position > std::max(state.maximum, 0)) {
        stop("replay beyond its end", std::to_string(state.position));
    }
}

WatchedSession::WatchedSession(const FileSet& set, MapCanvas& canvas,
                               const std::string& programFolder)
    : dialogs(set),
      locale(set),
      session(canvas, window, {dialogs, settings, locale, clipboard, clock, classes, shell},
              kLanguages[set.pick(0, 4) % std::size(kLanguages)], programFolder) {
    session.start();
    session.setCoordType(set.choice(0, 5) ? CoordType::DegreesMinutes : CoordType::Degrees);
}

}  // namespace campora

/// The fonts of the system are never given back.
extern "C" const char* __lsan_default_suppressions() {
    return "leak:libfontconfig\n";
}
