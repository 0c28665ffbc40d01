// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/dialogs/shp_export_dialog.h"

#include <filesystem>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>

#include "desktop/window_fixture.h"

namespace campora {
namespace {

class ShpExportTest : public WindowTest {
protected:
    [[nodiscard]] std::string track(const std::string& name) const {
        TrackText text;
        for (std::uint32_t i = 0; i < 30; ++i) {
            text.addPoint(100 * i, 0, 50, 20);
        }
        return folder.write(name, text.bytes());
    }
    /// Opens the dialog by its command and acts in it once it stands.
    void inDialog(const std::vector<std::string>& chosen,
                  std::function<void(ShpExportDialog&)> act) {
        dialogs.openAnswers.push_back(chosen);
        bool acted = false;
        QTimer::singleShot(0, window.get(), [&] {
            auto* const dialog = dynamic_cast<ShpExportDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            act(*dialog);
            acted = true;
            dialog->close();
        });
        action(TextId::ActionExportFiles)->trigger();
        EXPECT_TRUE(acted);
    }
    template <typename Widget>
    static Widget& in(ShpExportDialog& dialog, const char* name) {
        return *dialog.findChild<Widget*>(name);
    }
    static void press(ShpExportDialog& dialog, const char* name) {
        QTest::mouseClick(&in<QPushButton>(dialog, name), Qt::LeftButton);
    }
    [[nodiscard]] std::uintmax_t sizeOf(const char* name) const {
        std::error_code error;
        const auto size = std::filesystem::file_size(folder.file(name), error);
        return error ? 0 : size;
    }
};

TEST_F(ShpExportTest, OneFileCanGoElsewhere) {
    const std::string path = track("a.nbr");
    inDialog({path}, [&](ShpExportDialog& dialog) {
        EXPECT_EQ(in<QLineEdit>(dialog, "txtOrig").text(), toQt(path));
        auto& target = in<QLineEdit>(dialog, "txtDest");
        EXPECT_EQ(target.text(), toQt(folder.file("a.shp")));
        target.clear();
        EXPECT_FALSE(in<QPushButton>(dialog, "cmdExport").isEnabled());
        dialogs.saveAnswers = {{folder.file("otra.shp"), 0}};
        for (auto* const button : dialog.findChildren<QPushButton*>()) {
            if (button->accessibleName() == "Elegir el archivo de destino") {
                QTest::mouseClick(button, Qt::LeftButton);
            }
        }
        EXPECT_EQ(target.text(), toQt(folder.file("otra.shp")));
        in<QSlider>(dialog, "Slider1").setValue(500);
        EXPECT_EQ(in<QLabel>(dialog, "lblSlider").text(), "100");
        press(dialog, "cmdExport");
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_TRUE(dialogs.opens.at(0).several);
    EXPECT_EQ(dialogs.messages,
              std::vector<std::string>{"Information|Campora|Archivo exportado correctamente."});
    EXPECT_EQ(sizeOf("otra.shx"), 108U) << "one polygon of at most 100 points";
    EXPECT_EQ(sizeOf("a.shp"), 0U);
}

TEST_F(ShpExportTest, ClosingDuringARunStopsAfterThePresentFile) {
    const std::vector<std::string> paths{track("a.nbr"), track("b.nbr")};
    inDialog(paths, [&](ShpExportDialog& dialog) {
        clock.onEvents = [&](int) { dialog.close(); };
        press(dialog, "cmdExport");
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_GT(sizeOf("a.shp"), 100U);
    EXPECT_EQ(sizeOf("b.shp"), 0U);
}

}  // namespace
}  // namespace campora
