// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "cli/arguments.h"

#include <string>
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
    EXPECT_EQ(arguments.programFolder, "");
    EXPECT_EQ(arguments.swath, std::nullopt);
    EXPECT_EQ(arguments.columns, "8");
    EXPECT_FALSE(arguments.yes);
    EXPECT_FALSE(arguments.json);
    EXPECT_EQ(rendered({}).size, (PixelSize{1200, 900}));
    EXPECT_EQ(rendered({}).style.selectedChannel, -1);
    EXPECT_TRUE(rendered({}).overlay);
}

TEST(Arguments, OptionsStandAnywhere) {
    const Arguments arguments = parsed(
        {"info", "--decimal", ",", "a.rpt", "--json", "--language", "pt", "b.rpt", "--swath", "",
         "--columns", "4", "--program-dir", "datos", "--yes", "--date-format", "m/d/yy"});
    EXPECT_EQ(arguments.files, (Words{"a.rpt", "b.rpt"}));
    EXPECT_EQ(arguments.decimalSymbol, ',');
    EXPECT_TRUE(arguments.json);
    EXPECT_EQ(arguments.language, Language::Portuguese);
    EXPECT_EQ(arguments.swath, "");
    EXPECT_EQ(arguments.columns, "4");
    EXPECT_EQ(arguments.programFolder, "datos");
    EXPECT_TRUE(arguments.yes);
    EXPECT_EQ(arguments.dateForm, "m/d/yy");
}

TEST(Arguments, LooksOfThePicture) {
    EXPECT_EQ(rendered({"--size", "640x480"}).size, (PixelSize{640, 480}));
    EXPECT_EQ(rendered({"--mode", "alarm"}).style.mode, ColorMode::Alarm);
    EXPECT_EQ(rendered({"--mode", "date"}).style.mode, ColorMode::Date);
    EXPECT_EQ(rendered({"--mode", "error"}).style.mode, ColorMode::Error);
    EXPECT_TRUE(rendered({"--mode", "dose"}).style.graduated);
    EXPECT_FALSE(rendered({"--mode", "plain"}).style.graduated);
    EXPECT_EQ(rendered({"--mode", "plain"}).style.mode, ColorMode::Dose);
    EXPECT_EQ(rendered({"--by", "min"}).style.by, GraduatedBy::Minute);
    EXPECT_EQ(rendered({"--channel", "3"}).style.selectedChannel, 2);
    EXPECT_EQ(rendered({"--channel", "total"}).style.selectedChannel, -1);
    EXPECT_EQ(rendered({"--error-limit", "12.5"}).style.errorLimit, 12.5F);
    EXPECT_FALSE(rendered({"--only-worked"}).style.drawAll);
    EXPECT_TRUE(rendered({"--dotted"}).style.drawDotted);
    EXPECT_FALSE(rendered({"--no-borders"}).style.drawBorders);
    EXPECT_FALSE(rendered({"--no-overlay"}).overlay);
    EXPECT_EQ(parsed({"render", "a.rpt", "-o", "x/A.BMP"}).output, "x/A.BMP");
}

TEST(Arguments, AWrongCommandLineIsExplained) {
    struct Row {
        Words words;
        const char* sentence;
    };
    const Row rows[] = {
        {{}, "The command is missing"},
        {{"inform", "a.rpt"}, "Unknown command: inform"},
        {{"info"}, "A file is missing"},
        {{"info", "--json"}, "A file is missing"},
        {{"info", "a.rpt", "--size", "1x1"}, "Unknown option: --size"},
        {{"render", "a.rpt", "-o", "a.png", "--json"}, "Unknown option: --json"},
        {{"info", "-x", "a.rpt"}, "Unknown option: -x"},
        {{"info", "a.rpt", "--swath"}, "--swath needs a value"},
        {{"info", "a.rpt", "--swath", "ancho"}, "Wrong value for --swath: ancho"},
        {{"info", "a.rpt", "--swath", "16m"}, "Wrong value for --swath: 16m"},
        {{"info", "a.rpt", "--swath", "nan"}, "Wrong value for --swath: nan"},
        {{"info", "a.rpt", "--columns", "6"}, "Wrong value for --columns: 6"},
        {{"info", "a.rpt", "--decimal", ";"}, "Wrong value for --decimal: ;"},
        {{"info", "a.rpt", "--language", "de"}, "Wrong value for --language: de"},
        {{"info", "a.rpt", "--date-format", ""}, "Wrong value for --date-format: "},
        {{"render", "a.rpt"}, "Option -o is missing"},
        {{"render", "a.rpt", "-o", "a.jpg"}, "Wrong value for -o: a.jpg"},
        {{"render", "a.rpt", "-o", "a.png", "--mode", "nice"}, "Wrong value for --mode: nice"},
        {{"render", "a.rpt", "-o", "a.png", "--by", "h"}, "Wrong value for --by: h"},
        {{"render", "a.rpt", "-o", "a.png", "--channel", "0"}, "Wrong value for --channel: 0"},
        {{"render", "a.rpt", "-o", "a.png", "--channel", "-1"}, "Wrong value for --channel: -1"},
        {{"render", "a.rpt", "-o", "a.png", "--channel", "x"}, "Wrong value for --channel: x"},
        {{"render", "a.rpt", "-o", "a.png", "--error-limit", "-1"},
         "Wrong value for --error-limit: -1"},
        {{"render", "a.rpt", "-o", "a.png", "--error-limit", "101"},
         "Wrong value for --error-limit: 101"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.sentence);
        const Result<Arguments> result = parseArguments(row.words);
        ASSERT_FALSE(result);
        EXPECT_EQ(Texts(Language::English).sentence(result.failure()), row.sentence);
    }
}

TEST(Arguments, ThePictureHasASize) {
    for (const char* size : {"", "x", "640", "640x", "x480", "0x480", "640x-1", "640x480x3",
                             "640 x 480", "16385x10", "99999999999x1"}) {
        SCOPED_TRACE(size);
        EXPECT_FALSE(parseArguments(Words{"render", "a.rpt", "-o", "a.png", "--size", size}));
    }
    EXPECT_EQ(rendered({"--size", "16384x1"}).size, (PixelSize{16384, 1}));
}

TEST(Arguments, TheLanguageIsKnownEvenWhenTheRestIsWrong) {
    EXPECT_EQ(languageOf(Words{"inform", "--language", "en"}), Language::English);
    EXPECT_EQ(languageOf(Words{"info", "--language"}), Language::Spanish);
    EXPECT_EQ(languageOf(Words{}), Language::Spanish);
}

TEST(Arguments, TheUsageHasALineForEveryOption) {
    const std::string text = usage(Texts(Language::English));
    for (const char* line :
         {"\n  info", "\n      --json ", "\n  render", "\n      -o OUT.png|OUT.bmp ",
          "\n      --mode dose|alarm|date|error|plain ", "\n      --program-dir DIR "}) {
        EXPECT_NE(text.find(line), std::string::npos) << line;
    }
}

}  // namespace
}  // namespace campora
