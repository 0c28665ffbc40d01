// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "cli/parse_arguments.h"

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "base/text.h"

namespace campora {
namespace {

using Words = std::vector<std::string>;

/// The words of a line.
Words wordsOf(std::string_view line) {
    const std::vector<std::string_view> words = split(line, ' ');
    return line.empty() ? Words() : Words(words.begin(), words.end());
}

/// Why the words are refused, in English.
std::string refused(const Words& words) {
    const Result<Arguments> result = parseArguments(words);
    return result ? "accepted" : Texts(Language::English).sentence(result.failure());
}

Arguments parsed(std::string_view line) {
    const Words words = wordsOf(line);
    EXPECT_EQ(refused(words), "accepted") << line;
    const Result<Arguments> result = parseArguments(words);
    return result ? *result : Arguments();
}

Arguments rendered(const std::string& options) {
    return parsed("render a.rpt -o a.png" + options);
}

TEST(Arguments, AnOrderIsCopiedToAFolder) {
    const Arguments arguments = parsed("orders --copy -3 copia --json tarjeta --copy 0 b");
    EXPECT_EQ(arguments.files, Words{"tarjeta"});
    EXPECT_EQ(arguments.copy, (OrderCopy{0, "b"}));
    EXPECT_TRUE(arguments.json);
}

TEST(Arguments, LooksOfThePicture) {
    EXPECT_EQ(rendered(" --size 16384x1").size, (PixelSize{16384, 1}));
    EXPECT_EQ(rendered(" --mode alarm").style.mode, ColorMode::Alarm);
    EXPECT_TRUE(rendered(" --mode dose").style.graduated);
    EXPECT_FALSE(rendered(" --mode plain").style.graduated);
    EXPECT_EQ(rendered(" --by min").style.by, GraduatedBy::Minute);
    EXPECT_TRUE(rendered(" --scale percentile").style.spreadClasses);
    EXPECT_FALSE(rendered(" --only-worked").style.drawAll);
    EXPECT_TRUE(rendered(" --dotted").style.drawDotted);
    EXPECT_FALSE(rendered(" --no-borders").style.drawBorders);
    EXPECT_FALSE(rendered(" --no-overlay").overlay);
    EXPECT_EQ(rendered(" --channel 3").style.selectedChannel, 2);
    EXPECT_EQ(rendered(" --error-limit 12.5").style.errorLimit, 12.5F);
    EXPECT_EQ(parsed("export-track a --polygon-length 100").trackExport.polygonLength, 100);
    EXPECT_EQ(parsed("render a.rpt -o x/A.BMP").output, "x/A.BMP");
}

TEST(Arguments, AWrongCommandLineIsExplained) {
    const std::pair<const char*, const char*> rows[] = {
        {"", "The command is missing"},
        {"inform a.rpt", "Unknown command: inform"},
        {"info --json", "A file is missing"},
        {"info a.rpt --size 1x1", "Unknown option: --size"},
        {"info a.rpt --swath", "--swath needs a value"},
        {"orders a --copy 15", "--copy needs a value"},
        {"orders a --copy 15b c", "Wrong value for --copy: 15b"},
        {"orders a b", "Unknown option: b"},
        {"report-to-text a.rpt b.rpt -o c.txt", "Unknown option: b.rpt"},
        {"render a.rpt", "Option -o is missing"},
        {"lot 1,1 2,2 3,1", "Option -o is missing"},
        {"export a.rpt -o a.kml", "Option --format is missing"},
        {"export --format kml -o a.kml", "A file is missing"},
        {"export-track a.nbr b.nbr -o c", "Wrong value for -o: c"},
        {"lot 1,1 2,2 -o a.lot", "A lot needs at least three vertices"},
        {"lot 1,1 2,2 3 -o a.lot", "Wrong value for lot: 3"},
        {"lot 1,1 2,2 181,0 -o a.lot", "Wrong value for lot: 181,0"},
        {"lot 1,1 2,2 nan,0 -o a.lot", "Wrong value for lot: nan,0"},
        {"lot 1,1 2,2 3,1 -o a.txt", "Wrong value for -o: a.txt"},
        {"merge b.lot -o a.shp", "Wrong value for -o: a.shp"},
        {"prescribe -o a.pre", "Option --channel is missing"},
        {"prescribe b --channel a.shp,D -o a.pre", "Unknown option: b"},
        {"prescribe --channel a.shp,D -o a.vrt", "Wrong value for -o: a.vrt"},
        {"prescribe --channel a.shp,D -o a.vrt --format vrt", "Option --resolution is missing"},
    };
    for (const auto& [line, sentence] : rows) {
        EXPECT_EQ(refused(wordsOf(line)), sentence) << line;
    }
}

TEST(Arguments, AWrongValueIsNamed) {
    const char* const render = "render a.rpt -o a.png";
    const char* const prescribe = "prescribe --channel a.shp,D -o a.pre";
    const std::tuple<const char*, const char*, Words> rows[] = {
        {render, "--swath", {"16m", "nan"}},
        {render, "--columns", {"6"}},
        {render, "--decimal", {";"}},
        {render, "--language", {"de"}},
        {render, "--date-format", {""}},
        {render, "--mode", {"nice"}},
        {render, "--by", {"h"}},
        {render, "--channel", {"0", "-1", "x"}},
        {render, "--error-limit", {"-1", "101"}},
        {render, "--size", {"", "640", "640x", "0x480", "640x-1", "640x480x3", "16385x10"}},
        {render, "-o", {"a.jpg"}},
        {"export a.rpt -o a", "--format", {"dxf"}},
        {"export-track a.nbr", "--polygon-length", {"0", "101"}},
        {prescribe, "--channel", {"a.shp", "a.shp,,5"}},
        {prescribe, "--oversize", {"no"}},
        {prescribe, "--blanks", {"0"}},
        {prescribe, "--decimal-column", {";"}},
    };
    for (const auto& [line, option, values] : rows) {
        for (const std::string& value : values) {
            Words words = wordsOf(line);
            words.insert(words.end(), {option, value});
            EXPECT_EQ(refused(words), std::string("Wrong value for ") + option + ": " + value);
        }
    }
}

TEST(Arguments, TheLanguageIsKnownEvenWhenTheRestIsWrong) {
    EXPECT_EQ(languageOf(wordsOf("inform --language en")), Language::English);
    EXPECT_EQ(languageOf(wordsOf("info --language")), Language::Spanish);
}

}  // namespace
}  // namespace campora
