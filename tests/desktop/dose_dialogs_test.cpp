// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <functional>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include "desktop/dialogs/dose_column_dialog.h"
#include "desktop/dialogs/select_dose_dialog.h"
#include "desktop/platform/qt_text.h"
#include "desktop/widgets/color_list.h"
#include "support/session_desk.h"
#include "support/zone_map.h"

namespace campora {
namespace {

struct DoseColumnDialogTest : testing::Test {
    template <typename Widget>
    Widget& part(const char* name, int row = 0) {
        return *dialog.findChildren<Widget*>(name).at(row);
    }
    void click(const char* name, int row = 0) { part<QPushButton>(name, row).click(); }
    void openMap(int row, const std::string& name) {
        const std::string path = rowOfZones({"10", "20"}).write(desk.folder, name);
        desk.dialogs.openAnswers.push_back({path});
        click("cmdOpen", row);
    }

    SessionDesk desk;
    DoseColumnDialog dialog{desk.session.map(), desk.session.services(), nullptr};
};

TEST_F(DoseColumnDialogTest, HandsOverTheMapsWithTheirColumns) {
    QTimer::singleShot(0, &dialog, [this] {
        click("cmdOk");
        EXPECT_EQ(desk.dialogs.messages.size(), 1U);
        openMap(0, "R&D.lote");
        EXPECT_EQ(part<QPushButton>("cmdOpen").text(), "R&&D.lote.shp");
        EXPECT_TRUE(part<QLabel>("lblChannel").toolTip().contains("R&amp;D.lote.shp"));
        QComboBox& columns = part<QComboBox>("cbDosis");
        EXPECT_EQ(columns.currentIndex(), -1);
        columns.setCurrentIndex(1);
        EXPECT_EQ(part<QLabel>("lblNumDosis").text(), "Invalido: Valores No Numericos");
        columns.setCurrentIndex(0);
        EXPECT_EQ(part<QLabel>("lblNumDosis").text(), "3 dosis diferentes");
        EXPECT_FALSE(part<QProgressBar>("progress").isVisible());
        click("cmdOk");
    });
    const std::vector<std::unique_ptr<GphPresc>> channels = dialog.choose();
    ASSERT_EQ(channels.size(), 1U);
    EXPECT_EQ(channels[0]->polygons()[1].dosis, 20);
}

TEST_F(DoseColumnDialogTest, StaysAsItIsWhileAMapIsRead) {
    dialog.show();
    bool shown = false;
    desk.clock.onEvents = [&](int) {
        const QProgressBar& bar = part<QProgressBar>("progress");
        shown = shown || bar.isVisible();
        EXPECT_FALSE(part<QPushButton>("cmdOk").isEnabled());
        EXPECT_FALSE(part<QPushButton>("cmdOpen").isEnabled());
        dialog.reject();
        EXPECT_TRUE(dialog.isVisible());
    };
    openMap(0, "lote");
    EXPECT_TRUE(shown);
    EXPECT_TRUE(part<QPushButton>("cmdOk").isEnabled());
    EXPECT_TRUE(part<QComboBox>("cbDosis").isEnabled());
    dialog.reject();
    EXPECT_FALSE(dialog.isVisible());
}

struct SelectDoseDialogTest : testing::Test {
    SelectDoseDialogTest() {
        SetList set;
        set.addDosis(0);
        set.addDosis(72.5);
        scale.loadFromSetList(set, 0);
    }
    /// The dose that the dialog gives when someone does this to it.
    std::optional<float> ask(const ColorScale* offered, std::function<void(QDialog&)> act) {
        SelectDoseDialog dialog(offered, 12, desk.session.map().desk(), nullptr);
        QTimer::singleShot(0, &dialog, [&] {
            ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
            act(dialog);
        });
        return dialog.getDosis();
    }
    static void accept(QDialog& dialog) { dialog.findChild<QPushButton*>("cmdOk")->click(); }

    SessionDesk desk;
    ColorScale scale;
};

TEST_F(SelectDoseDialogTest, GivesADoseOfTheScale) {
    EXPECT_EQ(ask(&scale,
                  [this](QDialog& dialog) {
                      auto* const viewer = dialog.findChild<ColorList*>("viewer");
                      EXPECT_EQ(viewer->count(), 2);
                      accept(dialog);
                      EXPECT_EQ(desk.dialogs.messages.size(), 1U);  // nothing is selected
                      dialog.findChild<QLineEdit*>("txtNewDosis")->setFocus();
                      EXPECT_TRUE(dialog.findChild<QRadioButton*>("rbManual")->isChecked());
                      QTest::mouseClick(viewer->viewport(), Qt::LeftButton, {},
                                        viewer->visualItemRect(viewer->item(1)).center());
                      EXPECT_TRUE(dialog.findChild<QRadioButton*>("rbExistent")->isChecked());
                      accept(dialog);
                  }),
              72.5F);
}

TEST_F(SelectDoseDialogTest, GivesANewDose) {
    EXPECT_EQ(ask(nullptr,
                  [this](QDialog& dialog) {
                      EXPECT_FALSE(dialog.findChild<QRadioButton*>("rbExistent")->isEnabled());
                      EXPECT_GT(dialog.findChild<QPushButton*>("cmdCancel")->x(),
                                dialog.findChild<QPushButton*>("cmdOk")->x());
                      EXPECT_EQ(dialog.findChild<QLineEdit*>("txtNewDosis")->text(), "12");
                      QTest::keyClicks(dialog.focusWidget(), "nada");
                      accept(dialog);
                      EXPECT_EQ(desk.dialogs.messages.size(), 1U);
                      dialog.findChild<QLineEdit*>("txtNewDosis")->setText("33.5");
                      QTest::keyClick(&dialog, Qt::Key_Return);
                  }),
              33.5F);
    EXPECT_EQ(ask(&scale, [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }),
              std::nullopt);
}

}  // namespace
}  // namespace campora
