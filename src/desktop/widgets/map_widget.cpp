// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/widgets/map_widget.h"

#include <cmath>

#include <QAccessibleWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include "app/overlay_layout.h"
#include "desktop/platform/qt_color.h"
#include "desktop/platform/qt_text.h"
#include "desktop/widgets/edge_arrow.h"
#include "desktop/widgets/info_box.h"
#include "desktop/widgets/overlay_painter.h"

namespace campora {

namespace {

constexpr int kUnits = RasterCanvas::kUnitsPerPixel;
/// Parts of the canvas by which an arrow key and an edge arrow scroll.
constexpr double kKeyScroll = 0.1;
constexpr double kArrowScroll = 0.25;

/// Milliseconds between two pictures of a running replay.
constexpr int kFrame = 16;
/// In pixels.
constexpr QRect kScaleBarPlate{2, 2, 84, 42};

struct Direction {
    MapPicture picture;
    Qt::Key key;
    TextId tip;
    int east;
    int north;
};
constexpr std::array<Direction, 4> kDirections{{
    {MapPicture::ArrowUp, Qt::Key_Up, TextId::ScrollNorth, 0, 1},
    {MapPicture::ArrowDown, Qt::Key_Down, TextId::ScrollSouth, 0, -1},
    {MapPicture::ArrowRight, Qt::Key_Right, TextId::ScrollEast, 1, 0},
    {MapPicture::ArrowLeft, Qt::Key_Left, TextId::ScrollWest, -1, 0},
}};

CanvasPoint canvasPoint(QPointF position) {
    return {static_cast<std::int32_t>(std::lround(position.x() * kUnits)),
            static_cast<std::int32_t>(std::lround(position.y() * kUnits))};
}

Qt::CursorShape cursorShape(PointerShape shape) {
    switch (shape) {
    case PointerShape::Arrow:
        return Qt::ArrowCursor;
    case PointerShape::Busy:
        return Qt::WaitCursor;
    case PointerShape::Move:
        return Qt::SizeAllCursor;
    case PointerShape::Crosshair:
    case PointerShape::ZoomSelect:
        return Qt::CrossCursor;
    }
    return Qt::ArrowCursor;
}

QAccessibleInterface* describeMap(const QString& /*name*/, QObject* object) {
    auto* const map = qobject_cast<MapWidget*>(object);
    return map != nullptr ? new QAccessibleWidget(map, QAccessible::Graphic) : nullptr;
}

}  // namespace

MapWidget::MapWidget(QWidget* parent)
    : QWidget(parent), canvas_({kUnits, kUnits}), info_(new InfoBox(this)) {
    QAccessible::installFactory(describeMap);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    canvas_.onRefresh = [this] { repaintSoon(); };
    nextPaint_.setSingleShot(true);
    connect(&nextPaint_, &QTimer::timeout, this, qOverload<>(&QWidget::update));
    canvas_.onPointer = [this](PointerShape shape) { setCursor(cursorShape(shape)); };
    for (std::size_t i = 0; i < arrows_.size(); ++i) {
        const Direction& way = kDirections[i];
        arrows_[i] = new EdgeArrow(way.picture, this);
        arrows_[i]->hide();
        connect(arrows_[i], &EdgeArrow::clicked, this, [this, &way] {
            emit scrollAsked(way.east * kArrowScroll, way.north * kArrowScroll);
        });
    }
}

MapWidget::~MapWidget() = default;

void MapWidget::setOverlay(const ViewControls& controls, Color ink) {
    controls_ = controls;
    ink_ = ink;
    const EdgeArrows& shown = controls.arrows;
    const std::array<bool, 4> visible{shown.up, shown.down, shown.right, shown.left};
    for (std::size_t i = 0; i < arrows_.size(); ++i) {
        arrows_[i]->setVisible(visible[i] && mapShown_);
    }
    update();
}

void MapWidget::setToolOverlay(const MapOverlay& overlay) {
    const TextPlate* plate = nullptr;
    for (const MapShape& shape : overlay) {
        plate = std::holds_alternative<TextPlate>(shape) ? &std::get<TextPlate>(shape) : plate;
    }
    info_->showInfo(plate, kUnits);
    overlay_ = overlay;
    update();
}

void MapWidget::repaintSoon() {
    if (!sincePaint_.isValid() || sincePaint_.elapsed() >= kFrame) {
        update();
    } else if (!nextPaint_.isActive()) {
        nextPaint_.start(kFrame - static_cast<int>(sincePaint_.elapsed()));
    }
}

void MapWidget::setMapShown(bool shown) {
    mapShown_ = shown;
    setOverlay(controls_, ink_);
}

void MapWidget::retranslate(const Texts& texts) {
    hint_ = toQt(texts(TextId::EmptyMapHint));
    setAccessibleName(toQt(texts(TextId::MapName)));
    setAccessibleDescription(toQt(texts(TextId::MapKeys)));
    info_->setAccessibleName(toQt(texts(TextId::PointInformation)));
    for (std::size_t i = 0; i < arrows_.size(); ++i) {
        const QString tip = toQt(texts(kDirections[i].tip));
        arrows_[i]->setToolTip(tip);
        arrows_[i]->setAccessibleName(tip);
    }
    update();
}

void MapWidget::fitCanvas() {
    const CanvasSize size{width() * kUnits, height() * kUnits};
    if (size == canvas_.size() && devicePixelRatioF() == pixelRatio_) {
        return;
    }
    pixelRatio_ = devicePixelRatioF();
    canvas_.resize(size, pixelRatio_);
    for (EdgeArrow* arrow : arrows_) {
        arrow->place(size);
    }
    emit canvasResized();
}

void MapWidget::paintEvent(QPaintEvent* /*event*/) {
    sincePaint_.start();
    QPainter painter(this);
    painter.drawImage(0, 0, canvas_.image());
    if (!mapShown_) {
        paintHint(painter);
    } else if (!controls_.scaleLabel.empty()) {
        paintScaleBar(painter);
    }
    for (const MapShape& shape : overlay_) {
        paintShape(painter, shape, toQt(ink_));
    }
    if (hasFocus()) {
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
    if (!painted_) {
        painted_ = true;
        emit firstShown();
    }
}

void MapWidget::paintScaleBar(QPainter& painter) const {
    // Swaths under the bar stay visible without making it hard to read.
    const Color back = canvas_.backgroundColor();
    painter.fillRect(kScaleBarPlate, QColor(back.red(), back.green(), back.blue(), 200));
    const QColor ink(ink_.red(), ink_.green(), ink_.blue());
    painter.setPen(QPen(ink, 1));
    painter.drawLine(widgetPixels(overlay::kTickLeftTop), widgetPixels(overlay::kTickLeftBottom));
    painter.drawLine(widgetPixels(overlay::kTickRightTop), widgetPixels(overlay::kTickRightBottom));
    painter.setPen(QPen(ink, 2));
    painter.drawLine(widgetPixels(overlay::kBarLeft), widgetPixels(overlay::kBarRight));
    QFont bold = font();
    bold.setPixelSize(12);
    bold.setBold(true);
    painter.setFont(bold);
    const QPointF top = widgetPixels(overlay::kLabelTop);
    painter.drawText(QRectF(top.x() - 100, top.y(), 200, 20), Qt::AlignHCenter | Qt::AlignTop,
                     toQt(controls_.scaleLabel));
}

void MapWidget::paintHint(QPainter& painter) const {
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(rect().adjusted(24, 24, -24, -24), Qt::AlignCenter | Qt::TextWordWrap, hint_);
}

void MapWidget::resizeEvent(QResizeEvent* /*event*/) {
    fitCanvas();
}

void MapWidget::wheelEvent(QWheelEvent* event) {
    constexpr int kStep = QWheelEvent::DefaultDeltasPerStep;
    const int turned = event->angleDelta().y();
    // A turn the other way starts anew instead of first undoing what is left of the last one.
    wheelRest_ = (turned > 0) == (wheelRest_ > 0) ? wheelRest_ + turned : turned;
    const int steps = wheelRest_ / kStep;
    wheelRest_ %= kStep;
    if (steps != 0 && interactive_) {
        emit zoomSteps(canvasPoint(event->position()), steps);
    }
    event->accept();
}

void MapWidget::mousePressEvent(QMouseEvent* event) {
    if (interactive_) {
        emit pressed(canvasPoint(event->position()), event->button());
    }
}

void MapWidget::mouseMoveEvent(QMouseEvent* event) {
    if (interactive_) {
        emit pointerMoved(canvasPoint(event->position()));
    }
}

void MapWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (interactive_) {
        emit released(canvasPoint(event->position()), event->button());
    }
}

void MapWidget::leaveEvent(QEvent* /*event*/) {
    emit pointerLeft();
}

void MapWidget::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        emit escaped();
        return;
    }
    for (const Direction& way : kDirections) {
        if (event->key() == way.key && interactive_) {
            emit scrollAsked(way.east * kKeyScroll, way.north * kKeyScroll);
            return;
        }
    }
    QWidget::keyPressEvent(event);
}

}  // namespace campora
