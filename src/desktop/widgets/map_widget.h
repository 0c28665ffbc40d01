// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>

#include <QElapsedTimer>
#include <QString>
#include <QTimer>
#include <QWidget>

#include "base/texts.h"
#include "paint/raster_canvas.h"
#include "platform/main_window_controls.h"

namespace campora {

class EdgeArrow;
class InfoBox;

/// Shows the canvas picture with scale bar, edge arrows and what the tools lay over it, and says in
/// canvas units what the user does on it.
class MapWidget final : public QWidget {
    Q_OBJECT

public:
    explicit MapWidget(QWidget* parent = nullptr);
    ~MapWidget() override;

    [[nodiscard]] RasterCanvas& canvas() { return canvas_; }
    /// `ink`: colour of the scale bar.
    void setOverlay(const ViewControls& controls, Color ink);
    void setToolOverlay(const MapOverlay& overlay);
    /// While there is no map the widget shows a hint instead of the scale bar.
    void setMapShown(bool shown);
    /// While it is not, mouse and keys have no effect; the map keeps the focus all the same.
    void setInteractive(bool interactive) { interactive_ = interactive; }
    void retranslate(const Texts& texts);
    /// Gives the canvas the widget's size and the screen's pixel ratio.
    void fitCanvas();

    [[nodiscard]] QSize sizeHint() const override { return {900, 700}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {280, 240}; }

signals:
    /// The canvas has another size or pixel ratio and is empty.
    void canvasResized();
    /// Whole wheel steps at a point; positive zooms in.
    void zoomSteps(CanvasPoint at, int steps);
    /// Scroll by parts of the canvas, positive is east and north.
    void scrollAsked(double east, double north);
    void pressed(CanvasPoint at, Qt::MouseButton button);
    void pointerMoved(CanvasPoint at);
    void released(CanvasPoint at, Qt::MouseButton button);
    void pointerLeft();
    void escaped();
    /// The window is on the screen for the first time.
    void firstShown();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// Asks for a repaint, but not more often than a screen shows them: a fast replay draws far
    /// more often.
    void repaintSoon();
    void paintScaleBar(QPainter& painter) const;
    void paintHint(QPainter& painter) const;

    RasterCanvas canvas_;
    double pixelRatio_ = 1;
    ViewControls controls_;
    Color ink_;
    /// Up, down, right, left.
    std::array<EdgeArrow*, 4> arrows_{};
    MapOverlay overlay_;
    InfoBox* info_;
    QElapsedTimer sincePaint_;
    QTimer nextPaint_;
    QString hint_;
    bool mapShown_ = false;
    bool interactive_ = false;
    bool painted_ = false;
    int wheelRest_ = 0;
};

}  // namespace campora
