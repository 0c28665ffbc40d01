// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// The map on paper: set up, looked at and saved as a PDF, in the real window.

#include <string>

#include <QComboBox>
#include <QImage>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QStandardPaths>

#include "base/files.h"
#include "desktop/dialogs/page_setup_dialog.h"
#include "desktop/dialogs/print_dialog.h"
#include "desktop/dialogs/print_preview.h"
#include "journeys/journey.h"

namespace campora {
namespace {

class PrintedPage : public Journey {
protected:
    TempFolder folder;

    /// Answers the print dialog with a file, and the question whether to open it with No.
    void printTo(const std::string& path) {
        inNextDialog<PrintDialog>([this, path](PrintDialog& dialog) {
            ASSERT_TRUE(becomesActive(dialog));
            auto* const printer = dialog.findChild<QComboBox*>("printer");
            printer->setCurrentIndex(printer->count() - 1);
            giveFile(path);
            inNextDialog<QMessageBox>([](QMessageBox& box) { box.reject(); });
            QTest::keyClick(&dialog, Qt::Key_Return);
        });
    }
    /// The page at 50 dots an inch; null where the tool for it is missing.
    [[nodiscard]] QImage pictureOf(const std::string& pdf) const {
        const QString tool = QStandardPaths::findExecutable("pdftoppm");
        if (tool.isEmpty()) {
            return {};
        }
        const QString picture = toQt(folder.file("page"));
        QProcess::execute(tool, {"-r", "50", "-png", "-singlefile", toQt(pdf), picture});
        return QImage(picture + ".png");
    }
};

/// Pixels that are green, be it mixed with the borders between them.
int greenPixels(const QImage& image) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            count += color.green() > 2 * color.red() && color.green() > 2 * color.blue() ? 1 : 0;
        }
    }
    return count;
}

TEST_F(PrintedPage, SetUpPreviewAndPdf) {
    openByDialog(CAMPORA_SOURCE_DIR "/samples/lote-demo.rpt");
    ASSERT_EQ(session().map().plotCount(), 1);
    inNextDialog<PageSetupDialog>([](PageSetupDialog& dialog) {
        ASSERT_TRUE(becomesActive(dialog));
        dialog.findChild<QPlainTextEdit*>("description")->setPlainText("Glifosato\n2 l/ha");
        QTest::mouseClick(dialog.findChild<QRadioButton*>("landscape"), Qt::LeftButton);
        dialog.accept();
    });
    choose("mnuFilePageSetup");
    EXPECT_EQ(
        PrintCommands(session().map(), session().display(), session().services()).description(),
        "Glifosato\n2 l/ha");

    const std::string fromPreview = folder.file("apaisada.pdf");
    inNextDialog<PrintPreview>([&](PrintPreview& preview) {
        ASSERT_TRUE(becomesActive(preview));
        printTo(fromPreview);
        preview.findChild<QAction*>("previewPrint")->trigger();
        preview.findChild<QAction*>("previewPortrait")->trigger();
        QTest::keyClick(&preview, Qt::Key_Escape);
    });
    click("preview");
    ASSERT_TRUE(becomesActive(window()));
    const std::string fromBar = folder.file("vertical.pdf");
    printTo(fromBar);
    QTest::keyClick(&map(), Qt::Key_P, Qt::ControlModifier);

    for (const auto& [path, isWide] : {std::pair(fromPreview, true), std::pair(fromBar, false)}) {
        const Result<FileBytes> pdf = readFile(path);
        ASSERT_TRUE(pdf) << path;
        EXPECT_TRUE(pdf->text().starts_with("%PDF-"));
        const QImage page = pictureOf(path);
        if (page.isNull()) {
            GTEST_SKIP() << "pdftoppm is not installed";
        }
        EXPECT_EQ(page.width() > page.height(), isWide);
        EXPECT_GT(greenPixels(page), page.width() * page.height() / 10) << "the worked swaths";
    }
}

TEST_F(PrintedPage, WhatCannotBeWrittenIsReported) {
    openByDialog(CAMPORA_SOURCE_DIR "/samples/lote-demo.rpt");
    const std::string target = "/proc/lote.pdf";  // where nobody can make a file
    QString said;
    inNextDialog<PrintDialog>([&](PrintDialog& dialog) {
        giveFile(target);
        inNextDialog<QMessageBox>([&](QMessageBox& box) {
            said = box.text();
            box.accept();
        });
        dialog.accept();
    });
    choose("mnuFilePrint");
    EXPECT_TRUE(said.contains(toQt(target))) << toUtf8(said);
    EXPECT_FALSE(said.contains("%"));
}

}  // namespace
}  // namespace campora
