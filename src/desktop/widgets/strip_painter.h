// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QPalette>
#include <QRect>

#include "app/findings/time_strip.h"

class QPainter;

namespace campora {

// The curves of a time strip: a column of pixels for each column of the picture, from the left edge
// of the lane.

/// The least of each column lightly filled, from there to the greatest strongly.
void paintDose(QPainter& painter, const QRect& lane, const StripPicture& picture,
               const QPalette& palette);
void paintSpecified(QPainter& painter, const QRect& lane, const StripPicture& picture,
                    const QColor& ink);
void paintSpeed(QPainter& painter, const QRect& lane, const StripPicture& picture,
                const QColor& ink);
void paintAlarms(QPainter& painter, const QRect& lane, const StripPicture& picture);

/// Behind the curves, hatched where records are missing, grey between dots where a pause takes less
/// room than it lasted.
void paintHoles(QPainter& painter, const QRect& lanes, const StripPicture& picture,
                const QPalette& palette);

}  // namespace campora
