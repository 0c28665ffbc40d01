// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include <QWidget>

#include "app/findings/time_strip.h"
#include "base/texts.h"

namespace campora {

/// Draws a time strip and hands it what the user does: alarms as marks, the dose with the specified
/// one as a line, the speed, and the axis below. A screen reader hears the value under the cursor
/// in its name.
class TimeStripView final : public QWidget {
    Q_OBJECT

public:
    explicit TimeStripView(QWidget* parent = nullptr);

    /// The strip outlives its view.
    void setStrip(TimeStrip& strip);
    void retranslate(const Texts& texts);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return {280, sizeHint().height()}; }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    enum class Drag { None, Brush, Zoom, Scroll };

    struct Lanes {
        QRect alarms;
        QRect dose;
        QRect speed;
        QRect axis;
    };

    [[nodiscard]] Lanes lanes() const;
    /// Left of the curves, where the labels stand.
    [[nodiscard]] int gutter() const;
    [[nodiscard]] double columnAt(QPointF place) const;
    [[nodiscard]] bool isDragged(QPointF place) const;
    void paintTexts(QPainter& painter, const StripPicture& picture) const;
    void paintAxis(QPainter& painter, const StripPicture& picture) const;
    void paintMarks(QPainter& painter, const StripPicture& picture) const;
    void tellReader();

    TimeStrip* strip_ = nullptr;
    QString title_;
    Drag drag_ = Drag::None;
    QPointF pressed_;
    QPointF last_;
    bool moved_ = false;
    int wheelRest_ = 0;
};

}  // namespace campora
