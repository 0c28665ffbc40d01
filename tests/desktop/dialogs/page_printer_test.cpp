// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// Page set-up, the dialog to print, the preview, the About box and the window of keys.

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTreeWidget>
#include <gmock/gmock.h>

#include "campora_version.h"
#include "desktop/dialogs/about_dialog.h"
#include "desktop/dialogs/page_setup_dialog.h"
#include "desktop/dialogs/print_dialog.h"
#include "desktop/keys_dialog.h"
#include "desktop/window_fixture.h"

namespace campora {
namespace {

using testing::HasSubstr;

TEST(PageSetupDialog, AnswersWhatIsSetInIt) {
    PageSetup setup;
    setup.paper = papers()[1];
    PageSetupDialog dialog(setup, "uno\ndos", Texts(), nullptr);
    EXPECT_EQ(dialog.setup().margins, setup.margins);
    EXPECT_EQ(dialog.description(), "uno\ndos");
    dialog.findChild<QComboBox*>("paper")->setCurrentIndex(3);
    QTest::mouseClick(dialog.findChild<QRadioButton*>("portrait"), Qt::LeftButton);
    dialog.findChild<QSpinBox*>("marginLeft")->setValue(25);
    dialog.findChild<QCheckBox*>("includeSummary")->setChecked(false);
    dialog.findChild<QPlainTextEdit*>("description")->setPlainText("Viento: 8 km/h");
    EXPECT_EQ(dialog.setup().paper.key, "Letter");
    EXPECT_FALSE(dialog.setup().landscape);
    EXPECT_EQ(dialog.setup().margins, (PageMargins{25, 10, 10, 10}));
    EXPECT_TRUE(dialog.setup().legend && !dialog.setup().summary);
    EXPECT_EQ(dialog.description(), "Viento: 8 km/h");
}

TEST(PrintDialog, AlwaysOffersAPdfFile) {
    // The printers there are, the last one used and the one that is chosen.
    const std::tuple<QStringList, QString, QString> rows[] = {
        {{}, "Oficina", ""},
        {{"Casa", "Oficina"}, "Oficina", "Oficina"},
        {{"Casa"}, "Oficina", ""},
        {{"Casa"}, "", ""},
    };
    for (const auto& [printers, last, chosen] : rows) {
        PrintDialog dialog(printers, {last, 3, 300}, Texts(), nullptr);
        auto* const printer = dialog.findChild<QComboBox*>("printer");
        EXPECT_EQ(printer->count(), printers.size() + 1);
        EXPECT_EQ(dialog.target().printer, chosen);
        EXPECT_EQ(dialog.target().copies, chosen.isEmpty() ? 1 : 3);
        EXPECT_EQ(dialog.target().dotsPerInch, 300);
        EXPECT_EQ(dialog.findChild<QSpinBox*>("copies")->isEnabled(), !chosen.isEmpty());
        EXPECT_EQ(dialog.findChild<QLabel*>("noPrinters") != nullptr, printers.isEmpty());
    }
}

TEST(AboutDialog, TellsTheVersionAndCopiesIt) {
    MemoryClipboard clipboard;
    AboutDialog dialog(Texts(), clipboard, nullptr);
    QTest::mouseClick(dialog.findChild<QPushButton*>("copyVersion"), Qt::LeftButton);
    EXPECT_THAT(clipboard.text, HasSubstr("Campora " + std::string(kVersion)));
    EXPECT_THAT(clipboard.text, HasSubstr(std::string("Qt ") + qVersion()));
    EXPECT_EQ(toQt(clipboard.text), dialog.findChild<QPlainTextEdit*>("details")->toPlainText());
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
}

TEST(KeysDialog, TellsEveryKeyOfEveryCommand) {
    for (const Language language : {Language::Spanish, Language::Portuguese, Language::English}) {
        const Texts texts(language);
        const KeysDialog dialog(texts, nullptr);
        const auto* rows = dialog.findChild<QTreeWidget*>();
        for (const ActionRow& row : actionRows()) {
            const QString words = toQt(texts(row.text)).remove('&').remove("...");
            const auto found = rows->findItems(words, Qt::MatchExactly | Qt::MatchRecursive, 1);
            QStringList keys;
            for (const QTreeWidgetItem* item : found) {
                keys += item->text(0).split("   ");
            }
            for (const QKeySequence& key : keysOf(row)) {
                EXPECT_TRUE(keys.contains(key.toString(QKeySequence::NativeText))) << row.name;
            }
        }
        EXPECT_FALSE(rows->findItems(toQt(texts(TextId::GestureWheel)),
                                     Qt::MatchExactly | Qt::MatchRecursive, 0)
                         .isEmpty());
    }
}

}  // namespace
}  // namespace campora
