// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/qt_dialogs.h"

#include <functional>

#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include "desktop/widget_texts.h"
#include "desktop/window_fixture.h"

namespace campora {
namespace {

class QtDialogsTest : public ::testing::Test {
protected:
    QWidget window;
    Texts texts{Language::Spanish};
    WidgetTexts widgetTexts{texts};
    QtDialogs dialogs;

    void SetUp() override {
        dialogs.attach(window, texts);
        QCoreApplication::installTranslator(&widgetTexts);
    }
    void TearDown() override { QCoreApplication::removeTranslator(&widgetTexts); }

    /// Does something with the next box of that kind, once it is open.
    template <typename Box>
    void whenOpen(std::function<void(Box&)> act) {
        QTimer::singleShot(0, [act] {
            auto* box = qobject_cast<Box*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            act(*box);
        });
    }
};

TEST_F(QtDialogsTest, MessageShowsItsTextAsItStands) {
    whenOpen<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), "Campora");
        EXPECT_EQ(box.text(), "Archivo sin puntos: /tmp/<b>1</b>.rpt");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.icon(), QMessageBox::Warning);
        EXPECT_EQ(box.button(QMessageBox::Ok)->text().remove('&'), "Aceptar");
        box.button(QMessageBox::Ok)->click();
    });
    dialogs.message("Archivo sin puntos: /tmp/<b>1</b>.rpt\r\n", MessageIcon::Exclamation,
                    "Campora");
}

TEST_F(QtDialogsTest, NothingIsAgreedToByEnterOrEsc) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        whenOpen<QMessageBox>([key](QMessageBox& box) {
            EXPECT_EQ(box.button(QMessageBox::Yes)->text().remove('&'), "Sí");
            QTest::keyClick(&box, key);
        });
        EXPECT_FALSE(dialogs.askYesNo("¿Borrar?", MessageIcon::Exclamation, "Campora"));
    }
    whenOpen<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); });
    EXPECT_TRUE(dialogs.askYesNo("¿Borrar?", MessageIcon::Exclamation, "Campora"));
}

TEST_F(QtDialogsTest, InputBoxNamesItsFileAndTellsCancelFromNothing) {
    const InputRequest question{TextId::AskSwath, "Campora", "16", "/tmp/<b>\x1B\u202E.rpt"};
    whenOpen<QInputDialog>([this](QInputDialog& box) {
        EXPECT_EQ(box.labelText(), toQt(texts(TextId::AskSwath)) + "\n/tmp/<b>\uFFFD\uFFFD.rpt");
        EXPECT_EQ(box.findChild<QLabel*>()->textFormat(), Qt::PlainText);
        EXPECT_EQ(box.textValue(), "16");
        box.setTextValue("18,5");
        box.accept();
    });
    EXPECT_EQ(dialogs.inputBox(question), "18,5");
    whenOpen<QInputDialog>([](QInputDialog& box) {
        box.setTextValue("");
        box.accept();
    });
    EXPECT_EQ(dialogs.inputBox(question), "");
    whenOpen<QInputDialog>([](QInputDialog& box) { box.reject(); });
    EXPECT_EQ(dialogs.inputBox(question), std::nullopt);
}

TEST_F(QtDialogsTest, OpenDialogOffersTheFilters) {
    const TempFolder folder;
    folder.write("lote.rpt", "x");
    whenOpen<QFileDialog>([](QFileDialog& box) {
        EXPECT_EQ(box.nameFilters(), (QStringList{"Todo (*.rpt *.nbr)", "Otros (*)"}));
        box.selectFile("lote.rpt");
        QMetaObject::invokeMethod(&box, "accept");
    });
    EXPECT_EQ(dialogs.openFiles(
                  {"Abrir", folder.path(), {{"Todo", {"*.rpt", "*.nbr"}}, {"Otros", {"*"}}}}),
              std::vector{folder.file("lote.rpt")});
}

}  // namespace
}  // namespace campora
