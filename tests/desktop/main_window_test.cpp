// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/main_window.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QDropEvent>
#include <QHeaderView>
#include <QMimeData>
#include <gmock/gmock.h>

#include "desktop/widgets/color_list.h"
#include "desktop/widgets/legend_view.h"
#include "desktop/widgets/summary_table.h"
#include "desktop/window_fixture.h"

namespace campora {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr int kUnits = RasterCanvas::kUnitsPerPixel;

/// Pixels of the map that are not background.
int drawnPixels(const QImage& image) {
    int drawn = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            drawn += image.pixel(x, y) != qRgb(255, 255, 255) ? 1 : 0;
        }
    }
    return drawn;
}

TEST_F(WindowTest, ShowsWhatIsToBeSaidAboutAFile) {
    std::string bytes = contentOf(writeReport("lote.rpt"));
    bytes[32 + 27] = 1;  // the highest byte of the first swath
    open({folder.write("roto.rpt", bytes), writeReport("sano.rpt", 9000)});
    const char* const remark = "con 167812.16 m, en (";
    EXPECT_THAT(toUtf8(list().item(0)->toolTip()), HasSubstr(remark));
    EXPECT_THAT(toUtf8(list().item(0)->data(Qt::AccessibleTextRole).toString()), HasSubstr(remark));
    EXPECT_EQ(list().item(1)->toolTip(), plainToolTip("sano.rpt"));
    const SummaryTable& summary = window->sidePanel().summary();
    const QTreeWidgetItem& last = *summary.topLevelItem(summary.topLevelItemCount() - 1);
    EXPECT_EQ(toUtf8(last.text(0)), "Observación");
    EXPECT_THAT(toUtf8(last.text(1)), HasSubstr(remark));
    const auto marked = summary.findItems("(!)", Qt::MatchContains, 1);
    ASSERT_EQ(marked.size(), 1);
    EXPECT_EQ(toUtf8(marked.front()->text(0)), "Hectáreas fumig:");
}

TEST_F(WindowTest, DroppedFilesAndFoldersJoinTheOpenOnes) {
    open({writeReport("lote.rpt")});
    const std::string single = writeReport("suelto.rpt", 1000);
    writeReport("dia/b.rpt", 2000);
    writeReport("dia/A.RPT", 3000);
    folder.write("dia/notas.doc", "x");

    QMimeData data;
    data.setUrls(
        {QUrl::fromLocalFile(toQt(single)), QUrl::fromLocalFile(toQt(folder.file("dia")))});
    QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &drop);
    QCoreApplication::processEvents();  // the drop is answered before files are read

    EXPECT_THAT(rows(), ElementsAre("lote.rpt", "suelto.rpt", "A.RPT", "b.rpt"));
}

TEST_F(WindowTest, SubmenusStandBeforeTheirEntries) {
    const QList<QAction*> entries = window->menuBar()->actions().first()->menu()->actions();
    const qsizetype reload = entries.indexOf(window->findChild<QAction*>("mnuFileReload"));
    ASSERT_GT(reload, 0);
    EXPECT_NE(entries[reload - 1]->menu(), nullptr);
    EXPECT_EQ(window->findChild<QSlider*>("animation")->minimum(), 0);
}

TEST_F(WindowTest, ResizingKeepsTheWholeMap) {
    open({writeReport("lote.rpt")});
    action(TextId::ActionZoomIn)->trigger();
    ASSERT_TRUE(controls().horizontal.visible);
    for (const QSize size : {QSize(700, 900), MainWindow::kMinimumSize, QSize(1400, 600)}) {
        window->resize(size);
        QCoreApplication::processEvents();
        const CanvasSize canvas = map().canvas().size();
        EXPECT_EQ(canvas, (CanvasSize{map().width() * kUnits, map().height() * kUnits}));
        EXPECT_FALSE(controls().horizontal.visible);
        EXPECT_FALSE(controls().vertical.visible);
        const BoundingBox& box = view().totalBound;
        const CanvasPoint low = view().transform().mapToScreen(box.minX, box.minY);
        const CanvasPoint high = view().transform().mapToScreen(box.maxX, box.maxY);
        EXPECT_TRUE(low.x > 0 && high.x < canvas.width && high.y > 0 && low.y < canvas.height);
    }
}

TEST_F(WindowTest, OpensWithSettingsThatAreNonsense) {
    window->close();
    for (auto& [key, value] : settings.values) {
        value = "%%%";
    }
    openWindow(Language::Spanish);
    EXPECT_GE(window->width(), MainWindow::kMinimumSize.width());
}

TEST_F(WindowTest, TabLeadsThroughAllParts) {
    open({writeReport("lote.rpt")});
    const SidePanel& panel = window->sidePanel();
    const LegendView& legend = panel.legend();
    ASSERT_EQ(QApplication::focusWidget(), &map());
    const std::vector<const QWidget*> parts{&panel.files(),
                                            &panel.summary(),
                                            &legend.classes(),
                                            &legend.reference(),
                                            window->findChild<QWidget*>("CmdPlay"),
                                            window->findChild<QWidget*>("open"),
                                            &map()};
    std::size_t reached = 0;
    for (int steps = 0; steps < 40 && reached < parts.size(); ++steps) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        reached += QApplication::focusWidget() == parts[reached] ? 1 : 0;
    }
    EXPECT_EQ(reached, parts.size());
}

class WindowInLanguage : public WindowTest, public testing::WithParamInterface<Language> {
protected:
    void SetUp() override { openWindow(GetParam()); }
};

/// All that a person reads in the window while no file is open.
QMap<QString, QString> shownTexts(const MainWindow& window) {
    QMap<QString, QString> texts;
    for (const QAction* shown : window.findChildren<QAction*>()) {
        texts[shown->text()] = shown->objectName();
        texts[shown->toolTip()] = shown->objectName() + " (tooltip)";
    }
    for (const QMenu* menu : window.findChildren<QMenu*>()) {
        texts[menu->title()] = "menu";
    }
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        const QString name = widget->metaObject()->className() + widget->objectName();
        for (const char* property : {"text", "title", "toolTip", "accessibleName",
                                     "accessibleDescription", "placeholderText"}) {
            texts[widget->property(property).toString()] = name + "." + property;
        }
        if (const auto* tree = qobject_cast<const QTreeWidget*>(widget)) {
            texts[tree->headerItem()->text(0)] = name;
            texts[tree->headerItem()->text(1)] = name;
        }
        if (const auto* list = qobject_cast<const QListWidget*>(widget)) {
            for (int i = 0; i < list->count(); ++i) {
                texts[list->item(i)->text()] = name;
            }
        }
    }
    texts.remove("");
    return texts;
}

TEST_P(WindowInLanguage, EveryTextIsFromTheTable) {
    // Coming from another language leaves nothing of it behind.
    window->session().setLanguage(GetParam() == Language::Spanish ? Language::English
                                                                  : Language::Spanish);
    window->session().setLanguage(GetParam());
    QSet<QString> table;
    for (const TextRow& row : textRows()) {
        const QString text = toQt(window->session().texts()(row.id));
        table += text;
        table += QString(text).remove('&');
        table += QString(text).remove('&').remove("...");  // on tool buttons
    }
    // "Canal %1", "Sodel - %1": a place filled with a number or with another text of the table.
    QStringList beginnings;
    for (const QString& text : table) {
        if (text.endsWith("%1") && text.size() > 2) {
            beginnings += text.chopped(2);
        }
    }
    const auto isFilled = [&](const QString& text) {
        return std::any_of(beginnings.begin(), beginnings.end(), [&](const QString& beginning) {
            const QString rest = text.mid(beginning.size());
            bool isNumber = false;
            static_cast<void>(rest.toInt(&isNumber));
            return text.startsWith(beginning) && (isNumber || table.contains(rest));
        });
    };
    const QMap<QString, QString> shown = shownTexts(*window);
    EXPECT_GT(shown.size(), 100);
    for (auto text = shown.begin(); text != shown.end(); ++text) {
        if (text.value() == "QLabelreplayClock.text") {
            continue;  // figures
        }
        // Those of grey entries have the reason in a line of its own.
        const bool isWhole = table.contains(text.key());
        for (const QString& line : isWhole ? QStringList(text.key()) : text.key().split('\n')) {
            // Tooltips carry their keys behind them.
            const QString bare = QString(line).remove(QRegularExpression(" \\([^()]+\\)$"));
            EXPECT_TRUE(table.contains(line) || table.contains(bare) || isFilled(line))
                << toUtf8(text.value() + ": " + text.key());
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, WindowInLanguage,
                         testing::Values(Language::Spanish, Language::Portuguese,
                                         Language::English));

TEST_P(WindowInLanguage, EveryCommandHasTextTooltipAndItsPicture) {
    for (const ActionRow& row : actionRows()) {
        const auto* shown = window->findChild<QAction*>(row.name);
        ASSERT_NE(shown, nullptr);
        SCOPED_TRACE(toUtf8(shown->text()));
        EXPECT_THAT(toUtf8(shown->toolTip()), HasSubstr(window->session().texts()(row.tooltip)));
        if (*row.icon != '\0') {
            EXPECT_NE(drawnPixels(shown->icon().pixmap(24, 24).toImage()), 0);
        }
        if (*row.shortcuts != '\0') {
            EXPECT_FALSE(shown->shortcut().isEmpty());
        }
    }
}

TEST_P(WindowInLanguage, NoKeyIsTakenTwice) {
    QMap<QKeySequence, QString> taken;
    for (const ActionRow& row : actionRows()) {
        for (const QKeySequence& key : window->findChild<QAction*>(row.name)->shortcuts()) {
            EXPECT_FALSE(taken.contains(key)) << toUtf8(key.toString() + " of " + taken[key]);
            taken[key] = row.name;
        }
    }
}

TEST_P(WindowInLanguage, NothingIsCutOffAtTheMinimumSize) {
    open({writeReport("lote.rpt")});
    window->resize(MainWindow::kMinimumSize);
    QCoreApplication::processEvents();
    EXPECT_EQ(window->size(), MainWindow::kMinimumSize);
    for (const QWidget* widget : window->findChildren<QWidget*>()) {
        if (!widget->isVisible() || widget->parentWidget() == nullptr || widget->isWindow()) {
            continue;
        }
        SCOPED_TRACE(std::string(widget->metaObject()->className()) + " " +
                     toUtf8(widget->accessibleName()));
        if (const auto* rows = qobject_cast<const QAbstractScrollArea*>(widget)) {
            const auto* const list = qobject_cast<const QListWidget*>(rows);
            const bool isLow = qobject_cast<const QHeaderView*>(rows) != nullptr ||
                               (list != nullptr && list->count() == 1);
            const int least = isLow ? 1 : 2;
            EXPECT_GE(rows->viewport()->height(), least * rows->fontMetrics().height());
            continue;
        }
        const QSize least = widget->minimumSizeHint();
        EXPECT_GE(widget->width(), least.width());
        EXPECT_GE(widget->height(), least.height());
        if (qobject_cast<const QAbstractButton*>(widget) != nullptr) {
            EXPECT_TRUE(widget->parentWidget()->rect().contains(widget->geometry()));
        }
    }
}

TEST_P(WindowInLanguage, WhatTakesTheFocusHasAName) {
    open({writeReport("lote.rpt")});
    for (const QWidget* widget : window->findChildren<QWidget*>()) {
        if (widget->isVisible() && (widget->focusPolicy() & Qt::TabFocus) != 0) {
            EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->metaObject()->className();
        }
    }
}

}  // namespace
}  // namespace campora
