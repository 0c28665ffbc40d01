// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/platform/qt_dialogs.h"

#include <functional>

#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

#include "desktop/platform/widget_texts.h"
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

/// The captions of the progress windows that show.
QStringList shownProgress() {
    QStringList captions;
    for (const QWidget* widget : QApplication::topLevelWidgets()) {
        const auto inIt = Qt::FindDirectChildrenOnly;
        if (widget->isVisible() && widget->findChild<QProgressBar*>({}, inIt) != nullptr) {
            const auto* const label = widget->findChild<QLabel*>({}, inIt);
            EXPECT_EQ(label->textFormat(), Qt::PlainText);
            captions += label->text();
        }
    }
    return captions;
}

TEST_F(QtDialogsTest, ProgressComesLateAndNeverOverABox) {
    const auto work = dialogs.progress("Abriendo <b>\x1B");
    const auto reportsLater = [&work] {
        QTest::qWait(550);
        return work->report(10);
    };
    const QStringList own{"Abriendo <b>\uFFFD"};
    EXPECT_TRUE(work->report(0));
    EXPECT_EQ(shownProgress(), QStringList());
    EXPECT_TRUE(reportsLater());
    EXPECT_EQ(shownProgress(), own);
    whenOpen<QMessageBox>([&](QMessageBox& box) {
        EXPECT_EQ(shownProgress(), QStringList());
        EXPECT_TRUE(reportsLater());
        EXPECT_EQ(shownProgress(), QStringList());
        const auto preview = dialogs.progress("vista");
        QTest::qWait(550);
        EXPECT_TRUE(preview->report(1));
        EXPECT_EQ(shownProgress(), QStringList{"vista"}) << "work of the box itself";
        box.accept();
    });
    dialogs.message("mal", MessageIcon::Error, "Campora");
    EXPECT_TRUE(work->report(11));
    EXPECT_EQ(shownProgress(), QStringList()) << "no flash before the next question";
    EXPECT_TRUE(reportsLater());
    EXPECT_EQ(shownProgress(), own);
}

TEST_F(QtDialogsTest, OnlyTheInnermostProgressShowsAndKeysDoNotCancelIt) {
    const auto work = dialogs.progress("fuera");
    QTest::qWait(550);
    EXPECT_TRUE(work->report(1));
    {
        const auto inner = dialogs.progress("dentro");
        QTest::qWait(550);
        EXPECT_TRUE(work->report(2));
        EXPECT_TRUE(inner->report(2));
        EXPECT_EQ(shownProgress(), QStringList{"dentro"});
    }
    EXPECT_TRUE(work->report(3));
    EXPECT_EQ(shownProgress(), QStringList{"fuera"});
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClick(QApplication::focusWidget(), key);
        EXPECT_TRUE(work->report(4));
    }
    ASSERT_NE(QApplication::activeModalWidget(), nullptr);
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
    EXPECT_FALSE(work->report(5));
    EXPECT_EQ(shownProgress(), QStringList());
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
