// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <vector>

#include "model/file.h"
#include "model/gph.h"
#include "model/work_record.h"

namespace campora {

/// A layer of recorded work, as far as a file group deals with it.
class WorkLayer : public Gph {
public:
    /// Hectares worked with an error above `limit` percent in the channel that `style` selects:
    /// length times width of steps, so that ground worked twice counts twice.
    [[nodiscard]] virtual float getHectareasError(const MapStyle& style, float limit) const = 0;
    /// Whether a record says what dose it should have had, which makes an error of another one.
    [[nodiscard]] virtual bool hasSpecifiedDose() const = 0;
    /// Sets every alarm word to 0.
    virtual void clearAlarmas() = 0;
    /// Gives every record this swath width in metres.
    virtual void trocha(float metres) = 0;
    /// Speed at element n in km/h; 0 for a bad index and where none was recorded.
    [[nodiscard]] virtual float speedN(std::int32_t n) const = 0;
    /// One a point, the first of them before the first element. Element n lies between record n
    /// and the next and was done as record n says.
    [[nodiscard]] virtual std::int32_t recordCount() const = 0;
    /// Throws `std::out_of_range` for a bad index.
    [[nodiscard]] virtual WorkRecord recordN(std::int32_t n) const = 0;
};

/// The layers of recorded work of a file, one a pass, in the order in which they were done; they
/// belong to the file.
[[nodiscard]] std::vector<const WorkLayer*> workLayers(const File& file);

}  // namespace campora
