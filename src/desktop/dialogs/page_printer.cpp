// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/dialogs/page_printer.h"

#include <cmath>

#include <QPageLayout>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>

#include "app/settings.h"
#include "app/window_title.h"
#include "desktop/dialogs/page_setup_dialog.h"
#include "desktop/dialogs/print_dialog.h"
#include "desktop/platform/pointer_override.h"
#include "desktop/platform/qt_text.h"
#include "paint/page_painter.h"

namespace campora {

namespace {

constexpr double kMmPerInch = 25.4;
/// What the setting keeps for the PDF file; no printer has such a name.
constexpr std::string_view kPdfSetting = "/pdf";

PageMargins leastMargins(const QPrinter& printer) {
    const QMarginsF least = printer.pageLayout().minimumMargins();
    const double mmPerUnit = kMmPerInch / 72;  // page layouts of printers count in points
    const auto mm = [&](double points) {
        return static_cast<std::int32_t>(std::ceil(points * mmPerUnit));
    };
    return {mm(least.left()), mm(least.top()), mm(least.right()), mm(least.bottom())};
}

}  // namespace

PagePrinter::PagePrinter(const OpenMap& map, const MapDisplay& display, const Services& services,
                         QWidget* parent)
    : desk_(map.desk()),
      settings_(services.settings),
      parent_(parent),
      commands_(map, display, services) {}

bool PagePrinter::setUpPage() {
    PageSetupDialog dialog(commands_.setup(), commands_.description(), desk_.texts, parent_);
    if (dialog.exec() != QDialog::Accepted) {
        return false;
    }
    commands_.change(dialog.setup(), dialog.description());
    return true;
}

void PagePrinter::setLandscape(bool landscape) {
    PageSetup setup = commands_.setup();
    setup.landscape = landscape;
    commands_.change(setup, commands_.description());
}

void PagePrinter::preparePaper(QPrinter& printer) const {
    const PageSetup setup = commands_.setup();
    const QPageSize size(QSizeF(setup.paper.widthMm, setup.paper.heightMm), QPageSize::Millimeter,
                         QString(), QPageSize::FuzzyMatch);
    printer.setFullPage(true);
    printer.setPageSize(size);
    printer.setPageOrientation(setup.landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
}

void PagePrinter::paintPreview(QPrinter& printer, int dotsPerInch) const {
    const PointerOverride busy(Qt::WaitCursor);
    const PageLayout page = commands_.page(pageTextWidth());
    const QImage map =
        pageMapPicture(page, commands_.mapCanvas(page), dotsPerInch,
                       [&](MapCanvas& canvas) { return commands_.drawMap(page, canvas, nullptr); });
    QPainter painter(&printer);
    paintPage(painter, printer.resolution() / kMmPerInch, page, map);
}

PagePrinter::Drawn PagePrinter::drawMap(const PageLayout& page, int dotsPerInch,
                                        QImage& map) const {
    const auto progress = desk_.dialogs.progress(desk_.texts(TextId::PreparingPage));
    bool cancelled = false;
    map = pageMapPicture(page, commands_.mapCanvas(page), dotsPerInch, [&](MapCanvas& canvas) {
        cancelled = !commands_.drawMap(page, canvas, progress.get());
        return !cancelled;
    });
    if (cancelled) {
        return Drawn::Cancelled;
    }
    return map.isNull() ? Drawn::TooLarge : Drawn::Whole;
}

Result<std::string> PagePrinter::makePdf(int dotsPerInch) const {
    const PointerOverride busy(Qt::WaitCursor);
    const PageLayout page = commands_.page(pageTextWidth());
    QImage map;
    switch (drawMap(page, dotsPerInch, map)) {
    case Drawn::Cancelled:
        return std::string();
    case Drawn::TooLarge:
        return Failure{TextId::PageTooLarge, {}};
    case Drawn::Whole:
        break;
    }
    return pagePdf(page, map, {commands_.documentName(), versionTitle()});
}

PrintTarget PagePrinter::proposedTarget() const {
    PrintTarget target;
    const std::string last = readText(settings_, SettingId::Printer);
    if (last != kPdfSetting) {
        target.printer = last.empty() ? QPrinterInfo::defaultPrinterName() : toQt(last);
    }
    target.dotsPerInch = readNumber(settings_, SettingId::PrintResolution);
    return target;
}

void PagePrinter::print() {
    PrintDialog dialog(QPrinterInfo::availablePrinterNames(), proposedTarget(), desk_.texts,
                       parent_);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    const PrintTarget target = dialog.target();
    const std::string printer = toUtf8(target.printer);
    writeText(settings_, SettingId::Printer, printer.empty() ? kPdfSetting : printer);
    writeNumber(settings_, SettingId::PrintResolution, target.dotsPerInch);
    if (printer.empty()) {
        commands_.savePdf([this, &target] { return makePdf(target.dotsPerInch); });
    } else {
        printOn(target);
    }
}

void PagePrinter::printOn(const PrintTarget& target) const {
    const QPrinterInfo info = QPrinterInfo::printerInfo(target.printer);
    const auto report = [&](TextId text) { desk_.tellError({text, {toUtf8(target.printer)}}); };
    if (info.isNull()) {
        report(TextId::PrinterMissing);
        return;
    }
    const PointerOverride busy(Qt::WaitCursor);
    QPrinter printer(info, QPrinter::HighResolution);
    preparePaper(printer);
    printer.setDocName(toQt(commands_.documentName()));
    printer.setCopyCount(target.copies);
    if (!paintOn(printer, target.dotsPerInch)) {
        report(TextId::PrintFailed);
    }
}

bool PagePrinter::paintOn(QPrinter& printer, int dotsPerInch) const {
    const PageLayout page = commands_.page(pageTextWidth(), leastMargins(printer));
    QImage map;
    const Drawn drawn = drawMap(page, dotsPerInch, map);
    if (drawn != Drawn::Whole) {
        return drawn == Drawn::Cancelled;
    }
    QPainter painter;
    if (!printer.isValid() || !painter.begin(&printer)) {
        return false;
    }
    paintPage(painter, printer.resolution() / kMmPerInch, page, map);
    return painter.end() && printer.printerState() != QPrinter::Error &&
           printer.printerState() != QPrinter::Aborted;
}

}  // namespace campora
