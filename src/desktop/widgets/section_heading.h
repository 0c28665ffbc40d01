// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>

namespace campora {

/// Gives a label the looks of a heading.
void showAsHeading(QLabel& label);

/// The heading over a part of the side panel; it also names that part for screen readers.
class SectionHeading final : public QLabel {
public:
    explicit SectionHeading(QWidget& part);

    void setTitle(const QString& title);

private:
    QWidget& part_;
};

}  // namespace campora
