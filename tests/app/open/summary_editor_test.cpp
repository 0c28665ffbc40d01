// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/open/summary_editor.h"

#include <filesystem>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/paths.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"

namespace campora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// "property|value|unit" a row, the selected one with a "*".
std::vector<std::string> shown(const SummaryRows& rows) {
    std::vector<std::string> texts;
    for (const SummaryEntry& row : rows.rows()) {
        const bool selected = rows.selected() == static_cast<int>(texts.size());
        texts.push_back((selected ? "*" : "") + row.property + "|" + row.value + "|" + row.unit);
    }
    return texts;
}

TEST(SummaryRows, AreAddedMovedAndChanged) {
    SummaryRows rows({{"a", "1", "m"}, {"b", "2", ""}});
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

TEST(SummaryRows, WhatStandsInTheFieldsCountsAtTheEnd) {
    struct Row {
        const char* name;
        std::optional<int> selected;
        SummaryEntry typed;
        std::vector<std::string> after;
    };
    const Row rows[] = {
        {"nothing typed", 1, {"b", "2", ""}, {"a|1|m", "*b|2|"}},
        {"into the selected row", 1, {"c", " 3", ""}, {"a|1|m", "*c|3|"}},
        {"into the row of that name", {}, {"a", "4", "m"}, {"a|4|m", "b|2|"}},
        {"a new row", {}, {"c", "5", ""}, {"a|1|m", "b|2|", "c|5|"}},
        {"fields that were emptied", {}, {"", " ", ""}, {"a|1|m", "b|2|"}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        SummaryRows edited({{"a", "1", "m"}, {"b", "2", ""}});
        edited.select(row.selected);
        edited.fields = row.typed;
        edited.acceptFields();
        edited.acceptFields();  // a second time, after the first could not be kept
        EXPECT_EQ(shown(edited), row.after);
    }
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

TEST_F(SummaryEditorTest, ChangesAreWrittenAsTheConsoleReadsThem) {
    const std::string path = folder.write("Wrk0001.txt", "Lote:,1,\r\nAncho:,18,mts\r\n");
    SummaryEditor editor(path, desk);
    EXPECT_THAT(shown(editor.rows()), ElementsAre("Lote|1|", "Ancho|18|mts"));
    editor.rows().select(0);
    editor.rows().fields = {"Dueño", "\"Ñandú\", 5\"", "π"};
    editor.rows().change();
    editor.rows().down();
    EXPECT_EQ(contentOf(path), "Lote:,1,\r\nAncho:,18,mts\r\n") << "nothing is written yet";
    EXPECT_TRUE(editor.accept());
    EXPECT_EQ(contentOf(path), "\"Ancho:\",\"18\",\"mts\"\r\n"
                               "\"Due\xF1o:\",\"\"\"\xD1"
                               "and\xFA\"\", 5\"\"\",\"?\"\r\n");
    EXPECT_EQ(decodeSummary(contentOf(path)).value_(1), "\"Ñandú\", 5\"");
}

TEST_F(SummaryEditorTest, ARowGoesOnlyWhenTheUserSaysSo) {
    SummaryEditor editor(folder.write("Wrk0001.txt", "A:,1,\r\nB:,2,\r\n"), desk);
    askAndRemove(editor.rows(), desk);
    EXPECT_THAT(dialogs.questions, IsEmpty()) << "nothing is selected";
    editor.rows().select(0);
    dialogs.answers = {Answer::No, Answer::Yes};
    askAndRemove(editor.rows(), desk);
    EXPECT_THAT(shown(editor.rows()), ElementsAre("*A|1|", "B|2|"));
    askAndRemove(editor.rows(), desk);
    EXPECT_THAT(shown(editor.rows()), ElementsAre("B|2|"));
    EXPECT_THAT(dialogs.questions,
                testing::Each("Exclamation|Campora|Seguro que desea eliminar los campos "
                              "seleccionados?"));
}

TEST_F(SummaryEditorTest, AFileThatCannotBeWrittenKeepsTheEditorOpen) {
    const std::string path = folder.write("card/Wrk0001.txt", "A:,1,\r\n");
    SummaryEditor editor(path, desk);
    std::filesystem::remove_all(nativePath(folder.file("card")));
    EXPECT_FALSE(editor.accept());
    EXPECT_THAT(dialogs.messages, ElementsAre("Error|Error|No se puede guardar el archivo " + path +
                                              ": la carpeta no existe"));
    folder.write("card/Wrk0001.txt", "otra");
    EXPECT_TRUE(editor.accept());
    EXPECT_EQ(contentOf(path), "\"A:\",\"1\",\"\"\r\n");
}

}  // namespace
}  // namespace campora
