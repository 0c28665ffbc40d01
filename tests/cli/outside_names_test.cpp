// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "support/outside_names.h"

#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "app/settings.h"
#include "cli/run_program.h"
#include "support/temp_folder.h"
#include "support/zone_map.h"

namespace campora {
namespace {

using Words = std::vector<std::string>;

TEST(OutsideNames, SettingsKeepTheKeysUnderWhichTheyAreStored) {
    std::set<std::string> keys;
    for (const SettingRow& row : settingRows()) {
        keys.emplace(row.key);
    }
    EXPECT_EQ(keys, outsideNames("settings"));
}

TEST(OutsideNames, JsonKeepsItsMembers) {
    const TempFolder folder;
    const std::string samples = CAMPORA_SOURCE_DIR "/samples";
    const std::string map = rowOfZones({"10", "20"}).write(folder, "map");
    const std::string cut = folder.write("cut.rpt", contentOf(samples + "/lote-demo.rpt") + "xyz");
    const std::string pre = folder.path() + "/a.pre";
    const std::string lot = folder.path() + "/a.lot";
    std::ostringstream out;
    std::ostringstream boxes;
    for (const Words& words :
         {Words{"prescribe", "--channel", map + ",DOSIS", "--swath", "50", "-o", pre},
          Words{"lot", "-60,-33", "-60,-32", "-59,-32", "-o", lot},
          Words{"info", "--json", samples + "/lote-demo.rpt", cut, map, pre, lot},
          Words{"orders", "--json", samples}}) {
        EXPECT_EQ(runProgram(words, CAMPORA_SOURCE_DIR "/data", {out, boxes}), 0) << boxes.str();
    }
    const std::string text = out.str();
    const std::regex member(R"re("(\w+)": )re");
    std::set<std::string> members;
    for (std::sregex_iterator found(text.begin(), text.end(), member), end; found != end; ++found) {
        members.insert((*found)[1]);
    }
    EXPECT_EQ(members, outsideNames("json"));
}

}  // namespace
}  // namespace campora
