// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/open/summary_commands.h"

#include <filesystem>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "support/session_desk.h"

namespace campora {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// A report of 100 to 102 l/ha, open.
struct EditsDesk : SessionDesk {
    EditsDesk() {
        session.start();
        EXPECT_TRUE(open({path}, true));
    }
    /// Gives a row another value; a name that is not there makes a row.
    [[nodiscard]] bool edit(const std::string& name, const std::string& value) {
        SummaryDraft rows = commands.draft();
        rows.fields = {name, value, ""};
        rows.acceptFields();
        return commands.keep(rows);
    }
    [[nodiscard]] const SummaryRow& row(const std::string& name) const {
        static const SummaryRow none;
        for (const SummaryRow& found : window.summary) {
            if (found.property == name) {
                return found;
            }
        }
        return none;
    }
    [[nodiscard]] int indexOf(const std::string& name) const {
        return static_cast<int>(&row(name) - window.summary.data());
    }
    [[nodiscard]] const FileProperties& summary() {
        return session.map().files().file(0).File_resumen();
    }

    std::string path = report("lote.rpt");
    std::string kept = path + ".campora.json";
    SummaryCommands& commands = session.summaryCommands();
};

TEST(SummaryCommands, EditsAreShownBesideWhatWasMeasuredAndStay) {
    EditsDesk desk;
    const std::vector<SummaryEntry> measured = desk.summary().entries();
    const std::string speed = desk.row("Vel Promedio:").value;
    ASSERT_TRUE(desk.edit("Vel Promedio:", "9"));
    ASSERT_TRUE(desk.edit("Hectáreas fumig:", "3")) << "its name ends in a blank";
    ASSERT_TRUE(desk.edit("Piloto:", "Ñandú \"el corto\""));
    const auto check = [&](const char* when) {
        SCOPED_TRACE(when);
        EXPECT_EQ(desk.summary().entries(), measured);
        EXPECT_EQ(desk.row("Vel Promedio:"),
                  (SummaryRow{"Vel Promedio:", "9 (editado)", true, "Valor medido: " + speed}));
        EXPECT_EQ(desk.row("Hectáreas fumig:").value, "3 (editado)");
        EXPECT_EQ(desk.row("Piloto:"),
                  (SummaryRow{"Piloto:", "Ñandú \"el corto\" ", true, "Agregado a mano"}));
        EXPECT_TRUE(desk.dialogs.messages.empty());
    };
    check("edited");
    desk.session.fileCommands().reload();
    check("read again");
    desk.open({desk.path}, true);
    check("opened again");

    desk.commands.backToMeasured(desk.indexOf("Piloto:"));
    EXPECT_EQ(desk.row("Piloto:"), SummaryRow());
    desk.commands.backToMeasured(desk.indexOf("Hectáreas fumig:"));
    desk.commands.backToMeasured(desk.indexOf("Vel Promedio:"));
    EXPECT_EQ(desk.row("Vel Promedio:"), (SummaryRow{"Vel Promedio:", speed}));
    EXPECT_FALSE(std::filesystem::exists(nativePath(desk.kept))) << "nothing is edited any more";
}

TEST(SummaryCommands, RowsThatWereRemovedOrMovedComeBack) {
    EditsDesk desk;
    const std::vector<SummaryRow> before = desk.window.summary;
    SummaryDraft rows = desk.commands.draft();
    rows.select(0);
    rows.remove();
    rows.select(1);
    rows.down();
    ASSERT_TRUE(desk.commands.keep(rows));
    desk.session.fileCommands().reload();
    ASSERT_EQ(desk.window.summary.size(), before.size() - 1);
    EXPECT_EQ(desk.window.summary[0], before[1]);
    EXPECT_EQ(desk.window.summary[1], before[3]);
    EXPECT_EQ(desk.window.summary[2], before[2]);
    desk.commands.backToMeasured();
    EXPECT_EQ(desk.window.summary, before);
}

TEST(SummaryCommands, EditsThatCannotBeUsedAreLeftAloneUntilTheUserSaysSo) {
    const std::string sum(64, '0');
    const auto file = [&](const std::string& version, const std::string& rest) {
        return R"({"version": )" + version + R"(, "report": {"sha256": ")" + sum + "\"}" + rest +
               "}";
    };
    const std::pair<std::string, const char*> rows[] = {
        {"no es esto", "dañado"},
        {"[1, 2]", "dañado"},
        {file("2", ""), "posterior"},
        {file("1", R"(, "rows": [], "removed": [])"), "otro contenido"},
    };
    for (const auto& [content, says] : rows) {
        SCOPED_TRACE(content);
        EditsDesk desk;
        desk.folder.write("lote.rpt.campora.json", content);
        ASSERT_TRUE(desk.open({desk.path}, true));
        EXPECT_THAT(desk.dialogs.messages, IsEmpty());
        EXPECT_TRUE(desk.summary().edits.empty());
        const std::vector<Remark>& remarks = desk.session.map().files().file(0).remarks();
        ASSERT_EQ(remarks.size(), 1U);
        EXPECT_THAT(desk.session.texts().sentence(remarks.front()),
                    testing::AllOf(HasSubstr("lote.rpt.campora.json"), HasSubstr(says)));
        desk.dialogs.yesNoAnswers = {false, true};
        EXPECT_FALSE(desk.edit("Piloto:", "Ana"));
        EXPECT_EQ(contentOf(desk.kept), content);
        EXPECT_EQ(desk.row("Piloto:"), SummaryRow());
        EXPECT_TRUE(desk.edit("Piloto:", "Ana"));
        EXPECT_EQ(desk.dialogs.questions.size(), 2U);
        EXPECT_TRUE(desk.session.map().files().file(0).remarks().empty());
        desk.session.fileCommands().reload();
        EXPECT_EQ(desk.row("Piloto:").value, "Ana ");
    }
}

TEST(SummaryCommands, ADamagedFileOfEditsNeverCrashes) {
    EditsDesk desk;
    ASSERT_TRUE(desk.edit("Piloto:", "Ana"));
    const std::string whole = contentOf(desk.kept);
    for (std::size_t i = 0; i < whole.size(); ++i) {
        std::string broken = whole;
        broken[i] = static_cast<char>(broken[i] ^ 0x11);
        desk.folder.write("lote.rpt.campora.json", i % 2 == 0 ? broken : whole.substr(0, i));
        desk.session.fileCommands().reload();
        const bool isUsed = !desk.summary().edits.empty();
        EXPECT_NE(isUsed, !desk.session.map().files().file(0).remarks().empty()) << i;
    }
}

TEST(SummaryCommands, EditsThatCannotBeKeptAreNotMade) {
    EditsDesk desk;
    // A folder that nobody can write into, whoever runs the test.
    std::filesystem::create_directory(nativePath(desk.kept));
    EXPECT_TRUE(desk.open({desk.path}, true));
    desk.dialogs.yesNoAnswers = {true};
    EXPECT_FALSE(desk.edit("Piloto:", "Ana"));
    EXPECT_THAT(desk.dialogs.messages, ElementsAre(HasSubstr("no se pudieron guardar")));
    EXPECT_EQ(desk.row("Piloto:"), SummaryRow());
    EXPECT_FALSE(desk.commands.hasEdits());
}

TEST(SummaryCommands, ASummaryFileThatCameBackIsEditedItself) {
    SessionDesk desk;
    desk.session.start();
    desk.open({desk.track("log0001.nbr", 5)}, true);
    EXPECT_EQ(desk.session.summaryCommands().summaryFile(), "");
    const std::string file = desk.folder.write("Wrk0001.txt", "Lote:,7,\r\n");
    EXPECT_EQ(desk.session.summaryCommands().summaryFile(), file);
    EXPECT_EQ(desk.window.summary, (std::vector<SummaryRow>{{"Lote:", "7 "}}));
    std::filesystem::remove(nativePath(file));
    desk.session.summaryCommands().reread();
    EXPECT_EQ(desk.window.summary.size(), 1U) << "what was read is not forgotten";
    EXPECT_EQ(desk.session.summaryCommands().summaryFile(), file);
    desk.folder.write("Wrk0001.txt", "");
    desk.session.summaryCommands().reread();
    EXPECT_EQ(desk.window.summary.size(), 0U);
    EXPECT_EQ(desk.session.summaryCommands().summaryFile(), file) << "an empty one can be filled";
}

}  // namespace
}  // namespace campora
