// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/files.h"

#include <filesystem>
#include <optional>
#include <random>
#include <utility>

#ifndef _WIN32
#include <sys/stat.h>
#endif

#include <gtest/gtest.h>

#include "base/file_access.h"
#include "base/own_file.h"
#include "base/paths.h"
#include "support/shape_bytes.h"
#include "support/temp_folder.h"

namespace campora {
namespace {

namespace fs = std::filesystem;

std::size_t entriesOf(const TempFolder& folder) {
    const fs::directory_iterator entries(nativePath(folder.path()));
    return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
}

/// The failure is `what`, names `path` and has `reason` as its cause.
void expectFailure(const std::optional<Failure>& failure, TextId what, const std::string& path,
                   TextId reason) {
    SCOPED_TRACE(path);
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->text, what);
    EXPECT_EQ(failure->arguments, std::vector{path});
    ASSERT_EQ(failure->cause.size(), 1U);
    EXPECT_EQ(failure->cause.front().text, reason);
}

void expectUnreadable(const std::string& path, TextId reason) {
    const auto file = readFile(path);
    ASSERT_FALSE(file) << path;
    expectFailure(file.failure(), TextId::FileCannotBeRead, path, reason);
    EXPECT_FALSE(canOpen(path)) << path;
}

std::string noise(std::size_t size) {
    std::mt19937 random(11);
    std::string bytes(size, '\0');
    for (char& c : bytes) {
        c = static_cast<char>(random());
    }
    return bytes;
}

TEST(ReadFile, SaysWhyThereIsNoFile) {
    const TempFolder folder;
    const std::string file = folder.write("a.rpt", "x");
    expectUnreadable("", TextId::FileNotFound);
    expectUnreadable(folder.file("b.rpt"), TextId::FileNotFound);
    expectUnreadable(file + std::string(1, '\0'), TextId::FileNotFound);
    expectUnreadable(folder.path(), TextId::FileIsFolder);
#ifndef _WIN32
    expectUnreadable(folder.file(std::string(5000, 'a')), TextId::FileNameTooLong);
#endif
}

TEST(ReadFile, RefusesAFileBeyondTheLimitWithoutTakingMemory) {
    const TempFolder folder;
    const std::string path = folder.write("huge.rpt", "");
    std::error_code error;
    fs::resize_file(nativePath(path), std::uintmax_t{1} << 40U, error);
    if (error) {
        GTEST_SKIP() << "this disk knows no files with holes";
    }
    const auto file = readFile(path);
    ASSERT_FALSE(file);
    expectFailure(file.failure(), TextId::FileCannotBeRead, path, TextId::FileTooLarge);
}

TEST(WriteFile, MakesAndReplaces) {
    const TempFolder folder;
    const std::string path = folder.file("Dosis \u00e1 & '\u8fb2'.shp");
    for (const std::string& content : {noise(300000), std::string("short"), std::string()}) {
        ASSERT_FALSE(writeFile(path, bytesOf(content)).has_value());
        EXPECT_EQ(contentOf(path), content);
        EXPECT_EQ(readFile(path)->text(), content);
        EXPECT_EQ(entriesOf(folder), 1U) << "the file and nothing beside it";
    }
}

TEST(WriteFile, ClearsAwayWhatKilledProgramsLeftAndNothingElse) {
    const TempFolder folder;
    (void)folder.write(".campora-0123456789ABCDEF.tmp", "left over");
    const std::string other = folder.write(".campora-0.tmp", "somebody's own");
    OwnFile used;
    ASSERT_FALSE(used.create(nativePath(folder.path())));
    ASSERT_FALSE(used.takeName());
    const std::string path = folder.file(std::string(200, 'n') + ".dbf");
    EXPECT_FALSE(writeFile(path, bytesOf("new")).has_value());
    EXPECT_EQ(contentOf(path), "new");
    EXPECT_EQ(contentOf(other), "somebody's own");
    EXPECT_TRUE(fs::exists(used.path()));
    EXPECT_EQ(entriesOf(folder), 3U);
}

TEST(WriteFile, SaysWhyItCannot) {
    const TempFolder folder;
    const std::string file = folder.write("a.rpt", "x");
    EXPECT_EQ(whyNoTarget(folder.file("b")), std::nullopt);
    const std::pair<std::string, TextId> rows[] = {
        {folder.path(), TextId::FileIsFolder},
        {folder.path() + "/", TextId::FileIsFolder},
        {folder.file("none/a.rpt"), TextId::FolderNotFound},
        {"", TextId::FileNotFound},
        {folder.file("b") + std::string(1, '\0'), TextId::FileNotFound},
    };
    for (const auto& [path, reason] : rows) {
        expectFailure(writeFile(path, bytesOf("y")), TextId::FileCannotBeWritten, path, reason);
        if (fileNamePart(path).empty()) {
            expectFailure(whyNoTarget(path), TextId::FileCannotBeWritten, path, reason);
        }
    }
    EXPECT_EQ(entriesOf(folder), 1U);
    EXPECT_EQ(contentOf(file), "x");
}

TEST(DeleteFile, DeletesFilesOnly) {
    const TempFolder folder;
    const std::string file = folder.write("D\u00eda.rpt", "x");
    EXPECT_FALSE(deleteFile(file).has_value());
    EXPECT_FALSE(fs::exists(nativePath(file)));
    EXPECT_FALSE(deleteFile(file).has_value()) << "it is gone already";
    expectFailure(deleteFile(folder.path()), TextId::FileCannotBeDeleted, folder.path(),
                  TextId::FileIsFolder);
    EXPECT_TRUE(fs::exists(nativePath(folder.path())));
}

#ifndef _WIN32

TEST(Files, ADeviceOrPipeIsRefusedWithoutWaiting) {
    const TempFolder folder;
    const std::string pipe = folder.file("pipe.rpt");
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    for (const std::string& path : {pipe, std::string("/dev/null")}) {
        expectUnreadable(path, TextId::FileIsSpecial);
        expectFailure(writeFile(path, bytesOf("x")), TextId::FileCannotBeWritten, path,
                      TextId::FileIsSpecial);
    }
    expectFailure(deleteFile(pipe), TextId::FileCannotBeDeleted, pipe, TextId::FileIsSpecial);
}

TEST(WriteFile, LinksAndPermissionsStay) {
    const TempFolder folder;
    const std::string file = folder.write("real/a.lot", "old");
    fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write);
    const std::string link = folder.file("link.lot");
    fs::create_symlink(file, link);
    ASSERT_FALSE(writeFile(link, bytesOf("new")).has_value());
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(contentOf(file), "new");
    EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_FALSE(deleteFile(link).has_value());
    EXPECT_TRUE(fs::exists(file)) << "the link goes, the file stays";
    fs::remove(file);
    fs::create_symlink("real/a.lot", link);
    ASSERT_FALSE(writeFile(link, bytesOf("made")).has_value());
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(contentOf(file), "made") << "the file that the link names";
    fs::create_symlink("round.lot", folder.file("round.lot"));
    expectFailure(writeFile(folder.file("round.lot"), bytesOf("x")), TextId::FileCannotBeWritten,
                  folder.file("round.lot"), TextId::LinksInACircle);
}

TEST(FileFailure, NoReasonIsTheSystemsOwnWording) {
    for (const int error : {ELOOP, EEXIST, EDQUOT, EBUSY, EXDEV, EINTR, ENODEV, ETIMEDOUT}) {
        EXPECT_NE(reasonOf({error, std::generic_category()}).text, TextId::SystemError) << error;
    }
    const Failure other = reasonOf({EINVAL, std::system_category()});
    EXPECT_EQ(other.text, TextId::SystemError);
    EXPECT_EQ(other.arguments, std::vector<std::string>{std::to_string(EINVAL)});
}

#endif

}  // namespace
}  // namespace campora
