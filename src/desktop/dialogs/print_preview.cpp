// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/dialogs/print_preview.h"

#include <algorithm>
#include <cmath>

#include <QAction>
#include <QGraphicsView>
#include <QIcon>
#include <QPainter>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QScreen>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "desktop/platform/qt_text.h"

namespace campora {

namespace {

constexpr QSize kSize{960, 780};
constexpr double kZoomStep = 1.25;
/// In milliseconds.
constexpr int kRest = 120;
constexpr double kLeastDots = 36;
constexpr double kMostDots = 600;
/// So much larger or smaller than drawn is not seen.
constexpr double kTolerance = 0.05;

}  // namespace

PrintPreview::PrintPreview(const OpenMap& map, const MapDisplay& display, const Services& services,
                           QWidget* parent)
    : QDialog(parent, Qt::Window | Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint),
      texts_(map.desk().texts),
      pagePrinter_(map, display, services, this),
      printer_(std::make_unique<QPrinter>(QPrinter::HighResolution)) {
    setObjectName("preview");
    setWindowTitle(toQt(texts_(TextId::PreviewTitle)));
    setWindowModality(Qt::ApplicationModal);
    // A page of a file looks the same as one of a printer, and no printer is needed for it.
    printer_->setOutputFormat(QPrinter::PdfFormat);
    pagePrinter_.preparePaper(*printer_);
    view_ = new QPrintPreviewWidget(printer_.get(), this);
    connect(view_, &QPrintPreviewWidget::paintRequested, this, [this](QPrinter* printer) {
        drawnDots_ = dotsPerInch();
        pagePrinter_.paintPreview(*printer, drawnDots_);
    });
    rest_.setSingleShot(true);
    rest_.setInterval(kRest);
    connect(&rest_, &QTimer::timeout, this, &PrintPreview::sharpen);
    auto* const bar = new QToolBar(this);
    fillBar(*bar);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(bar);
    column->addWidget(view_, 1);
    resize(kSize.boundedTo(screen()->availableSize()));
    if (auto* const pages = view_->findChild<QGraphicsView*>()) {
        pages->setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                              QPainter::SmoothPixmapTransform);
        pages->setAccessibleName(toQt(texts_(TextId::PreviewPage)));
        pages->setFocus();
    }
    showAnew();
}

PrintPreview::~PrintPreview() {
    delete view_;  // before the printer that it shows
}

QAction* PrintPreview::addCommand(QToolBar& bar, const BarCommand& row) {
    QAction* const command = bar.addAction(QIcon(QString(":/icons/%1.svg").arg(row.icon)),
                                           toQt(texts_(row.text)).remove('&').remove("..."));
    command->setObjectName(row.name);
    command->setShortcut(QKeySequence(row.key, QKeySequence::PortableText));
    QString tip = command->text();
    if (!command->shortcut().isEmpty()) {
        tip += " (" + command->shortcut().toString(QKeySequence::NativeText) + ")";
    }
    command->setToolTip(tip);
    connect(command, &QAction::triggered, this, row.run);
    auto* const button = qobject_cast<QToolButton*>(bar.widgetForAction(command));
    button->setFocusPolicy(Qt::TabFocus);
    button->setAccessibleName(tip);
    return command;
}

void PrintPreview::fillBar(QToolBar& bar) {
    bar.setMovable(false);
    bar.setIconSize({24, 24});
    bar.setContextMenuPolicy(Qt::PreventContextMenu);
    bar.setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    addCommand(bar, {"previewPrint", TextId::ActionPrint, "print", "Ctrl+P", &PrintPreview::print});
    addCommand(
        bar, {"previewSetup", TextId::ActionPageSetup, "page-setup", "", &PrintPreview::setUpPage});
    const auto iconAlone = [&bar](QAction* command) {
        qobject_cast<QToolButton*>(bar.widgetForAction(command))
            ->setToolButtonStyle(Qt::ToolButtonIconOnly);
        return command;
    };
    bar.addSeparator();
    portrait_ = iconAlone(addCommand(bar, {"previewPortrait", TextId::OrientationPortrait,
                                           "portrait", "", &PrintPreview::turnPortrait}));
    landscape_ = iconAlone(addCommand(bar, {"previewLandscape", TextId::OrientationLandscape,
                                            "landscape", "", &PrintPreview::turnLandscape}));
    portrait_->setCheckable(true);
    landscape_->setCheckable(true);
    bar.addSeparator();
    iconAlone(addCommand(bar, {"previewFitPage", TextId::FitPage, "fit-page", "Ctrl+0",
                               &PrintPreview::showWholePage}));
    iconAlone(addCommand(bar, {"previewFitWidth", TextId::FitWidth, "fit-width", "Ctrl+1",
                               &PrintPreview::showWholeWidth}));
    iconAlone(
        addCommand(bar, {"previewZoomIn", TextId::ZoomIn, "zoom-in", "+", &PrintPreview::zoomIn}));
    iconAlone(addCommand(
        bar, {"previewZoomOut", TextId::ZoomOut, "zoom-out", "-", &PrintPreview::zoomOut}));
    bar.addSeparator();
    addCommand(bar, {"previewClose", TextId::ButtonClose, "quit", "", &PrintPreview::leave});
}

void PrintPreview::showAnew() {
    pagePrinter_.preparePaper(*printer_);
    rest_.start();
    portrait_->setChecked(!pagePrinter_.isLandscape());
    landscape_->setChecked(pagePrinter_.isLandscape());
    view_->updatePreview();
}

int PrintPreview::dotsPerInch() const {
    const double dots = view_->zoomFactor() * logicalDpiY() * devicePixelRatioF();
    return static_cast<int>(std::lround(std::clamp(dots, kLeastDots, kMostDots)));
}

void PrintPreview::sharpen() {
    if (std::abs(dotsPerInch() - drawnDots_) > kTolerance * drawnDots_) {
        view_->updatePreview();
    }
}

void PrintPreview::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    rest_.start();
}

void PrintPreview::setUpPage() {
    if (pagePrinter_.setUpPage()) {
        showAnew();
    }
}

void PrintPreview::print() {
    pagePrinter_.print();
}

void PrintPreview::turn(bool landscape) {
    pagePrinter_.setLandscape(landscape);
    showAnew();
}

void PrintPreview::showWholePage() {
    view_->fitInView();
    rest_.start();
}

void PrintPreview::showWholeWidth() {
    view_->fitToWidth();
    rest_.start();
}

void PrintPreview::zoomIn() {
    view_->zoomIn(kZoomStep);
    rest_.start();
}

void PrintPreview::zoomOut() {
    view_->zoomOut(kZoomStep);
    rest_.start();
}

}  // namespace campora
