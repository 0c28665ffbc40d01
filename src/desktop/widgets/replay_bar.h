// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

#include "base/texts.h"
#include "platform/main_window_controls.h"

class QGroupBox;
class QLabel;
class QSlider;
class QToolButton;

namespace campora {

class JumpSlider;

/// The controls of the replay: play, stop, position, speed, its clock and the read-out of the
/// speed.
class ReplayBar final : public QWidget {
    Q_OBJECT

public:
    explicit ReplayBar(QWidget* parent = nullptr);

    void setState(const ReplayState& state);
    /// How the clock tells a moment.
    void setClockForm(std::function<QString(const ReplayMoment&)> form);
    /// Whether the controls that there is something for can be used.
    void setActive(bool active);
    /// Empty: nothing is read out.
    void setSpeedReadout(const QString& text);
    void setSpeedShown(bool shown);
    void retranslate(const Texts& texts);

signals:
    void playAsked();
    void stopAsked();
    /// The user moved the position.
    void seekAsked(int position);
    /// The user clicked beside the position.
    void jumpAsked(int position);
    /// A quarter of the milliseconds between two elements: the slider shows less of it farther to
    /// the right.
    void speedChosen(int speed);

private:
    void connectControls();
    void showPosition();
    void enableControls();

    QToolButton* play_;
    QToolButton* stop_;
    JumpSlider* position_;
    QLabel* clock_;
    QLabel* speedCaption_;
    QLabel* speedValue_;
    QGroupBox* speedFrame_;
    QSlider* speed_;
    ReplayState state_;
    std::function<QString(const ReplayMoment&)> clockForm_;
    bool active_ = true;
    /// A fast replay reports far more positions than a screen shows.
    QElapsedTimer sinceShown_;
    QTimer nextShown_;
};

}  // namespace campora
