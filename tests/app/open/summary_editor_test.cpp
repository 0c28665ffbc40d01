// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/open/summary_editor.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "base/paths.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"

namespace campora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// "property|value|unit" a row, the selected one with a "*".
std::vector<std::string> shown(const SummaryDraft& rows) {
    std::vector<std::string> texts;
    for (const SummaryEntry& row : rows.rows()) {
        const bool selected = rows.selected() == static_cast<int>(texts.size());
        texts.push_back((selected ? "*" : "") + row.property + "|" + row.value + "|" + row.unit);
    }
    return texts;
}

TEST(SummaryDraft, AreAddedMovedAndChanged) {
    SummaryDraft rows({{"a", "1", "m"}, {"b", "2", ""}});
    rows.up();  // nothing is selected: nothing moves, and a new row is the last
    rows.fields = {"n", "x\r\ny\nz", ""};
    rows.add();
    EXPECT_THAT(shown(rows), ElementsAre("a|1|m", "b|2|", "n|x y z|"));
    rows.select(1);
    EXPECT_EQ(rows.fields, (SummaryEntry{"b", "2", ""}));
    rows.fields = {"d", "4", ""};
    rows.add();
    EXPECT_THAT(shown(rows), ElementsAre("a|1|m", "d|4|", "*b|2|", "n|x y z|"));
    for (int i = 0; i < 3; ++i) {
        rows.up();
    }
    rows.fields = {" Dosis  ", " 7", "l "};
    rows.change();
    EXPECT_THAT(shown(rows), ElementsAre("*Dosis|7|l", "a|1|m", "d|4|", "n|x y z|"));
}

class SummaryEditorTest : public ::testing::Test {
protected:
    TempFolder folder;
    ScriptedDialogs dialogs;
    Texts texts;
    FixedLocale locale;
    Desk desk{dialogs, texts, locale};
};

TEST_F(SummaryEditorTest, AcceptingWithoutAChangeKeepsEveryRow) {
    const std::pair<const char*, const char*> rows[] = {
        {"Dosis Promedio:,12.5,lt/hect", "\"Dosis Promedio:\",\"12.5\",\"lt/hect\"\r\n"},
        {"\"Nota:\",\"a, \"\"b\"\"\",\"\"\n", "\"Nota:\",\"a, \"\"b\"\"\",\"\"\r\n"},
        {"Due\xF1o:,Nu\xF1"
         "ez,\r\n",
         "\"Due\xF1o:\",\"Nu\xF1"
         "ez\",\"\"\r\n"},
        {"Due\xC3\xB1o:,1,\r\n", "\"Due\xC3\xB1o:\",\"1\",\"\"\r\n"},
        {"\xEF\xBB\xBFLote:,1,\r\n", "\xEF\xBB\xBF\"Lote:\",\"1\",\"\"\r\n"},
        {"Lote:,1,\r\n\r\nuna nota\r\nA:,2,\r\n",
         "\"Lote:\",\"1\",\"\"\r\n\r\nuna nota\r\nA:,2,\r\n"},
        {"", ""},
    };
    for (const auto& [before, after] : rows) {
        SCOPED_TRACE(before);
        const std::string path = folder.write("Wrk0001.txt", before);
        SummaryEditor editor(path, desk);
        EXPECT_TRUE(editor.accept());
        EXPECT_EQ(contentOf(path), after);
        EXPECT_EQ(decodeSummary(after).entries(), decodeSummary(before).entries());
    }
    EXPECT_THAT(dialogs.messages, IsEmpty());
}

TEST_F(SummaryEditorTest, ARowGoesOnlyWhenTheUserSaysSo) {
    SummaryEditor editor(folder.write("Wrk0001.txt", "A:,1,\r\nB:,2,\r\n"), desk);
    askAndRemove(editor.draft(), desk);
    EXPECT_THAT(dialogs.questions, IsEmpty()) << "nothing is selected";
    editor.draft().select(0);
    dialogs.answers = {Answer::No, Answer::Yes};
    askAndRemove(editor.draft(), desk);
    EXPECT_THAT(shown(editor.draft()), ElementsAre("*A|1|", "B|2|"));
    askAndRemove(editor.draft(), desk);
    EXPECT_THAT(shown(editor.draft()), ElementsAre("B|2|"));
    EXPECT_THAT(dialogs.questions,
                testing::Each("Exclamation|Campora|Seguro que desea eliminar los campos "
                              "seleccionados?"));
}

}  // namespace
}  // namespace campora
