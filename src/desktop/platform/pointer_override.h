// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCursor>
#include <QGuiApplication>

namespace campora {

/// The pointer has this shape over the whole program while the object lives; they nest.
class PointerOverride {
public:
    explicit PointerOverride(Qt::CursorShape shape) {
        QGuiApplication::setOverrideCursor(QCursor(shape));
    }
    ~PointerOverride() { QGuiApplication::restoreOverrideCursor(); }
    PointerOverride(const PointerOverride&) = delete;
    PointerOverride& operator=(const PointerOverride&) = delete;
};

}  // namespace campora
