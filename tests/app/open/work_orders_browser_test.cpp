// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/open/work_orders_browser.h"

#include <filesystem>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "base/paths.h"
#include "support/session_desk.h"

namespace campora {
namespace {

using ::testing::ElementsAre;

using Names = std::vector<std::string>;

/// A card with order 15 of two works and a work without a number, and an open report.
struct WorkOrdersBrowserTest : testing::Test, SessionDesk {
    std::string card = folder.file("card");

    void SetUp() override {
        session.start();
        ASSERT_TRUE(open({report("abierto.rpt")}, true));
        writeTrack("card/log1.nbr", "15", "6001");
        writeTrack("card/log2.nbr", "15", "6002");
        writeTrack("card/log3.nbr", "0", "6003");
    }
    void writeTrack(const std::string& name, const std::string& order, const std::string& serial,
                    int points = 3) const {
        TrackText track;
        track.order = order;
        track.serial = serial;
        for (int i = 0; i < points; ++i) {
            track.addPoint(100U * static_cast<std::uint32_t>(i), 0, 5, 20);
        }
        folder.write(name, track.bytes());
    }
};

TEST_F(WorkOrdersBrowserTest, APreviewComesAndGoesWithTheSelection) {
    const Names open = {"abierto.rpt"};
    const Names adding = {"abierto.rpt", "15 - log1.nbr", "15 - log2.nbr"};
    WorkOrdersBrowser browser(session.map(), session.display(), session.tools(),
                              session.services());
    EXPECT_THAT(browser.previewChoices(),
                ElementsAre(OrderPreview::None, OrderPreview::Alone, OrderPreview::Adding));
    browser.showFolder(card);
    browser.select(0);
    EXPECT_EQ(listed(), open);
    browser.choosePreview(OrderPreview::Alone);
    EXPECT_EQ(listed(), (Names{"15 - log1.nbr", "15 - log2.nbr"}));
    browser.choosePreview(OrderPreview::Adding);
    EXPECT_EQ(listed(), adding);
    browser.select(1);
    EXPECT_EQ(listed(), (Names{"abierto.rpt", "log3.nbr"}));
    browser.select(std::nullopt);
    EXPECT_EQ(listed(), open);
    browser.select(0);
    browser.showFolder(card);
    EXPECT_EQ(listed(), open) << "another folder has no selection";
    browser.select(0);
    browser.choosePreview(OrderPreview::Alone);
    EXPECT_EQ(browser.open(*dialogs.progress("")), 2);
    EXPECT_EQ(listed(), adding);
}

TEST_F(WorkOrdersBrowserTest, CopiesToAFolderThatItRemembers) {
    WorkOrdersBrowser browser(session.map(), session.display(), session.tools(),
                              session.services());
    browser.showFolder(card);
    browser.select(0);
    dialogs.folderAnswers = {"", folder.path(), ""};
    for (int i = 0; i < 3; ++i) {
        browser.copy();
    }
    ASSERT_EQ(dialogs.folders.size(), 3U);
    EXPECT_EQ(dialogs.folders[0].folder, card);
    EXPECT_EQ(dialogs.folders[2].folder, folder.path());
    EXPECT_EQ(settings.values["SelectFolder"], folder.path());
    EXPECT_THAT(dialogs.messages, ElementsAre("Information|Campora| 2 archivos copiados"));
    EXPECT_TRUE(std::filesystem::exists(nativePath(folder.file("log2.nbr"))));
}

}  // namespace
}  // namespace campora
