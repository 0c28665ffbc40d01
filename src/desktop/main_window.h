// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <QMainWindow>
#include <QTimer>

#include "app/command_line.h"
#include "app/session.h"
#include "desktop/actions.h"

class QLabel;
class QSplitter;
class QToolBar;

namespace campora {

class ElidedLabel;
class LotPanel;
class MapArea;
class ReplayBar;
class SidePanel;
class TimeStripView;

/// The main window: shows what the session says and hands the user's commands to it.
class MainWindow final : public QMainWindow, public MainWindowControls {
    Q_OBJECT

public:
    /// Smallest and first size in logical pixels.
    static constexpr QSize kMinimumSize{563, 559};
    static constexpr QSize kFirstSize{1280, 860};

    MainWindow(const Services& services, Language language, const std::string& programFolder);
    ~MainWindow() override;

    [[nodiscard]] Session& session() const { return *session_; }
    [[nodiscard]] MapArea& mapArea() const { return *mapArea_; }
    [[nodiscard]] SidePanel& sidePanel() const { return *sidePanel_; }
    [[nodiscard]] LotPanel& lotPanel() const { return *lotPanel_; }

    /// Settings and tables are read now; what the command line asks for is done when the window
    /// stands on the screen. `programPath`: the running program.
    void start(const std::string& programPath, StartRequest request);
    /// Opens files and the supported files of folders.
    void openPaths(const std::vector<std::string>& paths, bool inPlaceOfOthers);
    /// All texts of the window in the session's language.
    void retranslate() override;
    /// Runs a command and shows what has changed with it.
    void perform(const ActionRow& row);

    // The commands that are more than a call of the session.
    void openWorkOrders();
    /// `row`: of the summary, -1 for none.
    void openSummaryMenu(int row, QPoint place);
    void goToCoordinate();
    void compareDoses();
    void setUpPage();
    void printPreview();
    void print();
    void useTool(ToolId tool);
    /// Back to moving the map by dragging it.
    void leaveTool();
    void showKeys();
    void showAbout();
    void toggleSidePanel();
    [[nodiscard]] bool sidePanelShown() const;
    /// A narrow window has no room for it while a lot is drawn.
    [[nodiscard]] bool hasRoomForSidePanel() const;
    void toggleFullScreen();
    void stepProblem(bool forward);
    void toggleTimeStrip();
    [[nodiscard]] bool timeStripWanted() const { return timeStripWanted_; }

    void setTitle(std::string_view title) override;
    void setFileList(std::span<const FileListRow> rows, std::optional<int> selected) override;
    void setSummary(std::span<const SummaryRow> rows) override;
    void setLegend(const LegendContent& legend) override;
    void setViewControls(const ViewControls& controls) override;
    void active(bool enabled, bool replayControls) override;
    void commandsChanged() override;
    void setReplay(const ReplayState& state) override;
    void setSpeedReadout(std::string_view text) override;
    void setOverlay(const MapOverlay& overlay) override;
    void setPosition(std::string_view text) override;
    void setToolText(std::string_view text) override;
    void setWorkStatus(std::string_view text) override;

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void arrange();
    void makeStatusBar();
    void makeLotPanel();
    void connectMap();
    void connectFileList();
    void connectReplay();
    void connectMenus();
    /// Shows or hides the panel beside the map as the editor of lots is open or not.
    void showLotPanel();
    void arrangePanels();
    /// Shows or hides the strip under the map as it is wanted and has something to show.
    void showTimeStrip();
    void fillMenus();
    void fillRecentMenu();
    void fillChannelMenu();
    void fillAlarmMenu();
    void zoomAt(CanvasPoint at, int steps);
    /// The map is drawn anew once nothing has moved it for a moment.
    void settleSoon();
    void showScale();
    [[nodiscard]] Availability availability() const;

    Services services_;
    QToolBar* tools_;
    MapArea* mapArea_;
    SidePanel* sidePanel_;
    QSplitter* splitter_;
    TimeStripView* timeStrip_;
    bool timeStripWanted_;
    ReplayBar* replayBar_;
    /// Made when there is a session.
    LotPanel* lotPanel_ = nullptr;
    bool sidePanelWanted_ = true;
    QLabel* position_;
    QLabel* toolText_;
    ElidedLabel* workStatus_;
    QLabel* scale_;
    std::unique_ptr<ActionSet> actions_;
    std::unique_ptr<Session> session_;
    StartRequest startRequest_;
    QTimer settle_;
    bool mapActive_ = false;
    bool replayActive_ = false;
    bool fileMenuActive_ = true;
    /// Alarm entries, which come after the commands of their menu.
    std::vector<QAction*> alarmActions_;
};

}  // namespace campora
