// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/main_window.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <QApplication>
#include <QDragEnterEvent>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QScrollBar>
#include <QSplitter>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>
#include <QWindow>

#include "app/settings.h"
#include "app/start_up.h"
#include "app/unsaved_work.h"
#include "desktop/lot_panel.h"
#include "desktop/platform/pointer_override.h"
#include "desktop/platform/qt_text.h"
#include "desktop/widgets/elided_label.h"
#include "desktop/widgets/file_list_view.h"
#include "desktop/widgets/finding_view.h"
#include "desktop/widgets/legend_view.h"
#include "desktop/widgets/map_area.h"
#include "desktop/widgets/map_widget.h"
#include "desktop/widgets/replay_bar.h"
#include "desktop/widgets/side_panel.h"
#include "desktop/widgets/summary_table.h"
#include "desktop/widgets/time_strip_view.h"
#include "pages/page_scale.h"

namespace campora {

namespace {

constexpr int kPanelWidth = 320;
/// Milliseconds without wheel or movement after which a moved map is drawn anew.
constexpr int kSettleMs = 120;
constexpr double kMetresPerCanvasUnit = 0.0254 / 1440;

QByteArray decoded(const std::string& setting) {
    return QByteArray::fromBase64(QByteArray::fromStdString(setting));
}

/// What the canvas shows, in steps of a scroll bar.
int pageSteps(float shownMetres, float metresPerStep) {
    return static_cast<int>(std::lround(shownMetres / metresPerStep));
}

MapTools::Button buttonOf(Qt::MouseButton button) {
    switch (button) {
    case Qt::RightButton:
        return MapTools::Button::Right;
    case Qt::MiddleButton:
        return MapTools::Button::Middle;
    default:
        return MapTools::Button::Left;
    }
}

}  // namespace

MainWindow::MainWindow(const Services& services, Language language,
                       const std::string& programFolder)
    : services_(services),
      tools_(new QToolBar(this)),
      mapArea_(new MapArea),
      sidePanel_(new SidePanel),
      splitter_(new QSplitter),
      timeStrip_(new TimeStripView),
      timeStripWanted_(readSwitch(services.settings, SettingId::TimeStrip)),
      replayBar_(new ReplayBar),
      position_(new QLabel),
      toolText_(new QLabel),
      workStatus_(new ElidedLabel),
      scale_(new QLabel) {
    setMinimumSize(kMinimumSize);
    setAcceptDrops(true);
    tools_->setMovable(false);
    tools_->setContextMenuPolicy(Qt::PreventContextMenu);
    tools_->setIconSize({24, 24});
    addToolBar(tools_);
    actions_ = std::make_unique<ActionSet>(
        *this, ActionPlaces{*this, mapArea_->map(), *menuBar(), *tools_, sidePanel_->fileTools()},
        [this](const ActionRow& row) { perform(row); });
    arrange();
    makeStatusBar();
    session_ = std::make_unique<Session>(mapArea_->map().canvas(), *this, services, language,
                                         programFolder);
    makeLotPanel();
    timeStrip_->setStrip(session_->findings().timeStrip);
    connectMap();
    connectFileList();
    connectReplay();
    connectMenus();
    retranslate();
}

MainWindow::~MainWindow() {
    // They work on the session, which goes before the other widgets.
    hide();
    delete lotPanel_;
}

void MainWindow::arrange() {
    splitter_->setChildrenCollapsible(false);
    splitter_->addWidget(mapArea_);
    splitter_->addWidget(sidePanel_);
    splitter_->setStretchFactor(0, 1);
    splitter_->setStretchFactor(1, 0);
    auto* middle = new QWidget;
    auto* column = new QVBoxLayout(middle);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    auto* row = new QHBoxLayout;
    row->setSpacing(0);
    row->addWidget(splitter_, 1);
    column->addLayout(row, 1);
    timeStrip_->hide();
    column->addWidget(timeStrip_);
    column->addWidget(replayBar_);
    setCentralWidget(middle);
    resize(kFirstSize.boundedTo(screen()->availableSize()));
    splitter_->setSizes({width() - kPanelWidth, kPanelWidth});
    restoreGeometry(decoded(readText(services_.settings, SettingId::WindowGeometry)));
    splitter_->restoreState(decoded(readText(services_.settings, SettingId::WindowSplitter)));
    setTabOrder(&mapArea_->map(), &sidePanel_->files());
    mapArea_->map().setFocus();
}

void MainWindow::makeStatusBar() {
    for (QLabel* label : {position_, toolText_, static_cast<QLabel*>(workStatus_), scale_}) {
        label->setTextFormat(Qt::PlainText);
        label->setContentsMargins(6, 0, 6, 0);
    }
    statusBar()->addWidget(position_);
    statusBar()->addWidget(toolText_);
    statusBar()->addWidget(workStatus_, 1);
    statusBar()->addPermanentWidget(scale_);
}

void MainWindow::connectMap() {
    MapWidget& map = mapArea_->map();
    MapView& view = session_->display().view();
    MapTools& tools = session_->tools();
    connect(&map, &MapWidget::canvasResized, this, [this] { session_->display().canvasResized(); });
    connect(&map, &MapWidget::zoomSteps, this, &MainWindow::zoomAt);
    connect(&map, &MapWidget::scrollAsked, this,
            [&view](double east, double north) { view.scrollBy(east, north); });
    connect(&map, &MapWidget::pressed, this, [&tools](CanvasPoint at, Qt::MouseButton button) {
        tools.press(buttonOf(button), at);
    });
    connect(&map, &MapWidget::pointerMoved, this, [this, &tools](CanvasPoint at) {
        tools.move(at);
        settleSoon();
    });
    settle_.setSingleShot(true);
    connect(&settle_, &QTimer::timeout, this, [&view] { view.settle(); });
    connect(&map, &MapWidget::released, this,
            [this, &tools](CanvasPoint at, Qt::MouseButton button) {
                tools.release(buttonOf(button), at);
                commandsChanged();
            });
    connect(&map, &MapWidget::pointerLeft, this, [&tools] { tools.leave(); });
    connect(&map, &MapWidget::escaped, this, [this, &tools] {
        tools.escape();
        commandsChanged();
    });
    connect(mapArea_, &MapArea::barsMoved, this,
            [&view](int horizontal, int vertical) { view.scrollBarsMoved(horizontal, vertical); });
    // Queued: the window is painted before files are read.
    connect(
        &map, &MapWidget::firstShown, this,
        [this] {
            const StartRequest request = std::exchange(startRequest_, {});
            {
                const PointerOverride busy(Qt::WaitCursor);
                openStartFiles(*session_, request);
            }
            applyReplaySwitches(*session_, request);
        },
        Qt::QueuedConnection);
}

void MainWindow::connectFileList() {
    sidePanel_->legend().setCommands(session_->colours().legend);
    FindingCommands& findings = session_->findings().tables;
    sidePanel_->passes().setCommands(findings, services_.clipboard);
    sidePanel_->problems().setCommands(findings, services_.clipboard);
    findings.onSelected = [this](FindingTable::Kind kind) {
        const bool isPass = kind == FindingTable::Kind::Passes;
        (isPass ? sidePanel_->passes() : sidePanel_->problems()).showSelected();
    };
    FileListView& files = sidePanel_->files();
    files.setFileMenu(actions_->menu(MenuId::SelectedFile));
    connect(&files, &FileListView::rowChosen, this, [this](std::optional<int> row) {
        session_->listCommands().selectFile(row);
        commandsChanged();
    });
    connect(&files, &FileListView::zoomAsked, this,
            [this] { session_->listCommands().zoomToCurrentFile(); });
    connect(&sidePanel_->summary(), &SummaryTable::menuAsked, this, &MainWindow::openSummaryMenu);
}

void MainWindow::connectReplay() {
    Replay& replay = session_->replay();
    connect(replayBar_, &ReplayBar::playAsked, this, [&replay] { replay.play(); });
    connect(replayBar_, &ReplayBar::stopAsked, this, [&replay] { replay.stop(); });
    connect(replayBar_, &ReplayBar::seekAsked, this,
            [&replay](int position) { replay.seek(position); });
    connect(replayBar_, &ReplayBar::jumpAsked, this,
            [&replay](int position) { replay.jumpTo(position); });
    replayBar_->setClockForm([this](const ReplayMoment& moment) {
        return toQt(replayClockText(moment, services_.locale));
    });
    connect(replayBar_, &ReplayBar::speedChosen, this,
            [&replay](int speed) { replay.setSpeed(speed); });
}

void MainWindow::retranslate() {
    const Texts& texts = session_->texts();
    actions_->retranslate(texts);
    mapArea_->retranslate(texts);
    sidePanel_->retranslate(texts);
    replayBar_->retranslate(texts);
    timeStrip_->retranslate(texts);
    lotPanel_->retranslate();
    tools_->setAccessibleName(toQt(texts(TextId::MainTools)));
    showScale();
    fillMenus();
    commandsChanged();
}

void MainWindow::start(const std::string& programPath, StartRequest request) {
    loadMainWindow(*session_, programPath);
    startRequest_ = std::move(request);
}

void MainWindow::zoomAt(CanvasPoint at, int steps) {
    session_->display().view().zoomPicture(at, steps);
    settleSoon();
}

void MainWindow::settleSoon() {
    if (session_->display().view().isPictureMoved()) {
        settle_.start(kSettleMs);
    }
}

void MainWindow::showScale() {
    const double ratio =
        static_cast<double>(session_->display().view().scaleX()) / kMetresPerCanvasUnit;
    const std::string shown = groupedNumber(ratio);
    scale_->setText(ratio == 0 ? QString()
                               : toQt(session_->texts().format(TextId::MapScale, {shown})));
}

void MainWindow::setTitle(std::string_view title) {
    // "[*]" is the toolkit's sign for a changed document; twice it stands for itself.
    setWindowTitle(shownName(title).replace("[*]", "[*][*]"));
}

void MainWindow::setFileList(std::span<const FileListRow> rows, std::optional<int> selected) {
    sidePanel_->files().setRows(rows, selected);
    fillMenus();
    commandsChanged();
}

void MainWindow::setSummary(std::span<const SummaryRow> rows) {
    sidePanel_->summary().setRows(rows);
}

void MainWindow::setLegend(const LegendContent& legend) {
    sidePanel_->legend().setContent(legend);
}

void MainWindow::setViewControls(const ViewControls& controls) {
    const MapView& view = session_->display().view();
    mapArea_->setScrollBars(controls, pageSteps(view.viewWidthM(), view.scrollFactorX()),
                            pageSteps(view.viewHeightM(), view.scrollFactorY()));
    mapArea_->map().setOverlay(controls, session_->map().style().colors.fore);
    showScale();
}

void MainWindow::active(bool enabled, bool replayControls) {
    mapActive_ = enabled;
    (replayControls ? replayActive_ : fileMenuActive_) = enabled;
    const bool filesOpen = session_->map().plotCount() > 0;
    MapWidget& map = mapArea_->map();
    map.setMapShown(filesOpen);
    map.setInteractive(enabled);
    mapArea_->horizontalBar().setEnabled(enabled);
    mapArea_->verticalBar().setEnabled(enabled);
    sidePanel_->files().setEnabled(enabled || !filesOpen);
    lotPanel_->setEnabled(enabled || !filesOpen);
    replayBar_->setActive(replayActive_);
    commandsChanged();
}

Availability MainWindow::availability() const {
    return {.fileMenu = fileMenuActive_,
            .map = mapActive_,
            .selectedFile = mapActive_ && session_->map().files().currentFile() != nullptr,
            .replay = replayActive_ && session_->replay().shown().available};
}

void MainWindow::commandsChanged() {
    if (session_ == nullptr || lotPanel_ == nullptr) {
        return;
    }
    showLotPanel();
    sidePanel_->passes().showWork();
    sidePanel_->problems().showWork();
    showTimeStrip();
    actions_->showStates(session_->texts(), availability());
    replayBar_->setSpeedShown(session_->replay().speedShown());
}

void MainWindow::setReplay(const ReplayState& state) {
    replayBar_->setState(state);
    if (session_ != nullptr) {
        session_->findings().timeStrip.setReplayed(
            state.position > 0 ? std::optional(state.position) : std::nullopt);
    }
}

void MainWindow::setSpeedReadout(std::string_view text) {
    replayBar_->setSpeedReadout(toQt(text));
}

void MainWindow::setOverlay(const MapOverlay& overlay) {
    mapArea_->map().setToolOverlay(overlay);
}

void MainWindow::setPosition(std::string_view text) {
    position_->setText(toQt(text));
}

void MainWindow::setToolText(std::string_view text) {
    toolText_->setText(shownName(text));
}

void MainWindow::setWorkStatus(std::string_view text) {
    workStatus_->setText(shownName(text));
}

void MainWindow::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    connect(windowHandle(), &QWindow::screenChanged, &mapArea_->map(), &MapWidget::fitCanvas,
            Qt::UniqueConnection);
}

void MainWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    arrangePanels();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (!mayCloseFiles(session_->map()) || !session_->lotEditor().mayClose()) {
        event->ignore();
        return;
    }
    unloadMainWindow(*session_);
    writeText(services_.settings, SettingId::WindowGeometry,
              saveGeometry().toBase64().toStdString());
    writeText(services_.settings, SettingId::WindowSplitter,
              splitter_->saveState().toBase64().toStdString());
    QMainWindow::closeEvent(event);
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    const QList<QUrl> urls = event->mimeData()->urls();
    if (fileMenuActive_ &&
        std::any_of(urls.begin(), urls.end(), [](const QUrl& url) { return url.isLocalFile(); })) {
        event->acceptProposedAction();
    }
}

void MainWindow::dropEvent(QDropEvent* event) {
    std::vector<std::string> paths;
    for (const QUrl& url : event->mimeData()->urls()) {
        if (url.isLocalFile()) {
            paths.push_back(toUtf8(url.toLocalFile()));
        }
    }
    event->acceptProposedAction();
    // Afterwards: whoever holds the files waits for the answer to the drop. A replay may run by
    // then.
    QTimer::singleShot(0, this, [this, paths] {
        if (fileMenuActive_) {
            openPaths(paths, false);
        }
    });
}

}  // namespace campora
