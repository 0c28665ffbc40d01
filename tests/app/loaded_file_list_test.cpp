// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/loaded_file_list.h"

#include <filesystem>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "model/file_gph_group.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"

namespace campora {
namespace {

using ::testing::ElementsAre;

std::unique_ptr<FileGphGroup> makeFile(std::string path, std::string id = "",
                                       std::int32_t priority = 0, std::string summary = "") {
    auto file = std::make_unique<FileGphGroup>();
    file->name = path;
    file->path = std::move(path);
    file->id = std::move(id);
    file->priority = priority;
    file->File_resumen().sourcePath = std::move(summary);
    return file;
}

std::vector<std::string> namesOf(const LoadedFileList& list) {
    std::vector<std::string> names;
    for (int i = 0; i < list.loadedCount(); ++i) {
        names.push_back(list.file(i).File_name());
    }
    return names;
}

/// A list whose questions are answered in advance.
struct ListOnDisk {
    TempFolder folder;
    ScriptedDialogs dialogs;
    Texts texts;
    FixedLocale locale;
    Desk desk{dialogs, texts, locale};
    LoadedFileList list;

    [[nodiscard]] std::string written(std::string_view name) const {
        return folder.write(name, "work");
    }
    [[nodiscard]] static bool isThere(const std::string& path) {
        return std::filesystem::exists(path);
    }
};

TEST(LoadedFileList, OfTwoCopiesOfAWorkTheMoreCompleteStays) {
    const std::tuple<std::int32_t, std::int32_t, bool> rows[] = {
        {9, 5, false}, {9, 9, false}, {5, 9, true}};
    for (const auto& [listed, added, taken] : rows) {
        SCOPED_TRACE(added);
        ListOnDisk disk;
        const std::string old = disk.written("old.nbr");
        const std::string oldSummary = disk.written("old.txt");
        const std::string fresh = disk.written("new.nbr");
        const std::string freshSummary = disk.written("new.txt");
        disk.dialogs.yesNoAnswers = {true};
        disk.list.addFile(makeFile(old, "job", listed, oldSummary), false, disk.desk);
        disk.list.addFile(makeFile("other"), false, disk.desk);
        EXPECT_EQ(disk.list.addFile(makeFile(fresh, "job", added, freshSummary), false, disk.desk),
                  taken);
        EXPECT_THAT(namesOf(disk.list), ElementsAre(taken ? fresh : old, "other"));
        EXPECT_EQ(disk.list.currentFile(), &disk.list.file(0));
        for (const std::string& path : {old, oldSummary}) {
            EXPECT_EQ(ListOnDisk::isThere(path), !taken) << path;
        }
        for (const std::string& path : {fresh, freshSummary}) {
            EXPECT_EQ(ListOnDisk::isThere(path), taken) << path;
        }
    }
}

struct LoadedFileListTest : testing::Test, ListOnDisk {};

TEST_F(LoadedFileListTest, NeverDeletesWhatAnOpenFileNeeds) {
    const std::string shared = written("wrk1.txt");
    const std::string table = written("table.txt");
    const std::string copyA = written("log1.nbr");
    const std::string copyB = written("wrk1.nbr");
    dialogs.yesNoAnswers = {true, true};
    list.addFile(makeFile(written("long.nbr"), "job", 9), false, desk);
    list.addFile(makeFile(written("a.nbr"), "other job", 9, shared), false, desk);
    list.addFile(makeFile(table), false, desk);
    EXPECT_FALSE(list.addFile(makeFile(copyA, "job", 5, shared), false, desk));
    EXPECT_FALSE(list.addFile(makeFile(copyB, "job", 5, table), false, desk));
    EXPECT_FALSE(ListOnDisk::isThere(copyA) || ListOnDisk::isThere(copyB));
    EXPECT_TRUE(ListOnDisk::isThere(shared)) << "summary of another open work";
    EXPECT_TRUE(ListOnDisk::isThere(table)) << "an open file itself";
}

TEST_F(LoadedFileListTest, OneFileUnderTwoSpellingsIsNotAskedAbout) {
    const std::string path = written("log1.nbr");
    list.addFile(makeFile(path, "job", 9), false, desk);
    EXPECT_FALSE(list.addFile(makeFile(folder.file("./log1.nbr"), "job", 9), false, desk));
    EXPECT_TRUE(ListOnDisk::isThere(path));
}

TEST_F(LoadedFileListTest, SaysWhyAFileCouldNotBeDeletedAndLeavesItsSummary) {
    std::filesystem::create_directory(folder.file("folder.nbr"));
    const std::string summary = written("folder.txt");
    dialogs.yesNoAnswers = {true};
    list.addFile(makeFile(written("long.nbr"), "job", 9), false, desk);
    EXPECT_FALSE(list.addFile(makeFile(folder.file("folder.nbr"), "job", 5, summary), false, desk));
    ASSERT_EQ(dialogs.messages.size(), 1U);
    EXPECT_THAT(dialogs.messages.at(0), ::testing::HasSubstr("folder.nbr"));
    EXPECT_TRUE(ListOnDisk::isThere(summary));
}

}  // namespace
}  // namespace campora
