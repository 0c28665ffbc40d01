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
#include <QToolBar>
#include <QWindow>

#include "app/files_behind.h"
#include "desktop/elided_label.h"
#include "desktop/file_list.h"
#include "desktop/legend_view.h"
#include "desktop/map_area.h"
#include "desktop/map_widget.h"
#include "desktop/pointer_override.h"
#include "desktop/qt_text.h"
#include "desktop/side_panel.h"
#include "desktop/summary_table.h"

namespace campora {

namespace {

constexpr std::string_view kGeometryKey = "WindowGeometry";
constexpr std::string_view kSplitterKey = "WindowSplitter";
constexpr double kMetresPerCanvasUnit = 0.0254 / 1440;

QByteArray decoded(const std::optional<std::string>& setting) {
    return QByteArray::fromBase64(QByteArray::fromStdString(setting.value_or("")));
}

/// What the canvas shows, in steps of a scroll bar.
int pageSteps(float shownMetres, float metresPerStep) {
    return static_cast<int>(std::lround(shownMetres / metresPerStep));
}

QString degreesText(double degrees) {
    return QString::number(degrees, 'f', 6) + QStringLiteral("º");
}

}  // namespace

MainWindow::MainWindow(const Desktop& desktop, Language language, const std::string& programFolder)
    : desktop_(desktop),
      tools_(new QToolBar(this)),
      mapArea_(new MapArea),
      sidePanel_(new SidePanel),
      splitter_(new QSplitter),
      position_(new QLabel),
      workStatus_(new ElidedLabel),
      scale_(new QLabel) {
    setMinimumSize(kMinimumSize);
    setAcceptDrops(true);
    tools_->setMovable(false);
    tools_->setContextMenuPolicy(Qt::PreventContextMenu);
    tools_->setIconSize({24, 24});
    addToolBar(tools_);
    actions_ = std::make_unique<ActionSet>(*this, *menuBar(), *tools_, sidePanel_->fileTools());
    arrange();
    makeStatusBar();
    const Platform platform{mapArea_->map().canvas(), *this,          desktop.dialogs,
                            desktop.settings,         desktop.locale, desktop.clipboard,
                            desktop.clock,            desktop.classes};
    session_ = std::make_unique<Session>(platform, language, programFolder);
    connectMap();
    connectFileList();
    retranslate();
}

MainWindow::~MainWindow() = default;

void MainWindow::arrange() {
    splitter_->setChildrenCollapsible(false);
    splitter_->addWidget(mapArea_);
    splitter_->addWidget(sidePanel_);
    splitter_->setStretchFactor(0, 1);
    splitter_->setStretchFactor(1, 0);
    setCentralWidget(splitter_);
    resize(kFirstSize.boundedTo(screen()->availableSize()));
    splitter_->setSizes({width() - 320, 320});
    restoreGeometry(decoded(desktop_.settings.read(kGeometryKey)));
    splitter_->restoreState(decoded(desktop_.settings.read(kSplitterKey)));
    setTabOrder(&mapArea_->map(), &sidePanel_->files());
    mapArea_->map().setFocus();
    actions_->showStates();
}

void MainWindow::makeStatusBar() {
    for (QLabel* label : {position_, static_cast<QLabel*>(workStatus_), scale_}) {
        label->setTextFormat(Qt::PlainText);
        label->setContentsMargins(6, 0, 6, 0);
    }
    statusBar()->addWidget(position_);
    statusBar()->addWidget(workStatus_, 1);
    statusBar()->addPermanentWidget(scale_);
}

void MainWindow::connectMap() {
    MapWidget& map = mapArea_->map();
    MapView& view = session_->view();
    connect(&map, &MapWidget::canvasResized, this, [this] { session_->canvasResized(); });
    connect(&map, &MapWidget::zoomSteps, this, &MainWindow::zoomAt);
    connect(&map, &MapWidget::scrollAsked, this,
            [&view](double east, double north) { view.scrollBy(east, north); });
    connect(&map, &MapWidget::panStarted, this, [this, &view](CanvasPoint at) {
        grabbed_ = view.transform().screenToMap(static_cast<float>(at.x), static_cast<float>(at.y));
    });
    connect(&map, &MapWidget::panMoved, this, &MainWindow::panTo);
    connect(&map, &MapWidget::pointerMoved, this, &MainWindow::showPosition);
    connect(&map, &MapWidget::pointerLeft, position_, &QLabel::clear);
    connect(mapArea_, &MapArea::barsMoved, this,
            [&view](int horizontal, int vertical) { view.scrollBarsMoved(horizontal, vertical); });
    // Queued: the window is painted before files are read.
    connect(
        &map, &MapWidget::firstShown, this,
        [this] {
            if (!pathsToOpen_.empty()) {
                openPaths(std::exchange(pathsToOpen_, {}), true);
            }
        },
        Qt::QueuedConnection);
}

void MainWindow::connectFileList() {
    FileList& files = sidePanel_->files();
    files.setFileMenu(actions_->menu(MenuId::SelectedFile));
    connect(&files, &FileList::rowChosen, this, [this](std::optional<int> row) {
        session_->selectFile(row);
        actions_->setEnabled(Needs::SelectedFile, row.has_value());
    });
    connect(&files, &FileList::zoomAsked, this, &MainWindow::zoomToFile);
}

void MainWindow::retranslate() {
    const Texts& texts = session_->texts();
    actions_->retranslate(texts);
    mapArea_->retranslate(texts);
    sidePanel_->retranslate(texts);
    tools_->setAccessibleName(toQt(texts(TextId::MainTools)));
    showScale();
}

void MainWindow::start(std::vector<std::string> paths) {
    session_->start();
    retranslate();
    pathsToOpen_ = std::move(paths);
}

void MainWindow::openPaths(const std::vector<std::string>& paths, bool inPlaceOfOthers) {
    const PointerOverride busy(Qt::WaitCursor);
    std::vector<std::string> files;
    for (const std::string& path : paths) {
        const std::vector<std::string> behind = filesBehind(path);
        if (behind.empty()) {
            const Texts& texts = session_->texts();
            desktop_.dialogs.message(std::string(texts(TextId::FolderWithoutFiles)) + path,
                                     MessageIcon::Exclamation, texts(TextId::ProgramName));
        }
        files.insert(files.end(), behind.begin(), behind.end());
    }
    session_->loadFiles(files, inPlaceOfOthers);
}

void MainWindow::openFile() {
    const PointerOverride busy(Qt::WaitCursor);
    session_->fileOpen();
}

void MainWindow::quit() {
    close();
}

void MainWindow::copyData() {
    session_->copyData();
}

void MainWindow::zoomIn() {
    session_->view().zoomIn();
}

void MainWindow::zoomOut() {
    session_->view().zoomOut();
}

void MainWindow::zoomFit() {
    session_->view().ZoomUno();
}

void MainWindow::moveFileUp() {
    session_->moveCurrentFile(Session::Move::Up);
}

void MainWindow::moveFileDown() {
    session_->moveCurrentFile(Session::Move::Down);
}

void MainWindow::moveFileToTop() {
    session_->moveCurrentFile(Session::Move::Top);
}

void MainWindow::moveFileToBottom() {
    session_->moveCurrentFile(Session::Move::Bottom);
}

void MainWindow::zoomToFile() {
    session_->zoomToCurrentFile();
}

void MainWindow::unloadFile() {
    session_->removeCurrentFile();
}

void MainWindow::toggleSidePanel() {
    sidePanel_->setVisible(sidePanel_->isHidden());
    actions_->showStates();
}

bool MainWindow::sidePanelShown() const {
    return !sidePanel_->isHidden();
}

void MainWindow::zoomAt(CanvasPoint at, int steps) {
    MapView& view = session_->view();
    for (; steps > 0; --steps) {
        view.zoomIn(at);
    }
    for (; steps < 0; ++steps) {
        view.zoomOut(at);
    }
    showPosition(at);
}

void MainWindow::panTo(CanvasPoint pointer) {
    MapView& view = session_->view();
    const CanvasPoint held = view.transform().mapToScreen(grabbed_.x, grabbed_.y);
    const CanvasSize size = view.transform().canvas();
    view.scrollBy(static_cast<double>(held.x - pointer.x) / size.width,
                  static_cast<double>(pointer.y - held.y) / size.height);
}

void MainWindow::showPosition(CanvasPoint pointer) {
    const ViewTransform view = session_->view().transform();
    if (!view.isFitted()) {
        position_->clear();
        return;
    }
    const LonLat at =
        view.screenToMap(static_cast<float>(pointer.x), static_cast<float>(pointer.y));
    const Texts& texts = session_->texts();
    position_->setText(toQt(texts(TextId::Longitude)) + " " + degreesText(at.x) + "   " +
                       toQt(texts(TextId::Latitude)) + " " + degreesText(at.y));
}

void MainWindow::showScale() {
    const double ratio = static_cast<double>(session_->view().scaleX()) / kMetresPerCanvasUnit;
    const std::string shown = std::to_string(std::llround(ratio));
    scale_->setText(ratio == 0 ? QString()
                               : toQt(session_->texts().format(TextId::MapScale, {shown})));
}

void MainWindow::setTitle(std::string_view title) {
    // "[*]" is the toolkit's sign for a changed document; twice it stands for itself.
    setWindowTitle(toQt(title).replace("[*]", "[*][*]"));
}

void MainWindow::setFileList(std::span<const FileListRow> rows, std::optional<int> selected) {
    sidePanel_->files().setRows(rows, selected);
    actions_->setEnabled(Needs::SelectedFile, selected.has_value());
}

void MainWindow::setSummary(std::span<const SummaryRow> rows) {
    sidePanel_->summary().setRows(rows);
}

void MainWindow::setLegend(const LegendContent& legend) {
    sidePanel_->legend().setContent(legend);
}

void MainWindow::setViewControls(const ViewControls& controls) {
    const MapView& view = session_->view();
    mapArea_->setScrollBars(controls, pageSteps(view.viewWidthM(), view.scrollFactorX()),
                            pageSteps(view.viewHeightM(), view.scrollFactorY()));
    mapArea_->map().setOverlay(controls, session_->style().colors.fore);
    showScale();
}

void MainWindow::active(bool enabled, bool /*replayControls*/) {
    actions_->setEnabled(Needs::OpenFiles, enabled);
    mapArea_->map().setMapShown(enabled);
}

void MainWindow::commandsChanged() {
    actions_->showStates();
}

void MainWindow::setReplay(const ReplayState& /*state*/) {}

void MainWindow::setSpeedReadout(std::string_view /*text*/) {}

void MainWindow::setOverlay(const MapOverlay& /*overlay*/) {}

void MainWindow::setPosition(std::string_view text) {
    position_->setText(toQt(text));
}

void MainWindow::setToolText(std::string_view /*text*/) {}

void MainWindow::setWorkStatus(std::string_view text) {
    workStatus_->setText(toQt(text));
}

void MainWindow::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    connect(windowHandle(), &QWindow::screenChanged, &mapArea_->map(), &MapWidget::fitCanvas,
            Qt::UniqueConnection);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    desktop_.settings.write(kGeometryKey, saveGeometry().toBase64().toStdString());
    desktop_.settings.write(kSplitterKey, splitter_->saveState().toBase64().toStdString());
    QMainWindow::closeEvent(event);
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    const QList<QUrl> urls = event->mimeData()->urls();
    if (std::any_of(urls.begin(), urls.end(), [](const QUrl& url) { return url.isLocalFile(); })) {
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
    openPaths(paths, false);
}

}  // namespace campora
