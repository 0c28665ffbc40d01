// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/registrations.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/scripted_platform.h"
#include "support/temp_folder.h"

namespace campora {
namespace {

using ::testing::IsEmpty;

Registrations loadFrom(const TempFolder& folder, ScriptedDialogs& dialogs) {
    return loadRegistrations(folder.path(), {dialogs, Texts(), FixedLocale()});
}

TEST(Registrations, NameBadLinesAndGoOnCountingAfterTwenty) {
    const TempFolder folder;
    ScriptedDialogs dialogs;
    EXPECT_EQ(loadFrom(folder, dialogs).registrationOf("1"), "");
    EXPECT_THAT(dialogs.messages, IsEmpty()) << "without a file";
    folder.write("MATRICULAS.TXT", "no colon\n2:B:C" + std::string(1000, '\n') + "1:A");
    EXPECT_EQ(loadFrom(folder, dialogs).registrationOf("1"), "A");
    ASSERT_EQ(dialogs.messages.size(), 21U);
    EXPECT_EQ(dialogs.messages[1], "Exclamation|Campora|Error en matriculas.txt, linea 2");
    EXPECT_EQ(dialogs.messages[20],
              "Exclamation|Campora|Otras líneas con error en matriculas.txt: 981");
}

}  // namespace
}  // namespace campora
