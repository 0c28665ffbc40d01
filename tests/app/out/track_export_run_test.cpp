// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/out/track_export_run.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "base/paths.h"
#include "support/session_desk.h"

namespace campora {
namespace {

using Names = std::vector<std::string>;

struct TrackExportRunTest : testing::Test, SessionDesk {
    TrackExportRunTest() {
        session.start();
        run.onDone = [this](const std::string& line, const TrackExportOutcome& /*outcome*/) {
            done.push_back(line);
        };
    }
    [[nodiscard]] bool isThere(std::string_view name) const {
        return std::filesystem::exists(nativePath(folder.file(name)));
    }

    TrackExportRun run{session.map()};
    Names begun;
    Names done;
};

TEST_F(TrackExportRunTest, StoppingEndsTheRunAfterThePresentFile) {
    const Names paths{track("a.nbr", 50), track("b.nbr", 50), track("c.nbr", 50)};
    run.onBegin = [this](const std::string& line) {
        begun.push_back(line);
        if (begun.size() == 2) {
            EXPECT_TRUE(run.isRunning());
            EXPECT_FALSE(run.exportList({})) << "one run at a time";
            run.stop();
        }
    };
    EXPECT_FALSE(run.exportList(paths));
    EXPECT_EQ(done.size(), 2U);
    EXPECT_EQ(
        dialogs.messages,
        Names{"Information|Campora|Se canceló la exportación. No se exportaron:\n" + paths[2]});
    EXPECT_FALSE(run.isRunning());
    EXPECT_TRUE(isThere("b.shp"));
    EXPECT_FALSE(isThere("c.shp"));
}

TEST_F(TrackExportRunTest, OneFileGoesWhereItIsWantedAndWhatCameOfItIsSaid) {
    const std::string source = track("a.nbr", 50);
    EXPECT_TRUE(run.exportFiles(source, folder.file("otra.shp")));
    EXPECT_TRUE(isThere("otra.dbf"));
    EXPECT_TRUE(run.exportFiles(source, folder.file("sin final 3.5")));
    EXPECT_TRUE(isThere("sin final 3.5.shp"));
    EXPECT_FALSE(run.exportFiles(source, folder.file("gone/otra.shp")));
    EXPECT_FALSE(run.exportFiles(folder.file("gone.nbr"), folder.file("x.shp")));
    ASSERT_EQ(dialogs.messages.size(), 4U);
    EXPECT_EQ(dialogs.messages[0], "Information|Campora|Archivo exportado correctamente.");
    EXPECT_TRUE(dialogs.messages[2].starts_with(
        "Exclamation|Campora|Se ha producido un error en la exportaci\u00f3n.\r\n"
        "No se puede guardar el archivo "))
        << dialogs.messages[2];
    EXPECT_EQ(dialogs.messages[3],
              "Exclamation|Campora|Se ha producido un error en la exportaci\u00f3n.\r\n"
              "No se puede leer el archivo " +
                  folder.file("gone.nbr") + ": no existe");
}

}  // namespace
}  // namespace campora
