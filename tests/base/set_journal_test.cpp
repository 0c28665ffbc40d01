// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/set_journal.h"

#include <filesystem>
#include <iterator>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "base/files.h"
#include "base/paths.h"
#include "support/shape_bytes.h"
#include "support/temp_folder.h"

namespace campora {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kNone = "-";
constexpr std::string_view kDraft = ".campora-0000000000000001.tmp";
constexpr std::string_view kKept = ".campora-0000000000000002.tmp";

struct Row {
    const char* name;
    bool replaces;
    std::string_view target;
    std::string_view draft;
    std::string_view kept;
    std::string_view after;
};

const Row kRows[] = {
    {"nothing was moved", true, "old", "new", kNone, "old"},
    {"the earlier file has a second name", true, "old", "new", "old", "old"},
    {"the earlier file has made room", true, kNone, "new", "old", "old"},
    {"the new file is in its place", true, "new", kNone, "old", "old"},
    {"the new file was deleted since", true, kNone, kNone, "old", "old"},
    {"others have replaced the new file", true, "theirs", kNone, "old", "theirs"},
    {"it was taken back already", true, "old", kNone, kNone, "old"},
    {"where nothing stood nothing was moved", false, kNone, "new", kNone, kNone},
    {"where nothing stood the new file is", false, "new", kNone, kNone, kNone},
    {"where nothing stood others have written", false, "theirs", kNone, kNone, "theirs"},
};

/// A folder as a program leaves it that was killed; its journal is read when `journal` goes.
struct LeftFolder {
    explicit LeftFolder(const Row& row, std::string_view target = "a.pre") {
        std::error_code error;
        const FileMark mark = markOf(nativePath(folder.write("new", "new")), error).value();
        fs::remove(nativePath(folder.file("new")));
        put("a.pre", row.target);
        put(kDraft, row.draft);
        put(kKept, row.kept);
        const SetMember set[] = {{std::string(target), std::string(kDraft),
                                  row.replaces ? std::string(kKept) : std::string(), mark}};
        EXPECT_FALSE(writeJournal(nativePath(folder.path()), set, journal));
    }
    void put(std::string_view name, std::string_view content) const {
        if (content != kNone) {
            (void)folder.write(name, content);
        }
    }
    [[nodiscard]] std::ptrdiff_t entries() const {
        return std::distance(fs::directory_iterator(nativePath(folder.path())), {});
    }

    TempFolder folder;
    OwnFile journal;
};

TEST(SetJournal, WhoeverReadsOrWritesTakesAHalfWrittenSetBack) {
    for (const Row& row : kRows) {
        for (const bool reads : {true, false}) {
            SCOPED_TRACE(row.name);
            LeftFolder left(row);
            left.journal = OwnFile();
            const std::string path = left.folder.file("a.pre");
            if (reads) {
                const auto file = readFile(path);
                EXPECT_EQ(file ? file->text() : kNone, row.after);
            } else {
                EXPECT_FALSE(writeFile(left.folder.file("b.pre"), bytesOf("b")).has_value());
                EXPECT_EQ(fs::exists(path) ? contentOf(path) : std::string(kNone), row.after);
            }
            EXPECT_EQ(left.entries(), (row.after == kNone ? 0 : 1) + (reads ? 0 : 1));
        }
    }
}

TEST(SetJournal, AByteInTheMiddleMakesTheFileAnothers) {
    const std::string zeros(std::size_t{3} << 20U, '\0');
    std::string worked = zeros;
    worked[zeros.size() / 2] = 1;
    for (const std::string& found : {zeros, worked}) {
        const TempFolder folder;
        std::error_code error;
        const std::string path = folder.write("a.rpt", zeros);
        const SetMember set[] = {
            {"a.rpt", std::string(kDraft), {}, markOf(nativePath(path), error).value()}};
        OwnFile journal;
        ASSERT_FALSE(writeJournal(nativePath(folder.path()), set, journal));
        journal = OwnFile();
        (void)folder.write("a.rpt", found);
        EXPECT_EQ(readFile(path) ? 1 : 0, found == zeros ? 0 : 1);
    }
}

TEST(SetJournal, ASetThatIsUnderWayIsLeftAlone) {
    const LeftFolder left(kRows[3]);
    const auto failure = writeFile(left.folder.file("b.pre"), bytesOf("b"));
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->cause.at(0).text, TextId::FolderBusy);
    EXPECT_EQ(contentOf(left.folder.file("a.pre")), "new");
    EXPECT_EQ(left.entries(), 3) << "the file, the earlier one and the journal";
}

TEST(SetJournal, AForeignJournalReachesNothingElse) {
    for (const std::string_view target : {"../a.pre", "/a.pre", "..", ".", ""}) {
        SCOPED_TRACE(target);
        LeftFolder left(kRows[2], target);
        left.journal = OwnFile();
        EXPECT_FALSE(readFile(left.folder.file("a.pre")));
        EXPECT_EQ(left.entries(), 3) << "the drafts and the journal";
        const auto failure = writeFile(left.folder.file("b.pre"), bytesOf("b"));
        ASSERT_TRUE(failure.has_value());
        EXPECT_EQ(failure->cause.at(0).text, TextId::UnfinishedSave);
    }
}

}  // namespace
}  // namespace campora
