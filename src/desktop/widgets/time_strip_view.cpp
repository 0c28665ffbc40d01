// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/widgets/time_strip_view.h"

#include <algorithm>

#include <QAccessibleWidget>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "desktop/platform/qt_text.h"
#include "desktop/widgets/strip_painter.h"

namespace campora {

namespace {

constexpr int kHeight = 116;
constexpr int kAlarms = 6;
constexpr int kGap = 3;
constexpr int kRight = 10;
/// Pixels that make a click a drag.
constexpr double kDrag = 3;
constexpr QColor kReplayed(0xE6, 0x6A, 0x00);

struct KeyRow {
    int key;
    TimeStrip::Key means;
};

constexpr KeyRow kKeys[] = {
    {Qt::Key_Left, TimeStrip::Key::Left},       {Qt::Key_Right, TimeStrip::Key::Right},
    {Qt::Key_PageUp, TimeStrip::Key::PageLeft}, {Qt::Key_PageDown, TimeStrip::Key::PageRight},
    {Qt::Key_Home, TimeStrip::Key::Home},       {Qt::Key_End, TimeStrip::Key::End},
    {Qt::Key_Plus, TimeStrip::Key::ZoomIn},     {Qt::Key_Equal, TimeStrip::Key::ZoomIn},
    {Qt::Key_Minus, TimeStrip::Key::ZoomOut},   {Qt::Key_Return, TimeStrip::Key::Go},
    {Qt::Key_Enter, TimeStrip::Key::Go},        {Qt::Key_Space, TimeStrip::Key::Play},
    {Qt::Key_Escape, TimeStrip::Key::Clear},
};

std::optional<TimeStrip::Key> meaningOf(const QKeyEvent& event) {
    constexpr auto kOthers = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    for (const KeyRow& row : kKeys) {
        if (row.key == event.key() && !(event.modifiers() & kOthers)) {
            return row.means;
        }
    }
    return std::nullopt;
}

QAccessibleInterface* describeStrip(const QString& /*name*/, QObject* object) {
    auto* const strip = qobject_cast<TimeStripView*>(object);
    return strip != nullptr ? new QAccessibleWidget(strip, QAccessible::Chart) : nullptr;
}

}  // namespace

TimeStripView::TimeStripView(QWidget* parent) : QWidget(parent) {
    QAccessible::installFactory(describeStrip);
    setObjectName("timeStrip");
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void TimeStripView::setStrip(TimeStrip& strip) {
    strip_ = &strip;
    strip.onChanged = [this] { update(); };
}

void TimeStripView::retranslate(const Texts& texts) {
    title_ = toQt(texts(TextId::ActionTimeStrip)).remove('&');
    const QString gestures = toQt(texts(TextId::StripGestures));
    const QString help = gestures + '\n' + toQt(texts(TextId::StripSigns));
    setToolTip(help);
    setAccessibleDescription(help);
    setAccessibleName(title_);
    update();
}

QSize TimeStripView::sizeHint() const {
    return {600, std::max(kHeight, 6 * fontMetrics().height())};
}

int TimeStripView::gutter() const {
    return fontMetrics().horizontalAdvance("8000 unid/hect") + 12;
}

TimeStripView::Lanes TimeStripView::lanes() const {
    const int line = fontMetrics().height();
    const int left = gutter();
    const int wide = std::max(1, width() - left - kRight);
    const int top = line + 2;
    const int bottom = height() - line - 4;
    const int speed = (bottom - top - kAlarms - 2 * kGap) * 2 / 5;
    const QRect alarms(left, top, wide, kAlarms);
    const QRect below(left, bottom - speed, wide, speed);
    const QRect dose(QPoint(left, alarms.bottom() + 1 + kGap),
                     QPoint(left + wide - 1, below.top() - 1 - kGap));
    return {alarms, dose, below, QRect(left, bottom + 1, wide, height() - bottom - 1)};
}

double TimeStripView::columnAt(QPointF place) const {
    return std::clamp(place.x() - gutter(), 0.0, static_cast<double>(lanes().dose.width()));
}

bool TimeStripView::isDragged(QPointF place) const {
    return moved_ || std::abs(place.x() - pressed_.x()) > kDrag;
}

void TimeStripView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    if (strip_ == nullptr) {
        return;
    }
    const StripPicture picture =
        strip_->picture(fontMetrics().horizontalAdvance("00/00/0000") + 24);
    if (!picture.reason.empty()) {
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, toQt(picture.reason));
    } else {
        const Lanes at = lanes();
        paintAxis(painter, picture);
        paintHoles(painter, QRect(at.dose.topLeft(), at.speed.bottomRight()), picture, palette());
        paintDose(painter, at.dose, picture, palette());
        paintSpecified(painter, at.dose, picture, palette().color(QPalette::Text));
        paintSpeed(painter, at.speed, picture, palette().color(QPalette::Text));
        paintAlarms(painter, at.alarms, picture);
        paintMarks(painter, picture);
        paintTexts(painter, picture);
    }
    painter.setPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    tellReader();
}

void TimeStripView::paintAxis(QPainter& painter, const StripPicture& picture) const {
    const Lanes at = lanes();
    const QFontMetrics metrics = painter.fontMetrics();
    const QRect row = at.axis.adjusted(0, 2, 0, 0);
    painter.setPen(palette().color(QPalette::Mid));
    for (const StripTick& tick : picture.ticks) {
        const int x = row.left() + tick.column;
        painter.drawLine(x, at.alarms.top(), x, row.top());
    }
    for (const QRect& lane : {at.dose, at.speed}) {
        painter.drawLine(lane.left(), lane.bottom(), lane.right(), lane.bottom());
    }
    painter.setPen(palette().color(QPalette::Text));
    const QString remark = toQt(picture.axisRemark);
    painter.drawText(row, Qt::AlignRight | Qt::AlignVCenter, remark);
    const int end = row.right() - (remark.isEmpty() ? 0 : metrics.horizontalAdvance(remark) + 12);
    for (const StripTick& tick : picture.ticks) {
        const QString text = toQt(tick.text);
        const int wide = metrics.horizontalAdvance(text);
        const int middle = row.left() + tick.column;
        const int left = std::max(row.left(), std::min(middle - wide / 2, row.right() - wide));
        if (left + wide <= end) {
            painter.drawText(QRect(left, row.top(), wide + 2, row.height()),
                             Qt::AlignLeft | Qt::AlignVCenter, text);
        }
    }
}

void TimeStripView::paintTexts(QPainter& painter, const StripPicture& picture) const {
    const Lanes at = lanes();
    const int line = fontMetrics().height();
    painter.setPen(palette().color(QPalette::Text));
    const auto label = [&](const QRect& lane, const std::string& text) {
        painter.drawText(QRect(4, lane.top() - 2, gutter() - 10, line), Qt::AlignRight, toQt(text));
    };
    label(at.dose, picture.doseLabel);
    label(at.speed, picture.speedLabel);
    // The totals keep their place; what is under the pointer gives way.
    const QString totals = toQt(picture.totals);
    const int taken = fontMetrics().horizontalAdvance(totals);
    const QRect row(at.dose.left(), 1, at.dose.width(), line);
    painter.drawText(row, Qt::AlignRight, totals);
    const int left = row.width() - taken - 20;
    const QString value = fontMetrics().elidedText(toQt(picture.value), Qt::ElideRight, left);
    painter.drawText(QRect(row.left(), 1, left, line), Qt::AlignLeft, value);
}

void TimeStripView::paintMarks(QPainter& painter, const StripPicture& picture) const {
    const Lanes at = lanes();
    const int top = at.alarms.top();
    const int bottom = at.axis.top();
    painter.save();
    painter.setClipRect(QRect(at.axis.left(), top, at.axis.width(), bottom - top + 1));
    const auto xOf = [&](double column) { return at.axis.left() + qRound(column); };
    if (picture.stretch) {
        QColor shade = palette().color(QPalette::Text);
        shade.setAlpha(45);
        const int left = xOf(std::clamp(picture.stretch->first, -9.0, 1e6));
        const int right = xOf(std::clamp(picture.stretch->second, -9.0, 1e6));
        painter.fillRect(QRect(left, top, std::max(1, right - left), bottom - top), shade);
        painter.setPen(palette().color(QPalette::Text));
        painter.drawLine(left, top, left, bottom);
        painter.drawLine(right, top, right, bottom);
    }
    const auto mark = [&](std::optional<double> column, const QPen& pen) {
        if (column && *column >= 0 && *column < at.axis.width()) {
            painter.setPen(pen);
            painter.drawLine(xOf(*column), top, xOf(*column), bottom);
        }
    };
    mark(picture.cursor, QPen(palette().color(QPalette::Text), 1, Qt::DotLine));
    mark(picture.replayed, QPen(kReplayed, 2));
    painter.restore();
    if (drag_ == Drag::Zoom && moved_) {
        painter.fillRect(QRectF(QPointF(std::min(pressed_.x(), last_.x()), at.axis.top()),
                                QPointF(std::max(pressed_.x(), last_.x()), at.axis.bottom())),
                         QColor(kReplayed.red(), kReplayed.green(), kReplayed.blue(), 90));
    }
}

void TimeStripView::tellReader() {
    const QString spoken = toQt(strip_->spoken());
    const QString name = spoken.isEmpty() ? title_ : title_ + ": " + spoken;
    if (name != accessibleName()) {
        setAccessibleName(name);
    }
}

void TimeStripView::resizeEvent(QResizeEvent* /*event*/) {
    if (strip_ != nullptr) {
        strip_->setWidth(lanes().dose.width());
    }
}

void TimeStripView::wheelEvent(QWheelEvent* event) {
    constexpr int kStep = QWheelEvent::DefaultDeltasPerStep;
    event->accept();
    if (strip_ == nullptr) {
        return;
    }
    const QPoint turned = event->angleDelta();
    if (turned.x() != 0 || (event->modifiers() & Qt::ShiftModifier)) {
        const int along = turned.x() != 0 ? turned.x() : turned.y();
        strip_->scroll(-along / static_cast<double>(kStep) * lanes().dose.width() / 10);
        return;
    }
    wheelRest_ = (turned.y() > 0) == (wheelRest_ > 0) ? wheelRest_ + turned.y() : turned.y();
    if (const int steps = wheelRest_ / kStep; steps != 0) {
        strip_->zoomAt(columnAt(event->position()), steps);
    }
    wheelRest_ %= kStep;
}

void TimeStripView::mousePressEvent(QMouseEvent* event) {
    const bool onAxis = event->position().y() >= lanes().axis.top();
    if (event->button() == Qt::MiddleButton) {
        drag_ = Drag::Scroll;
    } else if (event->button() == Qt::LeftButton) {
        const bool zooms = onAxis || (event->modifiers() & Qt::ControlModifier);
        drag_ = zooms ? Drag::Zoom : Drag::Brush;
    }
    pressed_ = last_ = event->position();
    moved_ = false;
}

void TimeStripView::mouseMoveEvent(QMouseEvent* event) {
    if (strip_ == nullptr) {
        return;
    }
    const QPointF at = event->position();
    if (drag_ != Drag::None) {
        moved_ = isDragged(at);
    }
    if (drag_ == Drag::Brush && moved_) {
        strip_->brush(columnAt(pressed_), columnAt(at));
    } else if (drag_ == Drag::Scroll) {
        strip_->scroll(last_.x() - at.x());
    }
    last_ = at;
    const bool inside = at.x() >= gutter();
    strip_->point(inside ? std::optional(columnAt(at)) : std::nullopt);
}

void TimeStripView::mouseReleaseEvent(QMouseEvent* event) {
    const Drag ended = std::exchange(drag_, Drag::None);
    if (strip_ == nullptr || ended == Drag::None || ended == Drag::Scroll) {
        return;
    }
    if (!isDragged(event->position())) {
        strip_->go(columnAt(pressed_));
    } else if (ended == Drag::Zoom) {
        strip_->zoomTo(columnAt(pressed_), columnAt(event->position()));
    }
    moved_ = false;
}

void TimeStripView::leaveEvent(QEvent* /*event*/) {
    if (strip_ != nullptr) {
        strip_->point(std::nullopt);
    }
}

bool TimeStripView::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && meaningOf(*static_cast<QKeyEvent*>(event))) {
        event->accept();  // these keys mean something here before they mean commands
        return true;
    }
    // Over the curves it would hide them.
    const bool isTip = event->type() == QEvent::ToolTip;
    if (isTip && static_cast<QHelpEvent*>(event)->pos().x() >= gutter()) {
        return true;
    }
    return QWidget::event(event);
}

void TimeStripView::keyPressEvent(QKeyEvent* event) {
    const std::optional<TimeStrip::Key> key = meaningOf(*event);
    const bool brushes = event->modifiers() & Qt::ShiftModifier;
    if (strip_ == nullptr || !key || !strip_->press(*key, brushes)) {
        QWidget::keyPressEvent(event);
    }
}

}  // namespace campora
