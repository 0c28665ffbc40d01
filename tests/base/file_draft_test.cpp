// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/file_draft.h"

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "base/files.h"
#include "base/paths.h"
#include "support/temp_folder.h"

namespace campora {
namespace {

namespace fs = std::filesystem;

std::string contentOf(const std::string& path) {
    const auto file = readFile(path);
    return file ? std::string(file->text()) : "none";
}

std::size_t entriesOf(const TempFolder& folder) {
    const fs::directory_iterator entries(nativePath(folder.path()));
    return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
}

#ifdef __linux__

TEST(FileDraft, AFolderThatTakesNoFilesIsNotAMissingTarget) {
    FileDraft draft("/proc/a.shp");
    ASSERT_TRUE(draft.failure().has_value());
    EXPECT_EQ(draft.failure()->cause.at(0).text, TextId::FileNoPermission);
}

#endif

TEST(FinishTogether, ReplacesNoneWhenOneCannotTakeItsPlace) {
    const TempFolder folder;
    const std::vector<std::string> paths = {folder.write("a.shp", "old"), folder.file("a.shx"),
                                            folder.file("a.dbf")};
    std::vector<FileDraft> drafts;
    for (const std::string& path : paths) {
        drafts.emplace_back(path).write("new");
    }
    // A folder of that name appears while the files are being written.
    fs::create_directory(nativePath(paths[2]));
    const std::optional<Failure> failure = finishTogether(drafts);
    drafts.clear();
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->text, TextId::FileCannotBeWritten);
    EXPECT_EQ(failure->arguments.front(), paths[2]);
    EXPECT_EQ(contentOf(paths[0]), "old");
    EXPECT_EQ(contentOf(paths[1]), "none");
    EXPECT_EQ(entriesOf(folder), 2U) << "the old file and the folder";
}

}  // namespace
}  // namespace campora
