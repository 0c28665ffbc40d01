// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// The map on paper: set up, looked at and saved as a PDF, in the real window.

#include <filesystem>
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
#include "base/paths.h"
#include "desktop/page_setup_dialog.h"
#include "desktop/print_dialog.h"
#include "desktop/print_preview.h"
#include "journeys/journey.h"

namespace campora {
namespace {

class PrintedPage : public Journey {
protected:
    TempFolder folder;

    /// Answers the print dialog with a file, and the question whether to open it with No.
    void printTo(const std::string& path) {
        inNextDialog<PrintDialog>([this, path](PrintDialog& dialog) {
            ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
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

int pixelsOf(const QImage& image, QRgb color) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += (image.pixel(x, y) & 0xFFFFFFU) == (color & 0xFFFFFFU) ? 1 : 0;
        }
    }
    return count;
}

TEST_F(PrintedPage, SetUpPreviewAndPdf) {
    openByDialog(CAMPORA_SOURCE_DIR "/samples/lote-demo.rpt");
    ASSERT_EQ(session().plotCount(), 1);
    inNextDialog<PageSetupDialog>([](PageSetupDialog& dialog) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        dialog.findChild<QPlainTextEdit*>("description")->setPlainText("Glifosato\n2 l/ha");
        QTest::mouseClick(dialog.findChild<QRadioButton*>("landscape"), Qt::LeftButton);
        dialog.accept();
    });
    choose("mnuFilePageSetup");
    EXPECT_EQ(session().printDescription, "Glifosato\n2 l/ha");

    const std::string fromPreview = folder.file("apaisada.pdf");
    inNextDialog<PrintPreview>([&](PrintPreview& preview) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&preview));
        printTo(fromPreview);
        preview.findChild<QAction*>("previewPrint")->trigger();
        preview.findChild<QAction*>("previewPortrait")->trigger();
        QTest::keyClick(&preview, Qt::Key_Escape);
    });
    click("preview");
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
        EXPECT_GT(pixelsOf(page, qRgb(0, 255, 0)), page.width() * page.height() / 20)
            << "the worked swaths";
    }
}

TEST_F(PrintedPage, WhatCannotBeWrittenIsReportedAndLeavesNothing) {
    openByDialog(CAMPORA_SOURCE_DIR "/samples/lote-demo.rpt");
    const std::string target = folder.file("protegido.pdf");
    ASSERT_FALSE(writeFile(target, std::as_bytes(std::span("old", 3))));
    std::filesystem::permissions(nativePath(target), std::filesystem::perms::owner_read);
    QString said;
    inNextDialog<PrintDialog>([&](PrintDialog& dialog) {
        giveFile(target);
        inNextDialog<QMessageBox>([&](QMessageBox& overwrite) {
            inNextDialog<QMessageBox>([&](QMessageBox& box) {
                said = box.text();
                box.accept();
            });
            overwrite.button(QMessageBox::Yes)->click();
        });
        dialog.accept();
    });
    choose("mnuFilePrint");
    EXPECT_TRUE(said.contains("protegido.pdf")) << toUtf8(said);
    EXPECT_EQ(readFile(target)->text(), "old");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(nativePath(folder.path())), {}), 1);
}

}  // namespace
}  // namespace campora
