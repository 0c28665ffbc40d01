// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// What the program asks and says while it works stands in front and takes the keyboard, however
// long the user thinks about it.

#include <functional>
#include <string>
#include <vector>

#include <QInputDialog>
#include <QMessageBox>
#include <QProgressBar>

#include "base/paths.h"
#include "journeys/journey.h"
#include "support/work_files.h"
#include "work/work_orders.h"

namespace campora {
namespace {

constexpr int kThought = 3000;  // milliseconds

class Questions : public Journey {
protected:
    TempFolder folder;
    int asked = 0;

    /// Thinks about the next box, which names the file, types the answer where the keyboard is, and
    /// accepts it.
    template <typename Box>
    void answer(const std::string& file, const QString& typed) {
        inNextDialog<Box>([this, file, typed](Box& box) {
            QTest::qWait(kThought);
            EXPECT_EQ(QApplication::activeWindow(), &box);
            for (const QWidget* other : QApplication::topLevelWidgets()) {
                EXPECT_FALSE(other->isVisible() && other->findChild<QProgressBar*>() != nullptr &&
                             other->isModal());
            }
            QString text;
            for (const QLabel* label : box.template findChildren<QLabel*>()) {
                text += label->text();
            }
            EXPECT_TRUE(text.contains(toQt(fileNamePart(file)))) << toUtf8(text);
            ++asked;
            QTest::keyClicks(QApplication::focusWidget(), typed);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        });
    }
    std::string track(const std::string& name, int points) {
        TrackText text;
        for (int i = 0; i < points; ++i) {
            text.addPoint(100U * static_cast<std::uint32_t>(i), 0, 5, 20);
        }
        return folder.write(name, text.bytes());
    }
    std::string oldReport() {
        RptBytes report;
        report.addFourFields(fixAt(0, 0), 1000);
        report.addFourFields(fixAt(100, 0), 1000);
        return folder.write("viejo.rpt", report.bytes());
    }
    std::string goodReport() {
        RptBytes report(1, 0x6009);
        for (int i = 0; i < 3; ++i) {
            RptBytes::Record record;
            record.position = fixAt(10.0 * i, 0);
            report.add(record);
        }
        return folder.write("bueno.rpt", report.bytes());
    }
};

TEST_F(Questions, EachReadersQuestionIsInFrontAndTheNextFileOpens) {
    const std::string four = "t\r\na\tb\tc\td\r\n-61.2\t-34.6\t138\t15\r\n-61.2\t-34.7\t1\t15\r\n";
    const std::string six = "t\r\na\tb\tc\td\te\tf\r\n-61.2\t-34.6\t138\t140\t15."
                            "6\t7\t3086\t10:20:00\r\n";
    struct Row {
        std::vector<std::string> files;
        std::function<void(const std::string&)> act;
        int opened;
    };
    const auto types = [this](const char* typed) {
        return [this, typed](const std::string& file) { answer<QInputDialog>(file, typed); };
    };
    const auto returns = [this](const std::string& file) { answer<QMessageBox>(file, ""); };
    const Row rows[] = {
        {{oldReport()}, types("12"), 2},
        {{folder.write("cuatro.txt", four)}, types("12"), 2},
        {{folder.write("seis.txt", six)}, types("8"), 2},
        {{folder.write("vacio.pre", "")}, returns, 1},
        {{folder.write("lote.gpkg", "x")}, returns, 1},
        {{folder.write("otro.nbr", "*TRACKER*")}, returns, 1},
        {{track("log0001.nbr", 4), track("log0002.nbr", 3)}, returns, 2},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.files.back());
        asked = 0;
        row.act(row.files.back());
        std::vector<std::string> files = row.files;
        files.push_back(goodReport());
        // As if the files before had taken long.
        const auto before = session().services().dialogs.progress("antes");
        QTest::qWait(600);
        EXPECT_TRUE(before->report(1));
        window().openPaths(files, true);
        EXPECT_EQ(asked, 1);
        EXPECT_EQ(session().map().plotCount(), row.opened);
        EXPECT_TRUE(before->report(2));
    }
    EXPECT_TRUE(std::filesystem::exists(nativePath(folder.file("log0002.nbr"))));
}

TEST_F(Questions, CopiesOfOrdersAskBeforeTheyReplace) {
    folder.write("copia/log0001.nbr", "mine");
    track("tarjeta/log0001.nbr", 3);
    answer<QMessageBox>(folder.file("copia/log0001.nbr"), "");
    QTimer::singleShot(kThought + 1000, &window(), [this] {
        inNextDialog<QMessageBox>([](QMessageBox& told) { told.accept(); });
    });
    EXPECT_FALSE(copyOrder(scanFolder(folder.file("tarjeta"), {}).at(0), folder.file("copia"), {},
                           session().map().desk()));
    EXPECT_EQ(asked, 1);
}

}  // namespace
}  // namespace campora
