// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// What is on the map goes out in every format, and track files in a batch, in the real window.

#include <filesystem>
#include <string>

#include <QComboBox>
#include <QImage>
#include <QListWidget>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>

#include "app/out/export_formats.h"
#include "base/paths.h"
#include "desktop/dialogs/shp_export_dialog.h"
#include "journeys/journey.h"
#include "support/work_files.h"

namespace campora {
namespace {

/// The desktop's command that opens a file with its program, as one that takes notes.
class OtherPrograms {
public:
    OtherPrograms() {
        const std::string command = folder_.write("xdg-open", "#!/bin/sh\necho \"${1##*/}\" >>'" +
                                                                  folder_.file("opened") + "'\n");
        std::filesystem::permissions(command, std::filesystem::perms::owner_all);
        qputenv("PATH", toQt(folder_.path()).toUtf8() + ":" + path_);
    }
    OtherPrograms(const OtherPrograms&) = delete;
    OtherPrograms& operator=(const OtherPrograms&) = delete;
    ~OtherPrograms() { qputenv("PATH", path_); }

    /// Names of the files that were opened, a line each.
    [[nodiscard]] std::string opened() const { return contentOf(folder_.file("opened")); }

private:
    TempFolder folder_;
    QByteArray path_ = qgetenv("PATH");
};

class Export : public Journey {
protected:
    TempFolder folder;
    OtherPrograms others;

    /// Exports the map in the format of that place in the save dialog.
    void exportAs(int format, const std::string& name) {
        inNextDialog<QFileDialog>([&](QFileDialog& dialog) {
            auto* const types = dialog.findChild<QComboBox*>("fileTypeCombo");
            ASSERT_EQ(types->count(), static_cast<int>(exportFormats().size()));
            for (int i = 0; i < format; ++i) {
                QTest::keyClick(types, Qt::Key_Down);
            }
            auto* const line = dialog.findChild<QLineEdit*>();
            line->setText(toQt(folder.file(name)));
            QTest::keyClick(line, Qt::Key_Return);
        });
        click("export");
    }
    [[nodiscard]] std::uintmax_t sizeOf(const std::string& name) const {
        std::error_code error;
        const auto size = std::filesystem::file_size(nativePath(folder.file(name)), error);
        return error ? 0 : size;
    }
};

TEST_F(Export, AJobInEveryFormat) {
    choose("mnuHelpLangEsp");
    openByDialog(CAMPORA_SOURCE_DIR "/samples/lote-demo.rpt");
    ASSERT_EQ(session().map().plotCount(), 1);
    int place = 0;
    for (const ExportFormat& format : exportFormats()) {
        SCOPED_TRACE(format.word);
        bool asked = false;
        if (format.after == AfterExport::AskToOpen) {
            inNextDialog<QMessageBox>([&asked](QMessageBox& box) {
                asked = true;
                EXPECT_TRUE(box.text().contains("Google Earth")) << toUtf8(box.text());
                QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
            });
        }
        const std::string name = "salida-" + std::string(format.word);
        exportAs(place++, name);  // the dialog adds the ending
        EXPECT_GT(sizeOf(name + std::string(format.ending)), 100U);
        EXPECT_EQ(asked, format.after == AfterExport::AskToOpen);
    }
    // The batch program makes the same picture of the whole map, scale bar and all.
    const QImage shown(toQt(folder.file("salida-png.png")));
    const QString size = QString("%1x%2").arg(shown.width()).arg(shown.height());
    ASSERT_EQ(QProcess::execute(CAMPORA_BATCH_PROGRAM,
                                {"render", CAMPORA_SOURCE_DIR "/samples/lote-demo.rpt", "--size",
                                 size, "-o", toQt(folder.file("lotes.png"))}),
              0);
    EXPECT_EQ(contentOf(folder.file("lotes.png")), contentOf(folder.file("salida-png.png")));
    EXPECT_EQ(others.opened(), "salida-kml.kml\nsalida-txt.txt\nsalida-txt-comma.txt\n");
}

TEST_F(Export, ThreeTrackFilesOfWhichOneIsBroken) {
    choose("mnuHelpLangEsp");
    TrackText track;
    for (std::uint32_t i = 0; i < 40; ++i) {
        track.addPoint(100 * i, 0, 50, 20);
    }
    folder.write("uno.nbr", track.bytes());
    folder.write("dos.nbr", track.bytes().substr(5));
    folder.write("tres.nbr", track.bytes());
    inNextDialog<QFileDialog>([this](QFileDialog& dialog) {
        dialog.setDirectory(toQt(folder.path()));
        auto* const line = dialog.findChild<QLineEdit*>();
        line->setText(R"("uno.nbr" "dos.nbr" "tres.nbr")");
        QTest::keyClick(line, Qt::Key_Return);
    });
    inNextDialog<ShpExportDialog>([](ShpExportDialog& dialog) {
        QTest::keyClick(&dialog, Qt::Key_Return);
        auto& lines = *dialog.findChild<QListWidget*>("msgs");
        ASSERT_EQ(lines.count(), 3);
        EXPECT_EQ(lines.item(1)->text(), "Exportando dos.nbr:...........Error");
        EXPECT_EQ(lines.item(2)->text(), "Exportando tres.nbr:...........Ok");
        QTest::mouseClick(dialog.findChild<QPushButton*>("CmdCancel"), Qt::LeftButton);
    });
    choose("mnuFileExportSel");
    EXPECT_GT(sizeOf("uno.shp"), 100U);
    EXPECT_EQ(sizeOf("dos.shp"), 0U);
    EXPECT_GT(sizeOf("tres.dbf"), 100U);
}

}  // namespace
}  // namespace campora
