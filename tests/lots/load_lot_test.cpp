// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "lots/load_lot.h"

#include <gtest/gtest.h>

#include "lots/gph_lote.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"

namespace campora {
namespace {

struct LoadLot : testing::Test {
    TempFolder folder;
    ScriptedDialogs dialogs;
    FixedLocale locale{','};
    Texts texts;

    std::unique_ptr<FileGphGroup> load(const std::string& path) {
        return loadLot(path, {dialogs, texts, locale});
    }
};

TEST_F(LoadLot, RefusesWhatIsNoLotWithAMessage) {
    const std::tuple<const char*, std::string, const char*> rows[] = {
        {"no text at all", std::string("\0\xFF\x01,\0", 5), "no tiene ningún vértice"},
        {"off the globe", "a\r\n1,500\r\n", "no tiene ningún vértice"},
    };
    for (const auto& [name, bytes, reason] : rows) {
        SCOPED_TRACE(name);
        const std::string path = folder.write("x.lot", bytes);
        dialogs.messages.clear();
        EXPECT_EQ(load(path), nullptr);
        EXPECT_EQ(dialogs.messages,
                  std::vector<std::string>{"Error|" + std::string(texts(TextId::WrongFileFormat)) +
                                           "|No se puede leer el archivo " + path + ": " + reason});
    }
    dialogs.messages.clear();
    EXPECT_EQ(load(folder.file("falta.lot")), nullptr);
    EXPECT_EQ(dialogs.messages.size(), 1U);
}

TEST_F(LoadLot, ALotOfTwoVerticesIsShownAsItIs) {
    const auto file = load(folder.write("dos.lot", "2018,450\r\n1,2\r\n3,4\r\n"));
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(file->File_resumen().value_(1), "0");
    ASSERT_EQ(file->remarks().size(), 1U);
    EXPECT_EQ(texts.sentence(file->remarks().front()),
              "Líneas con dos números que no son una posición, leídas como descripción: 1; la "
              "primera es la línea 1");
}

}  // namespace
}  // namespace campora
