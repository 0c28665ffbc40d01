// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/out/print_commands.h"

#include <algorithm>
#include <span>

#include "app/out/page_settings.h"
#include "app/plot_all.h"
#include "app/settings.h"
#include "app/window_title.h"
#include "base/dates.h"
#include "base/file_endings.h"
#include "base/files.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "base/text.h"
#include "platform/file_filter.h"

namespace campora {

namespace {

/// The file that a page is named after: the selected one or the one on top.
const File* titleFile(const OpenMap& map) {
    const File* const current = map.files().currentFile();
    return current != nullptr || map.plotCount() == 0 ? current : &map.files().file(0);
}

PageSetup withLeast(PageSetup setup, const PageMargins& least) {
    for (const auto margin :
         {&PageMargins::left, &PageMargins::top, &PageMargins::right, &PageMargins::bottom}) {
        setup.margins.*margin = std::max(setup.margins.*margin, least.*margin);
    }
    return setup;
}

}  // namespace

PageSetup PrintCommands::setup() const {
    return readPageSetup(services_.settings);
}

std::string PrintCommands::description() const {
    return readText(services_.settings, SettingId::PrintDescription);
}

void PrintCommands::change(const PageSetup& setup, std::string_view description) {
    SettingsStore& settings = services_.settings;
    writePageSetup(settings, setup);
    writeText(settings, SettingId::PrintDescription, description);
}

PageContent PrintCommands::content() const {
    const Texts& texts = map_.desk().texts;
    PageContent content;
    if (const File* const file = titleFile(map_)) {
        content.title = file->File_name();
        content.path = file->File_diskPath();
    }
    if (const int others = map_.plotCount() - 1; others > 0) {
        content.title = texts.format(TextId::TitleAndOthers, {content.title, numberText(others)});
    }
    content.program = versionTitle();
    content.printedOn = texts.format(
        TextId::PrintedOn, {dateText(services_.clock.today(), map_.desk().locale.shortDateForm())});
    content.legend = display_.legend();
    for (const SummaryRow& row : display_.summary()) {
        content.summary.push_back(
            {std::string(trim(row.property)), std::string(trim(row.value)), row.isRemark});
    }
    content.description = description();
    return content;
}

PageLayout PrintCommands::page(const TextWidth& textWidth, const PageMargins& least) const {
    return layOutPage(withLeast(setup(), least), content(),
                      shownExtent(display_.view().transform()),
                      {map_.desk().texts, map_.desk().decimalSymbol()}, textWidth);
}

CanvasSize PrintCommands::mapCanvas(const PageLayout& page) const {
    return pageTransform(shownExtent(display_.view().transform()), page.map, page.scale).canvas();
}

bool PrintCommands::drawMap(const PageLayout& page, MapCanvas& canvas, Progress* progress) const {
    const MapStyle& style = map_.style();
    const ViewTransform view =
        pageTransform(shownExtent(display_.view().transform()), page.map, page.scale);
    canvas.setBackgroundColor(style.colors.back);
    beginMap(canvas, style.colors);
    MapContext context{canvas, view, style, kLeastOutlinedOnPaper};
    if (progress != nullptr) {
        return plotAll(map_, context, *progress);
    }
    plotAll(map_, context);
    return true;
}

std::string PrintCommands::documentName() const {
    const File* const file = titleFile(map_);
    return file == nullptr ? std::string(map_.desk().texts(TextId::ProgramName))
                           : std::string(fileStem(file->File_diskPath()));
}

void PrintCommands::savePdf(const std::function<Result<std::string>()>& makePdf) {
    const Texts& texts = map_.desk().texts;
    const std::string path = map_.desk()
                                 .dialogs
                                 .saveFile({std::string(texts(TextId::SavePdfTitle)),
                                            readText(services_.settings, SettingId::PrintPath),
                                            documentName().append(kPdfEnding),
                                            {fileFilter(texts, TextId::PrinterPdf, kPdfEnding)}})
                                 .path;
    if (path.empty()) {
        return;
    }
    const Result<std::string> pdf = makePdf();
    if (pdf && pdf->empty()) {
        return;
    }
    std::optional<Failure> failure =
        pdf ? writeFile(path, std::as_bytes(std::span(*pdf)))
            : std::optional(because(TextId::FileCannotBeWritten, {path}, pdf.failure()));
    if (failure) {
        map_.desk().tellError(*failure);
        return;
    }
    writeText(services_.settings, SettingId::PrintPath, folderOf(path));
    if (map_.desk().ask(texts.format(TextId::AskOpenPdf, {path}), MessageIcon::Question) &&
        !services_.shell.open(path)) {
        map_.desk().tell({TextId::NoProgramForPdf, {path}});
    }
}

}  // namespace campora
