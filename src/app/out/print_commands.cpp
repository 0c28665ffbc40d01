// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/out/print_commands.h"

#include <algorithm>
#include <span>

#include "app/out/page_settings.h"
#include "app/session.h"
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
const File* titleFile(Session& session) {
    const File* const current = session.files().currentFile();
    return current != nullptr || session.plotCount() == 0 ? current : &session.files().file(0);
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
    return readPageSetup(session_.platform().settings);
}

void PrintCommands::change(const PageSetup& setup, std::string_view description) {
    SettingsStore& settings = session_.platform().settings;
    writePageSetup(settings, setup);
    session_.printDescription = description;
    writeText(settings, SettingId::PrintDescription, description);
}

PageContent PrintCommands::content() const {
    const Texts& texts = session_.texts();
    const Platform& platform = session_.platform();
    PageContent content;
    if (const File* const file = titleFile(session_)) {
        content.title = file->File_name();
        content.path = file->File_diskPath();
    }
    if (const int others = session_.plotCount() - 1; others > 0) {
        content.title = texts.format(TextId::TitleAndOthers, {content.title, numberText(others)});
    }
    content.program = versionTitle();
    content.printedOn = texts.format(
        TextId::PrintedOn, {dateText(platform.clock.today(), platform.locale.shortDateForm())});
    content.legend = session_.legendContent();
    for (const SummaryRow& row : session_.summaryRows()) {
        content.summary.push_back(
            {std::string(trim(row.property)), std::string(trim(row.value)), row.isRemark});
    }
    content.description = session_.printDescription;
    return content;
}

PageLayout PrintCommands::page(const TextWidth& textWidth, const PageMargins& least) const {
    return layOutPage(withLeast(setup(), least), content(),
                      shownExtent(session_.view().transform()), session_.texts(),
                      session_.platform().locale.decimalSymbol(), textWidth);
}

CanvasSize PrintCommands::mapCanvas(const PageLayout& page) const {
    return pageTransform(shownExtent(session_.view().transform()), page.map, page.scale).canvas();
}

bool PrintCommands::drawMap(const PageLayout& page, MapCanvas& canvas, Progress* progress) const {
    const MapStyle& style = session_.style();
    const ViewTransform view =
        pageTransform(shownExtent(session_.view().transform()), page.map, page.scale);
    canvas.setBackgroundColor(style.colors.back);
    beginMap(canvas, style.colors);
    MapContext context{canvas, view, style, kLeastOutlinedOnPaper};
    if (progress != nullptr) {
        return session_.plotAll(context, *progress);
    }
    session_.plotAll(context);
    return true;
}

std::string PrintCommands::documentName() const {
    const File* const file = titleFile(session_);
    return file == nullptr ? std::string(session_.texts()(TextId::ProgramName))
                           : std::string(fileStem(file->File_diskPath()));
}

void PrintCommands::savePdf(const std::function<Result<std::string>()>& makePdf) {
    const Platform& platform = session_.platform();
    const Texts& texts = session_.texts();
    const std::string path = platform.dialogs
                                 .saveFile({std::string(texts(TextId::SavePdfTitle)),
                                            readText(platform.settings, SettingId::PrintPath),
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
        platform.dialogs.message(texts.sentence(*failure), MessageIcon::Error,
                                 texts(TextId::Error));
        return;
    }
    writeText(platform.settings, SettingId::PrintPath, folderOf(path));
    const std::string_view caption = texts(TextId::ProgramName);
    if (platform.dialogs.askYesNo(texts.format(TextId::AskOpenPdf, {path}), MessageIcon::Question,
                                  caption) &&
        !platform.shell.open(path)) {
        platform.dialogs.message(texts.format(TextId::NoProgramForPdf, {path}),
                                 MessageIcon::Exclamation, caption);
    }
}

}  // namespace campora
