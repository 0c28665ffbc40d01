// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// Lots drawn, saved, mended and merged in the real window.

#include <string>

#include <QInputDialog>
#include <QMessageBox>
#include <QPlainTextEdit>

#include "base/paths.h"
#include "desktop/lot_panel.h"
#include "journeys/journey.h"
#include "support/lot_files.h"

namespace campora {
namespace {

class Lots : public Journey {
protected:
    TempFolder folder;

    void clickOn(QPoint at) { QTest::mouseClick(&map(), Qt::LeftButton, {}, at); }
    void drawBox(QRect box) {
        for (const QPoint corner :
             {box.topLeft(), box.topRight(), box.bottomRight(), box.bottomLeft()}) {
            clickOn(corner);
        }
    }
    /// Answers the question for the number, then the file dialog.
    void saveAs(const char* number, const std::string& path) {
        inNextDialog<QInputDialog>([this, number, path](QInputDialog& dialog) {
            giveFile(path);
            dialog.setTextValue(number);
            dialog.accept();
        });
        click("cmdLoteSave");
    }
    void answer(QMessageBox::StandardButton button) {
        inNextDialog<QMessageBox>(
            [button](QMessageBox& box) { QTest::mouseClick(box.button(button), Qt::LeftButton); });
    }
    [[nodiscard]] std::vector<LonLat> inFile(const std::string& path) const {
        return decodeLot(contentOf(path)).vertices;
    }
    [[nodiscard]] std::size_t drawn() const {
        return session().lotEditor().draft().vertices().size();
    }
};

TEST_F(Lots, DrawnSavedMendedAndMerged) {
    openByDialog(writeLot(folder, "campo.lot", squareRing(-60, -34, 0.02)));
    ASSERT_EQ(session().map().plotCount(), 1);
    answer(QMessageBox::No);  // to edit that one
    click("lote");
    ASSERT_TRUE(window().lotPanel().isVisible());

    drawBox({100, 100, 120, 100});
    ASSERT_EQ(drawn(), 4U);
    drag({219, 100}, {250, 90});
    QTest::keyClick(&map(), Qt::Key_Z, Qt::ControlModifier);
    window().findChild<QPlainTextEdit*>("txtLoteDescription")->setPlainText("Potrero norte");
    const std::string first = folder.file("lote01.lot");
    saveAs("1", first);
    ASSERT_EQ(session().map().plotCount(), 2);
    EXPECT_TRUE(contentOf(first).starts_with("Potrero norte\r\n"));

    click("cmdLoteClear");
    drawBox({180, 150, 150, 120});
    const std::string second = folder.file("lote02.lot");
    saveAs("2", second);
    ASSERT_EQ(session().map().plotCount(), 3);
    click("cmdLoteClose");
    EXPECT_FALSE(window().lotPanel().isVisible());

    // The first one is opened again and mended.
    openByDialog(first);
    ASSERT_EQ(session().map().plotCount(), 1);
    choose("mnuToolLoteEdit");
    ASSERT_EQ(drawn(), 4U);
    const std::vector<LonLat> before = inFile(first);
    window().lotPanel().vertices().setFocus();
    window().lotPanel().vertices().selectRow(0);
    QTest::keyClick(&window().lotPanel().vertices(), Qt::Key_Insert);
    click("cmdLoteSaveBack");
    EXPECT_EQ(inFile(first).size(), before.size() + 1);
    click("cmdLoteClose");

    session().fileCommands().openPaths({second}, false);
    ASSERT_EQ(session().map().plotCount(), 2);
    choose("mnuToolLoteMerge");
    ASSERT_EQ(session().map().plotCount(), 3);
    EXPECT_EQ(toUtf8(window().sidePanel().files().item(0)->text()),
              session().texts()(TextId::MergedName));
    const std::string merged = folder.file("union.lot");
    giveFile(merged);
    choose("mnuToolLoteSave");
    EXPECT_EQ(inFile(merged).size(), 8U);
    EXPECT_EQ(window().sidePanel().files().item(0)->text(), "union.lot");
}

}  // namespace
}  // namespace campora
