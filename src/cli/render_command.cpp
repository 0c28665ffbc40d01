// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <cstddef>
#include <optional>
#include <span>
#include <string>

#include <QBuffer>
#include <QGuiApplication>

#include "base/files.h"
#include "base/paths.h"
#include "cli/batch_platform.h"
#include "cli/commands.h"
#include "paint/raster_canvas.h"

namespace campora {

namespace {

/// What Qt needs before it draws a text; it asks for no display.
class OffscreenApplication {
public:
    OffscreenApplication() {
        if (QCoreApplication::instance() == nullptr) {
            qputenv("QT_QPA_PLATFORM", "offscreen");
            application_.emplace(count_, names_);
        }
    }

private:
    // Qt keeps references to these.
    int count_ = 1;
    char name_[12] = "campora-cli";
    char* names_[2] = {name_, nullptr};
    std::optional<QGuiApplication> application_;
};

CanvasSize canvasSize(PixelSize size) {
    return {size.width * RasterCanvas::kUnitsPerPixel, size.height * RasterCanvas::kUnitsPerPixel};
}

/// Everything has been loaded with the usual looks; the map is now drawn as the options say.
void drawMap(Session& session, const Arguments& arguments) {
    MapStyle style = arguments.style;
    style.scale = session.style().scale;
    session.style() = style;
    if (style.selectedChannel >= 0) {
        session.modes().mnuColorScaleSelCH(style.selectedChannel);  // prescriptions turn to it too
    } else {
        session.refreshColorScale();
    }
    session.view().ZoomUno();
    if (arguments.overlay) {
        session.view().DrawMap();
    }
}

std::optional<Failure> savePicture(const QImage& picture, const std::string& path) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    const char* const format = pathEnding(path) == ".bmp" ? "BMP" : "PNG";
    if (!buffer.open(QIODevice::WriteOnly) || !picture.save(&buffer, format)) {
        return because(TextId::FileCannotBeWritten, {path}, {TextId::FileTooLarge, {}});
    }
    return writeFile(
        path, std::as_bytes(std::span(bytes.constData(), static_cast<std::size_t>(bytes.size()))));
}

}  // namespace

int runRender(const Arguments& arguments, const Console& console) {
    const OffscreenApplication application;
    RasterCanvas canvas(canvasSize(arguments.size));
    BatchSession batch(arguments, canvas, console.boxes);
    const bool all = batch.openFiles();
    Session& session = batch.session();
    if (session.plotCount() == 0) {
        return exit_status::kRefused;
    }
    drawMap(session, arguments);
    if (const auto failure = savePicture(canvas.image(), arguments.output)) {
        console.boxes << oneLine(session.texts().sentence(*failure)) << '\n';
        return exit_status::kRefused;
    }
    return all ? exit_status::kDone : exit_status::kRefused;
}

}  // namespace campora
