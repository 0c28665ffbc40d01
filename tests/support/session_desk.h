// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "app/session.h"
#include "support/named_file.h"
#include "support/recording_canvas.h"
#include "support/scripted_platform.h"
#include "support/scripted_window.h"
#include "support/temp_folder.h"
#include "support/work_files.h"

namespace campora {

/// A session on a scripted desktop, with a folder for its files.
struct SessionDesk {
    explicit SessionDesk(Language language = Language::Spanish)
        : session(canvas, window, {dialogs, settings, locale, clipboard, clock, classes, shell},
                  language, folder.path()) {}

    NamedFile& add(const std::string& name, double minX = -60) {
        auto file = std::make_unique<NamedFile>(name, minX);
        NamedFile& added = *file;
        File* const current = session.map().files().currentFile();
        session.map().addFile(std::move(file), false);
        session.map().files().setCurrentFile(current != nullptr ? current : &added);
        session.display().recalcGphBound();
        return added;
    }
    /// Opens files, in place of the others or beside them, and shows the whole map. How many were
    /// taken.
    std::size_t open(const std::vector<std::string>& paths, bool inPlace = false) {
        OpenManner manner;
        manner.inPlace = inPlace;
        const std::size_t taken = session.map().openAll(paths, manner).size();
        if (taken > 0) {
            session.display().showWhole();
        }
        return taken;
    }
    void addScale(NamedFile& file, double greatest) {
        file.scale = std::make_unique<ColorScale>();
        file.scale->setClassNumberExt(1, 0, greatest);
    }

    /// A report of three points in a row with these doses on one day.
    std::string report(const std::string& name, std::int32_t realTenths = 1000,
                       std::uint32_t serial = 0x6001) const {
        RptBytes bytes(1, serial);
        for (int i = 0; i < 3; ++i) {
            RptBytes::Record record;
            record.position = fixAt(10.0 * i, 0);
            record.realTenths[0] = realTenths + 10 * i;
            bytes.add(record);
        }
        return folder.write(name, bytes.bytes());
    }
    std::string track(const std::string& name, std::uint32_t flow, int points = 3,
                      const std::string& serial = "6001") const {
        TrackText text;
        text.serial = serial;
        for (int i = 0; i < points; ++i) {
            text.addPoint(100U * static_cast<std::uint32_t>(i), 0, flow, 20);
        }
        return folder.write(name, text.bytes());
    }

    [[nodiscard]] std::vector<std::string> listed() const {
        std::vector<std::string> names;
        for (const FileListRow& row : window.files) {
            names.push_back(row.name);
        }
        return names;
    }
    /// The names of the layers in the order of the last redraws.
    [[nodiscard]] std::string drawn() const {
        std::string names;
        for (const std::string& call : canvas.callsOf("text")) {
            const std::size_t quote = call.find('"');
            names += call.substr(quote + 1, call.size() - quote - 2) + " ";
        }
        return names;
    }
    [[nodiscard]] std::size_t redraws() const { return canvas.callsOf("refresh").size(); }

    TempFolder folder;
    RecordingCanvas canvas{{1000, 500}};
    ScriptedWindow window;
    ScriptedDialogs dialogs;
    MemorySettings settings;
    FixedLocale locale;
    MemoryClipboard clipboard;
    ScriptedShell shell;
    ScriptedClock clock;
    MemoryClasses classes;
    Session session;
};

}  // namespace campora
