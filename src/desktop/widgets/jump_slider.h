// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QSlider>

namespace campora {

/// A horizontal slider whose handle comes to where it is clicked and can be dragged on from there.
class JumpSlider final : public QSlider {
    Q_OBJECT

public:
    explicit JumpSlider(QWidget* parent = nullptr) : QSlider(Qt::Horizontal, parent) {}

signals:
    /// The user clicked beside the handle; no `valueChanged` tells of it.
    void jumped(int value);

protected:
    void mousePressEvent(QMouseEvent* event) override;
};

}  // namespace campora
