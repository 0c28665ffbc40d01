// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/widgets/replay_bar.h"

#include <utility>

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>
#include <QToolButton>

#include "app/map/replay.h"
#include "desktop/platform/qt_text.h"
#include "desktop/widgets/jump_slider.h"

namespace campora {

namespace {

constexpr int kFrame = 16;  // milliseconds

/// Where the slider stands for a pause, and the pause for where it stands.
int shownSpeed(int pause) {
    return Replay::kLongestPause - pause;
}

QToolButton* makeButton(const char* name, const char* icon) {
    auto* button = new QToolButton;
    button->setObjectName(name);
    button->setIcon(QIcon(QString(":/icons/%1.svg").arg(icon)));
    button->setIconSize({22, 22});
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

}  // namespace

ReplayBar::ReplayBar(QWidget* parent)
    : QWidget(parent),
      play_(makeButton("CmdPlay", "play")),
      stop_(makeButton("CmdStop", "stop")),
      position_(new JumpSlider),
      clock_(new QLabel),
      speedCaption_(new QLabel),
      speedValue_(new QLabel),
      speedFrame_(new QGroupBox),
      speed_(new QSlider(Qt::Horizontal)) {
    position_->setObjectName("animation");
    clock_->setObjectName("replayClock");
    clock_->setTextFormat(Qt::PlainText);
    clock_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    clock_->setMinimumWidth(fontMetrics().horizontalAdvance("00/00/0000 00:00:00   +00:00:00"));
    speedCaption_->setObjectName("lblVelo");
    speedValue_->setObjectName("velo");
    speedFrame_->setObjectName("ViewSpeed");
    speed_->setObjectName("Speed");
    speed_->setRange(0, Replay::kLongestPause);
    speed_->setValue(shownSpeed(Replay::kUsualPause));
    speed_->setFixedWidth(110);
    speedValue_->setMinimumWidth(fontMetrics().horizontalAdvance("000.00 km/h"));

    auto* inFrame = new QHBoxLayout(speedFrame_);
    inFrame->setContentsMargins(6, 0, 6, 2);
    inFrame->addWidget(speed_);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(8, 0, 8, 4);
    row->addWidget(play_);
    row->addWidget(stop_);
    row->addWidget(position_, 1);
    row->addWidget(clock_);
    row->addWidget(speedCaption_);
    row->addWidget(speedValue_);
    row->addWidget(speedFrame_);

    connectControls();
    setSpeedShown(false);
    enableControls();
}

void ReplayBar::connectControls() {
    nextShown_.setSingleShot(true);
    connect(&nextShown_, &QTimer::timeout, this, &ReplayBar::showPosition);
    connect(play_, &QToolButton::clicked, this, &ReplayBar::playAsked);
    connect(stop_, &QToolButton::clicked, this, &ReplayBar::stopAsked);
    connect(position_, &QSlider::valueChanged, this, &ReplayBar::seekAsked);
    connect(position_, &JumpSlider::jumped, this, &ReplayBar::jumpAsked);
    connect(speed_, &QSlider::valueChanged, this,
            [this](int shown) { emit speedChosen(shownSpeed(shown)); });
}

void ReplayBar::setState(const ReplayState& state) {
    const bool moved = state.position != state_.position;
    const bool othersSame = state.available == state_.available &&
                            state.playing == state_.playing && state.maximum == state_.maximum &&
                            state.speed == state_.speed;
    state_ = state;
    if (othersSame && moved && sinceShown_.isValid() && sinceShown_.elapsed() < kFrame) {
        if (!nextShown_.isActive()) {
            nextShown_.start(kFrame);
        }
        return;
    }
    play_->setIcon(QIcon(state.playing ? ":/icons/pause.svg" : ":/icons/play.svg"));
    const QSignalBlocker silent(speed_);
    speed_->setValue(shownSpeed(state.speed));
    enableControls();
    showPosition();
}

void ReplayBar::showPosition() {
    sinceShown_.start();
    const QSignalBlocker silent(position_);
    position_->setRange(0, state_.maximum);
    position_->setPageStep(std::max(1, state_.maximum / 20));
    position_->setSingleStep(std::max(1, state_.maximum / 200));
    position_->setValue(state_.position);
    if (clockForm_) {
        clock_->setText(clockForm_(state_.moment));
    }
}

void ReplayBar::setClockForm(std::function<QString(const ReplayMoment&)> form) {
    clockForm_ = std::move(form);
    showPosition();
}

void ReplayBar::setActive(bool active) {
    active_ = active;
    enableControls();
}

void ReplayBar::enableControls() {
    for (QWidget* control : {static_cast<QWidget*>(play_), static_cast<QWidget*>(stop_),
                             static_cast<QWidget*>(position_)}) {
        control->setEnabled(active_ && state_.available);
    }
}

void ReplayBar::setSpeedReadout(const QString& text) {
    speedValue_->setText(text);
}

void ReplayBar::setSpeedShown(bool shown) {
    speedCaption_->setVisible(shown);
    speedValue_->setVisible(shown);
}

void ReplayBar::retranslate(const Texts& texts) {
    const QString play = toQt(texts(TextId::TipPlay));
    const QString stop = toQt(texts(TextId::TipStop));
    play_->setToolTip(play);
    play_->setAccessibleName(play);
    stop_->setToolTip(stop);
    stop_->setAccessibleName(stop);
    const QString position = toQt(texts(TextId::ReplayPosition));
    position_->setToolTip(position);
    position_->setAccessibleName(position);
    clock_->setToolTip(toQt(texts(TextId::ReplayClockTip)));
    speedFrame_->setTitle(toQt(texts(TextId::SpeedFrame)));
    const QString pause = toQt(texts(TextId::ReplaySpeed));
    speed_->setToolTip(pause);
    speed_->setAccessibleName(pause);
    speedCaption_->setText(toQt(texts(TextId::SpeedCaption)));
}

}  // namespace campora
