// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>

#include "app/out/print_commands.h"

class QPrinter;
class QWidget;

namespace campora {

struct PrintTarget;

/// Prints the page of the open map: sets it up, paints its preview, asks for the printer.
class PagePrinter {
public:
    /// `parent`: the window over which the others open. All of it outlives this.
    PagePrinter(const OpenMap& map, const MapDisplay& display, const Services& services,
                QWidget* parent);

    /// False when the user left everything as it was.
    bool setUpPage();
    /// Asks where to, and prints.
    void print();

    /// Gives a printer the paper and orientation of the page set-up, up to the edges of the sheet.
    void preparePaper(QPrinter& printer) const;
    /// Paints the page for the preview, the map at so many dots an inch.
    void paintPreview(QPrinter& printer, int dotsPerInch) const;
    void setLandscape(bool landscape);
    [[nodiscard]] bool isLandscape() const { return commands_.setup().landscape; }

private:
    enum class Drawn { Whole, Cancelled, TooLarge };

    [[nodiscard]] Drawn drawMap(const PageLayout& page, int dotsPerInch, QImage& map) const;
    [[nodiscard]] Result<std::string> makePdf(int dotsPerInch) const;
    void printOn(const PrintTarget& target) const;
    /// False when the printer took nothing.
    [[nodiscard]] bool paintOn(QPrinter& printer, int dotsPerInch) const;
    [[nodiscard]] PrintTarget proposedTarget() const;

    const Desk& desk_;
    SettingsStore& settings_;
    QWidget* parent_;
    PrintCommands commands_;
};

}  // namespace campora
