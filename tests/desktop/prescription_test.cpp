// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <QComboBox>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>

#include "desktop/dialogs/dose_column_dialog.h"
#include "desktop/dialogs/select_dose_dialog.h"
#include "desktop/widgets/color_list.h"
#include "desktop/window_fixture.h"
#include "support/zone_map.h"

namespace campora {
namespace {

struct PrescriptionWindowTest : WindowTest {
    template <typename Dialog>
    void whenOpen(void (*act)(Dialog& dialog)) {
        QTimer::singleShot(0, window.get(), [this, act] {
            auto* const dialog = window->findChild<Dialog*>();
            ASSERT_NE(dialog, nullptr);
            act(*dialog);
        });
    }
    void create() {
        dialogs.openAnswers.push_back({rowOfZones({"10", "20"}).write(folder, "lote")});
        whenOpen<DoseColumnDialog>([](DoseColumnDialog& dialog) {
            dialog.findChild<QPushButton*>("cmdOpen")->click();
            dialog.findChild<QComboBox*>("cbDosis")->setCurrentIndex(0);
            dialog.findChild<QPushButton*>("cmdOk")->click();
        });
        action(TextId::ActionNewPrescription)->trigger();
    }
    [[nodiscard]] bool can(TextId text) const { return action(text)->isEnabled(); }
};

TEST_F(PrescriptionWindowTest, CommandsFollowThePrescription) {
    EXPECT_TRUE(can(TextId::ActionNewPrescription));
    for (const TextId text :
         {TextId::ActionSavePrescription, TextId::ActionSaveVrt, TextId::ChangeDose}) {
        EXPECT_FALSE(can(text));
    }
    create();
    EXPECT_EQ(rows(), std::vector<std::string>{"Prescripción"});
    for (const TextId text : {TextId::ActionClosePrescription, TextId::ActionSavePrescription,
                              TextId::ActionSaveVrt, TextId::ChangeDose}) {
        EXPECT_TRUE(can(text));
    }
    action(TextId::ActionClosePrescription)->trigger();
    EXPECT_TRUE(rows().empty());
    EXPECT_TRUE(can(TextId::ActionNewPrescription));
    EXPECT_FALSE(can(TextId::ChangeDose));
}

TEST_F(PrescriptionWindowTest, AClickWithTheDoseToolChangesAZone) {
    create();
    action(TextId::ChangeDose)->trigger();
    whenOpen<SelectDoseDialog>([](SelectDoseDialog& dialog) {
        dialog.findChild<ColorList*>("viewer")->setCurrentRow(2);
        dialog.findChild<QPushButton*>("cmdOk")->click();
    });
    const CanvasPoint at = view().transform().mapToScreen(-59.995, -32.995);
    QTest::mouseClick(&map(), Qt::LeftButton, {},
                      {at.x / RasterCanvas::kUnitsPerPixel, at.y / RasterCanvas::kUnitsPerPixel});
    const GphPrescVex* const made = window->session().prescCommands().prescription();
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->channel(0).polygons()[0].dosis, 20);
    EXPECT_TRUE(dialogs.messages.empty());
}

}  // namespace
}  // namespace campora
