// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/registrations.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/scripted_platform.h"
#include "support/temp_folder.h"

namespace campora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

Registrations loadFrom(const TempFolder& folder, ScriptedDialogs& dialogs) {
    return loadRegistrations(folder.path(), dialogs, Texts());
}

TEST(Registrations, FindsSerialsWithoutRegardToCaseAndBlanks) {
    const TempFolder folder;
    folder.write("matriculas.txt",
                 "6001:LV-XYZ\r\n ab12 : LV-ABC \n6001:LV-SECOND\nMU\xD1OZ:LV-\xD1");
    ScriptedDialogs dialogs;
    const Registrations found = loadFrom(folder, dialogs);
    EXPECT_EQ(found.registrationOf("6001"), "LV-XYZ");
    EXPECT_EQ(found.registrationOf("AB12 "), "LV-ABC");
    EXPECT_EQ(found.registrationOf("muñoz"), "LV-Ñ");
    EXPECT_EQ(found.registrationOf("6002"), "");
    EXPECT_THAT(dialogs.messages, IsEmpty());
}

TEST(Registrations, ReportsEachBadLineAndGoesOn) {
    const TempFolder folder;
    folder.write("MATRICULAS.TXT", "no colon\n1:A\n\n2:B:C\n3:D\n");
    ScriptedDialogs dialogs;
    const Registrations found = loadFrom(folder, dialogs);
    EXPECT_EQ(found.size(), 2U);
    EXPECT_EQ(found.registrationOf("3"), "D");
    EXPECT_THAT(dialogs.messages,
                ElementsAre("Exclamation|Campora|Error en matriculas.txt, linea 1",
                            "Exclamation|Campora|Error en matriculas.txt, linea 3",
                            "Exclamation|Campora|Error en matriculas.txt, linea 4"));
}

TEST(Registrations, OfAForeignFileReportsTwentyLinesAndCountsTheRest) {
    const TempFolder folder;
    folder.write("matriculas.txt", std::string(1000, '\n') + "1:A");
    ScriptedDialogs dialogs;
    EXPECT_EQ(loadFrom(folder, dialogs).registrationOf("1"), "A");
    ASSERT_EQ(dialogs.messages.size(), 21U);
    EXPECT_EQ(dialogs.messages[20],
              "Exclamation|Campora|Otras líneas con error en matriculas.txt: 980");
}

TEST(Registrations, AreEmptyInSilenceWithoutAFile) {
    const TempFolder folder;
    ScriptedDialogs dialogs;
    EXPECT_EQ(loadFrom(folder, dialogs).size(), 0U);
    EXPECT_THAT(dialogs.messages, IsEmpty());
}

}  // namespace
}  // namespace campora
