// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>

namespace campora {

/// One line of text that is shortened with an ellipsis where it does not fit, and whole in its
/// tooltip.
class ElidedLabel final : public QLabel {
public:
    using QLabel::QLabel;

    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
};

}  // namespace campora
