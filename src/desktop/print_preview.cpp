// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/print_preview.h"

#include <QAction>
#include <QGraphicsView>
#include <QIcon>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QScreen>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "app/session.h"
#include "desktop/qt_text.h"

namespace campora {

namespace {

constexpr QSize kSize{960, 780};
constexpr double kZoomStep = 1.25;

}  // namespace

PrintPreview::PrintPreview(Session& session, QWidget* parent)
    : QDialog(parent, Qt::Window | Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint),
      texts_(session.texts()),
      printing_(session, this),
      printer_(std::make_unique<QPrinter>(QPrinter::HighResolution)) {
    setObjectName("preview");
    setWindowTitle(toQt(texts_(TextId::PreviewTitle)));
    setWindowModality(Qt::ApplicationModal);
    // A page of a file looks the same as one of a printer, and no printer is needed for it.
    printer_->setOutputFormat(QPrinter::PdfFormat);
    printing_.preparePaper(*printer_);
    view_ = new QPrintPreviewWidget(printer_.get(), this);
    connect(view_, &QPrintPreviewWidget::paintRequested, this,
            [this](QPrinter* printer) { printing_.paintPreview(*printer); });
    auto* const bar = new QToolBar(this);
    fillBar(*bar);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(bar);
    column->addWidget(view_, 1);
    resize(kSize.boundedTo(screen()->availableSize()));
    if (auto* const pages = view_->findChild<QGraphicsView*>()) {
        pages->setAccessibleName(toQt(texts_(TextId::PreviewPage)));
        pages->setFocus();
    }
    showAnew();
}

PrintPreview::~PrintPreview() {
    delete view_;  // before the printer that it shows
}

QAction* PrintPreview::addCommand(QToolBar& bar, const char* name, TextId text, const char* icon,
                                  const char* key, void (PrintPreview::*run)()) {
    QAction* const command = bar.addAction(QIcon(QString(":/icons/%1.svg").arg(icon)),
                                           toQt(texts_(text)).remove('&').remove("..."));
    command->setObjectName(name);
    command->setShortcut(QKeySequence(key, QKeySequence::PortableText));
    QString tip = command->text();
    if (!command->shortcut().isEmpty()) {
        tip += " (" + command->shortcut().toString(QKeySequence::NativeText) + ")";
    }
    command->setToolTip(tip);
    connect(command, &QAction::triggered, this, run);
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
    addCommand(bar, "previewPrint", TextId::ActionPrint, "print", "Ctrl+P", &PrintPreview::print);
    addCommand(bar, "previewSetup", TextId::ActionPageSetup, "page-setup", "",
               &PrintPreview::setUpPage);
    const auto iconAlone = [&bar](QAction* command) {
        qobject_cast<QToolButton*>(bar.widgetForAction(command))
            ->setToolButtonStyle(Qt::ToolButtonIconOnly);
        return command;
    };
    bar.addSeparator();
    portrait_ = iconAlone(addCommand(bar, "previewPortrait", TextId::OrientationPortrait,
                                     "portrait", "", &PrintPreview::turnPortrait));
    landscape_ = iconAlone(addCommand(bar, "previewLandscape", TextId::OrientationLandscape,
                                      "landscape", "", &PrintPreview::turnLandscape));
    portrait_->setCheckable(true);
    landscape_->setCheckable(true);
    bar.addSeparator();
    iconAlone(addCommand(bar, "previewFitPage", TextId::FitPage, "fit-page", "Ctrl+0",
                         &PrintPreview::showWholePage));
    iconAlone(addCommand(bar, "previewFitWidth", TextId::FitWidth, "fit-width", "Ctrl+1",
                         &PrintPreview::showWholeWidth));
    iconAlone(
        addCommand(bar, "previewZoomIn", TextId::ZoomIn, "zoom-in", "+", &PrintPreview::zoomIn));
    iconAlone(addCommand(bar, "previewZoomOut", TextId::ZoomOut, "zoom-out", "-",
                         &PrintPreview::zoomOut));
    bar.addSeparator();
    addCommand(bar, "previewClose", TextId::ButtonClose, "quit", "", &PrintPreview::leave);
}

void PrintPreview::showAnew() {
    printing_.preparePaper(*printer_);
    portrait_->setChecked(!printing_.isLandscape());
    landscape_->setChecked(printing_.isLandscape());
    view_->updatePreview();
}

void PrintPreview::setUpPage() {
    if (printing_.setUpPage()) {
        showAnew();
    }
}

void PrintPreview::print() {
    printing_.print();
}

void PrintPreview::turn(bool landscape) {
    printing_.setLandscape(landscape);
    showAnew();
}

void PrintPreview::showWholePage() {
    view_->fitInView();
}

void PrintPreview::showWholeWidth() {
    view_->fitToWidth();
}

void PrintPreview::zoomIn() {
    view_->zoomIn(kZoomStep);
}

void PrintPreview::zoomOut() {
    view_->zoomOut(kZoomStep);
}

}  // namespace campora
