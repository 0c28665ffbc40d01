// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// From two maps of zones to a prescription file and back, in the real window.

#include <filesystem>
#include <set>
#include <string>

#include <QComboBox>
#include <QInputDialog>
#include <QMessageBox>

#include "base/paths.h"
#include "desktop/dialogs/dose_column_dialog.h"
#include "desktop/dialogs/select_dose_dialog.h"
#include "desktop/widgets/color_list.h"
#include "desktop/widgets/legend_view.h"
#include "journeys/journey.h"
#include "support/zone_map.h"

namespace campora {
namespace {

class Prescription : public Journey {
protected:
    TempFolder folder;

    /// Chooses the map of a row of the dialog and the first of its columns.
    void fillRow(DoseColumnDialog& dialog, int row, const std::string& path) {
        giveFile(path);
        QTest::mouseClick(dialog.findChildren<QPushButton*>("cmdOpen").at(row), Qt::LeftButton);
        QComboBox& columns = *dialog.findChildren<QComboBox*>("cbDosis").at(row);
        QTest::keyClick(&columns, Qt::Key_Down);
        EXPECT_EQ(columns.currentText(), "DOSIS");
    }
    void answerInput(const QString& answer) {
        inNextDialog<QInputDialog>([answer](QInputDialog& dialog) {
            dialog.setTextValue(answer);
            dialog.accept();
        });
    }
    void clickOnZone(int n) {
        const CanvasPoint at =
            session().display().view().transform().mapToScreen(-59.995 + 0.01 * n, -32.995);
        QTest::mouseClick(
            &map(), Qt::LeftButton, {},
            {at.x / RasterCanvas::kUnitsPerPixel, at.y / RasterCanvas::kUnitsPerPixel});
    }
    /// The values of the legend's classes.
    [[nodiscard]] std::set<std::string> legend() const {
        std::set<std::string> values;
        const ColorList& rows = window().sidePanel().legend().classes();
        for (int i = 0; i < rows.count(); ++i) {
            values.insert(toUtf8(rows.item(i)->text()));
        }
        return values;
    }
};

TEST_F(Prescription, FromTwoMapsToAFileAndBack) {
    const std::string first = rowOfZones({"100", "50", "80"}).write(folder, "uno");
    const std::string second = rowOfZones({"7", "9"}).write(folder, "dos");
    inNextDialog<DoseColumnDialog>([&](DoseColumnDialog& dialog) {
        ASSERT_TRUE(becomesActive(dialog));
        fillRow(dialog, 0, first);
        QTest::mouseClick(dialog.findChild<QPushButton*>("cmdAdd"), Qt::LeftButton);
        fillRow(dialog, 1, second);
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    choose("mnuFilePrescript");
    ASSERT_EQ(session().map().plotCount(), 1);
    EXPECT_EQ(legend(), (std::set<std::string>{"0", "50", "80", "100"}));

    click("prescDosis");
    inNextDialog<SelectDoseDialog>([](SelectDoseDialog& dialog) {
        ASSERT_TRUE(becomesActive(dialog));
        dialog.findChild<QLineEdit*>("txtNewDosis")->setFocus();
        dialog.findChild<QLineEdit*>("txtNewDosis")->setText("65");
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    clickOnZone(1);
    EXPECT_EQ(legend(), (std::set<std::string>{"0", "65", "80", "100"}));
    answerInput("120");
    session().colours().legend.askClassValue(3);
    EXPECT_EQ(legend(), (std::set<std::string>{"0", "65", "80", "120"}));

    const std::string target = folder.file("salida.pre");
    giveFile(target);
    int inputs = 0;
    // The swath width and the two fallback doses, then what was written.
    inNextDialog<QInputDialog>([this, &inputs](QInputDialog& dialog) {
        inNextDialog<QInputDialog>([this, &inputs](QInputDialog& fallback) {
            inNextDialog<QInputDialog>([this, &inputs](QInputDialog& last) {
                inNextDialog<QMessageBox>([](QMessageBox& box) { box.accept(); });
                ++inputs;
                last.accept();
            });
            ++inputs;
            fallback.setTextValue("1");
            fallback.accept();
        });
        ++inputs;
        dialog.setTextValue("20");
        dialog.accept();
    });
    choose("mnuFileSavePrescript");
    EXPECT_EQ(inputs, 3);
    ASSERT_TRUE(std::filesystem::exists(nativePath(target)));
    EXPECT_TRUE(std::filesystem::exists(nativePath(folder.file("salida.rpt"))));

    choose("mnuFilePrescript");
    EXPECT_EQ(session().map().plotCount(), 0);
    giveFile(target);
    choose("mnuFileOpen");
    ASSERT_EQ(session().map().plotCount(), 1);
    EXPECT_EQ(legend(), (std::set<std::string>{"1", "65", "80", "120"}));
}

}  // namespace
}  // namespace campora
