// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QDialog>
#include <QTimer>

#include "desktop/dialogs/page_printer.h"

class QAction;
class QPrintPreviewWidget;
class QToolBar;

namespace campora {

/// Shows the page as it will be printed.
class PrintPreview final : public QDialog {
    Q_OBJECT

public:
    /// All of it outlives the dialog.
    PrintPreview(const OpenMap& map, const MapDisplay& display, const Services& services,
                 QWidget* parent);
    ~PrintPreview() override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    struct BarCommand {
        const char* name = "";
        TextId text{};
        const char* icon = "";
        const char* key = "";
        void (PrintPreview::*run)() = nullptr;
    };

    QAction* addCommand(QToolBar& bar, const BarCommand& row);
    void fillBar(QToolBar& bar);
    void setUpPage();
    void print();
    void turnPortrait() { turn(false); }
    void turnLandscape() { turn(true); }
    void turn(bool landscape);
    void showWholePage();
    void showWholeWidth();
    void zoomIn();
    void zoomOut();
    void leave() { reject(); }
    /// The page has changed.
    void showAnew();
    /// Dots of the screen in an inch of the page as it is shown.
    [[nodiscard]] int dotsPerInch() const;
    /// Draws the map anew when the page is shown much larger or smaller than it was drawn.
    void sharpen();

    const Texts& texts_;
    PagePrinter pagePrinter_;
    std::unique_ptr<QPrinter> printer_;
    QPrintPreviewWidget* view_;
    /// Waits for the end of a change of size.
    QTimer rest_;
    int drawnDots_ = 0;
    QAction* portrait_ = nullptr;
    QAction* landscape_ = nullptr;
};

}  // namespace campora
