// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>

#include "colour/color_scale.h"
#include "platform/desk.h"
#include "platform/main_window_controls.h"

namespace campora {

/// The dialog that asks for a dose, without its widgets: one of the doses of a scale or a new one.
class DoseChoice {
public:
    enum class Way { Existing, New };

    /// `scale` may be null, a new dose is all there is then. Both outlive this.
    DoseChoice(const ColorScale* scale, float currentDose, const Desk& desk);

    [[nodiscard]] bool hasExisting() const { return scale_ != nullptr; }
    /// The classes of the scale; without rows when there is none.
    [[nodiscard]] const LegendContent& legend() const { return legend_; }
    [[nodiscard]] Way way() const { return way_; }
    /// `Existing` is ignored without a scale.
    void setWay(Way way);
    /// None, or a class that is not there, selects none; another one turns to the existing doses.
    void selectClass(std::optional<int> index);
    [[nodiscard]] const std::string& text() const { return text_; }
    void setText(std::string text) { text_ = std::move(text); }

    /// The dose chosen or typed; none, which is said, when there is none.
    [[nodiscard]] std::optional<float> accept() const;

private:
    const ColorScale* scale_;
    Desk desk_;
    LegendContent legend_;
    Way way_;
    std::optional<int> class_;
    std::string text_;
};

}  // namespace campora
