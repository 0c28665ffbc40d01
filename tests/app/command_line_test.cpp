// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/command_line.h"

#include <gtest/gtest.h>

namespace campora {
namespace {

TEST(CommandLine, TellsPathsFromSwitches) {
    const std::tuple<const char*, const char*, StartRequest> rows[] = {
        {"nothing", "", {}},
        {"a path", " C:\\campo\\lote.rpt ", {{"C:\\campo\\lote.rpt"}}},
        {"switches",
         "\"C:\\mi campo\\log 1.nbr\" -anim -repeat",
         {{"C:\\mi campo\\log 1.nbr"}, true, false, true}},
        {"quoted dash", "\"lote-3.rpt\" -realtime", {{"lote-3.rpt"}, false, true, false}},
        {"bare dash cuts the path", "lote-3.rpt", {{"lote"}}},
        {"unknown and misspelt switches", "a.rpt -Anim -loop - -anim2", {{"a.rpt"}}},
        {"switches alone", "-anim -realtime -repeat", {{}, true, true, true}},
        {"several quoted paths", "\"a b.rpt\" \"c-d.rpt\"", {{"a b.rpt", "c-d.rpt"}}},
        {"a quote that never ends", "\"lote-3.rpt -anim", {{"lote-3.rpt -anim"}}},
    };
    for (const auto& [name, line, request] : rows) {
        EXPECT_EQ(parseCommandLine(line), request) << name;
    }
}

TEST(CommandLine, KeepsArgumentsWhole) {
    const std::vector<std::string> arguments{"lote-3.rpt", "-anim", "mi campo", "", "-repeat-x"};
    EXPECT_EQ(parseCommandLine(arguments),
              (StartRequest{{"lote-3.rpt", "mi campo"}, true, false, true}));
}

}  // namespace
}  // namespace campora
