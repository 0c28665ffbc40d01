// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/work_orders.h"

#include <filesystem>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/paths.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"
#include "support/work_files.h"

namespace campora {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

std::string track(const std::string& order, const std::string& date = "05-03-2018",
                  const std::string& start = "07:10:00") {
    TrackText text;
    text.order = order;
    text.date = date;
    text.startTime = start;
    text.addPoint(100, 0, 5, 20);
    return text.bytes();
}

/// "15 05-03-2018 07:10:00: LOG1.NBR log2.nbr", an order each.
std::vector<std::string> described(const std::vector<WorkOrder>& orders) {
    std::vector<std::string> texts;
    for (const WorkOrder& order : orders) {
        std::string text =
            std::to_string(order.number) + " " + order.date + " " + order.startTime + ":";
        for (const std::string& file : order.files) {
            text.append(" ").append(fileNamePart(file));
        }
        texts.push_back(std::move(text));
    }
    return texts;
}

TEST(WorkOrders, FilesAreGroupedByTheNumberInTheirHeaders) {
    const TempFolder folder;
    folder.write("log0003.nbr", track("15", "06-03-2018"));
    folder.write("LOG0002.NBR", track(" 15 ", "07-03-2018"));
    folder.write("Log0001.nbr", track("S/N"));
    folder.write("log0004.nbr", track("0", "01-01-2018"));
    folder.write("log0005.nbr", track("-7", "01-01-2018", "08:00:00"));
    folder.write("log0006.nbr.txt", track("15"));
    folder.write("log0007.nbr", "archivo borrado");
    folder.write("log0009.nbr", "*TRACKER LOG FILE* V1.3\r\n15\r\n0\r\n05-03");
    std::filesystem::create_directory(nativePath(folder.file("log0010.nbr")));
    folder.write("dentro/log0011.nbr", track("15"));
    EXPECT_THAT(described(scanFolder(folder.path(), {})),
                ElementsAre("0 05-03-2018 07:10:00: Log0001.nbr log0004.nbr",
                            "15 07-03-2018 07:10:00: LOG0002.NBR log0003.nbr",
                            "-7 01-01-2018 08:00:00: log0005.nbr"));
    EXPECT_TRUE(scanFolder(folder.file("falta"), {}).empty());
}

TEST(WorkOrders, AnOrderIsANumberOrNone) {
    const std::pair<const char*, std::int32_t> rows[] = {
        {"2147483647", 2147483647}, {"2147483648", 0}, {"12.5", 12}, {"0015", 15}, {"15b", 0}};
    for (const auto& [text, number] : rows) {
        EXPECT_EQ(decodeOrderHeader(track(text)).value().number, number) << text;
    }
}

/// Two tracks of one order, one with a summary, and a folder to copy them to.
class CopyOrder : public ::testing::Test {
protected:
    TempFolder folder;
    ScriptedDialogs dialogs;
    std::string destination = folder.file("copia");

    void SetUp() override {
        folder.write("card/LOG0001.NBR", track("15"));
        folder.write("card/wrk0001.TXT", "Lote:,La Loma,\r\n");
        folder.write("card/log0002.nbr", track("15"));
        std::filesystem::create_directory(nativePath(destination));
    }
    bool copyTo(const std::string& target) {
        return copyOrder(scanFolder(folder.file("card"), {}).at(0), target, {},
                         {dialogs, Texts(), FixedLocale()});
    }
    [[nodiscard]] std::string content(const std::string& name) const {
        return contentOf(folder.file(name));
    }
};

TEST_F(CopyOrder, AnotherContentIsReplacedOnlyWhenTheUserSaysSo) {
    for (const bool yes : {false, true}) {
        folder.write("copia/log0002.nbr", "otra cosa");
        dialogs.yesNoAnswers = {yes};
        dialogs.messages.clear();
        EXPECT_EQ(copyTo(destination), yes);
        EXPECT_EQ(content("copia/log0002.nbr") == "otra cosa", !yes);
        EXPECT_THAT(dialogs.messages,
                    ElementsAre(yes ? "Information|Campora| 3 archivos copiados"
                                    : "Information|Campora| 2 archivos copiados"));
    }
    EXPECT_THAT(dialogs.questions, testing::Each(HasSubstr("copia/log0002.nbr")));
    EXPECT_EQ(content("copia/LOG0001.NBR"), track("15"));
    EXPECT_EQ(content("copia/wrk0001.TXT"), "Lote:,La Loma,\r\n");
}

TEST_F(CopyOrder, FailuresAreNamedAndTheOthersCopied) {
    EXPECT_FALSE(copyTo(folder.file("card")));
    const std::string track1 = folder.file("card/LOG0001.NBR");
    EXPECT_THAT(dialogs.messages,
                ElementsAre(HasSubstr("wrk0001.TXT"),
                            "Exclamation|Campora|No se pudo copiar " + track1 +
                                ": el destino es el mismo archivo",
                            HasSubstr("log0002.nbr"), "Information|Campora| 0 archivos copiados"));
    EXPECT_EQ(content("card/LOG0001.NBR"), track("15"));

    dialogs.messages.clear();
    std::filesystem::create_directory(nativePath(folder.file("copia/LOG0001.NBR")));
    EXPECT_FALSE(copyTo(destination));
    EXPECT_THAT(dialogs.messages,
                ElementsAre("Exclamation|Campora|No se pudo copiar " + track1 + ": es una carpeta",
                            "Information|Campora| 2 archivos copiados"));
}

}  // namespace
}  // namespace campora
