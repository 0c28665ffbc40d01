// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "cli/arguments.h"

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace campora {
namespace {

using Words = std::vector<std::string>;

Arguments parsed(const Words& words) {
    const Result<Arguments> result = parseArguments(words);
    if (!result) {
        ADD_FAILURE() << Texts(Language::English).sentence(result.failure());
        return {};
    }
    return *result;
}

Arguments rendered(Words options) {
    options.insert(options.begin(), {"render", "a.rpt", "-o", "a.png"});
    return parsed(options);
}

TEST(Arguments, WithoutOptionsTheDefaultsHold) {
    const Arguments arguments = parsed({"info", "a.rpt", "b.nbr"});
    EXPECT_EQ(arguments.command, Command::Info);
    EXPECT_EQ(arguments.files, (Words{"a.rpt", "b.nbr"}));
    EXPECT_EQ(arguments.language, Language::Spanish);
    EXPECT_EQ(arguments.decimalSymbol, '.');
    EXPECT_EQ(arguments.dateForm, "dd/mm/yyyy");
    EXPECT_EQ(rendered({}).size, (PixelSize{1200, 900}));
    EXPECT_EQ(rendered({}).style.selectedChannel, -1);
    EXPECT_TRUE(rendered({}).overlay);
}

TEST(Arguments, OptionsStandAnywhere) {
    const Arguments arguments = parsed(
        {"info", "--decimal", ",", "a.rpt", "--json", "--language", "pt", "b.rpt", "--swath", "5,5",
         "--columns", "4", "--program-dir", "datos", "--yes", "--date-format", "m/d/yy"});
    EXPECT_EQ(arguments.files, (Words{"a.rpt", "b.rpt"}));
    EXPECT_EQ(arguments.decimalSymbol, ',');
    EXPECT_TRUE(arguments.json);
    EXPECT_EQ(arguments.language, Language::Portuguese);
    EXPECT_EQ(arguments.swath, "5,5");
    EXPECT_EQ(arguments.columns, "4");
    EXPECT_EQ(arguments.programFolder, "datos");
    EXPECT_TRUE(arguments.yes);
    EXPECT_EQ(arguments.dateForm, "m/d/yy");
}

TEST(Arguments, AnOrderIsCopiedToAFolder) {
    const Arguments arguments =
        parsed({"orders", "--copy", "-3", "copia", "--json", "tarjeta", "--copy", "0", "b c"});
    EXPECT_EQ(arguments.files, Words{"tarjeta"});
    EXPECT_EQ(arguments.copy, (OrderCopy{0, "b c"}));
    EXPECT_TRUE(arguments.json);
    EXPECT_EQ(parsed({"orders", "tarjeta"}).copy, std::nullopt);
}

TEST(Arguments, LooksOfThePicture) {
    EXPECT_EQ(rendered({"--size", "16384x1"}).size, (PixelSize{16384, 1}));
    EXPECT_EQ(rendered({"--by", "min"}).style.by, GraduatedBy::Minute);
    EXPECT_EQ(rendered({"--channel", "3"}).style.selectedChannel, 2);
    EXPECT_EQ(rendered({"--channel", "total"}).style.selectedChannel, -1);
    EXPECT_EQ(rendered({"--error-limit", "12.5"}).style.errorLimit, 12.5F);
    EXPECT_EQ(parsed({"render", "a.rpt", "-o", "x/A.BMP"}).output, "x/A.BMP");
}

/// Why the words are refused, in English.
std::string refused(const Words& words) {
    const Result<Arguments> result = parseArguments(words);
    return result ? "accepted" : Texts(Language::English).sentence(result.failure());
}

TEST(Arguments, AWrongCommandLineIsExplained) {
    const std::pair<Words, const char*> rows[] = {
        {{}, "The command is missing"},
        {{"inform", "a.rpt"}, "Unknown command: inform"},
        {{"info", "--json"}, "A file is missing"},
        {{"info", "a.rpt", "--size", "1x1"}, "Unknown option: --size"},
        {{"info", "a.rpt", "--swath"}, "--swath needs a value"},
        {{"render", "a.rpt"}, "Option -o is missing"},
        {{"orders", "a", "--copy", "15"}, "--copy needs a value"},
        {{"orders", "a", "--copy", "15b", "c"}, "Wrong value for --copy: 15b"},
        {{"orders", "a", "b"}, "Unknown option: b"},
        {{"render", "a.rpt", "-o", "a.jpg"}, "Wrong value for -o: a.jpg"},
    };
    for (const auto& [words, sentence] : rows) {
        EXPECT_EQ(refused(words), sentence);
    }
}

TEST(Arguments, AWrongValueIsNamed) {
    const std::pair<const char*, std::vector<const char*>> rows[] = {
        {"--swath", {"ancho", "16m", "nan"}},
        {"--columns", {"6"}},
        {"--decimal", {";"}},
        {"--language", {"de"}},
        {"--date-format", {""}},
        {"--mode", {"nice"}},
        {"--by", {"h"}},
        {"--channel", {"0", "-1", "x"}},
        {"--error-limit", {"-1", "101"}},
        {"--size",
         {"", "x", "640", "640x", "x480", "0x480", "640x-1", "640x480x3", "640 x 480", "16385x10",
          "99999999999x1"}},
    };
    for (const auto& [option, values] : rows) {
        for (const char* value : values) {
            EXPECT_EQ(refused({"render", "a.rpt", "-o", "a.png", option, value}),
                      std::string("Wrong value for ") + option + ": " + value);
        }
    }
}

TEST(Arguments, TheLanguageIsKnownEvenWhenTheRestIsWrong) {
    EXPECT_EQ(languageOf(Words{"inform", "--language", "en"}), Language::English);
    EXPECT_EQ(languageOf(Words{"info", "--language"}), Language::Spanish);
}

}  // namespace
}  // namespace campora
