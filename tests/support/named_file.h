// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/file.h"
#include "model/still_layer.h"

namespace campora {

/// A layer that draws its name.
class NamedLayer : public StillLayer {
public:
    explicit NamedLayer(std::string name) : name_(std::move(name)) {}

    [[nodiscard]] std::string_view Gph_kind() const override { return "NamedLayer"; }
    [[nodiscard]] std::int32_t Gph_count() const override { return 1; }
    [[nodiscard]] const BoundingBox& Gph_bound() const override { return bound_; }
    void Gph_plot(MapContext& context) const override {
        context.canvas.text({}, name_, TextAnchor::TopLeft, false);
    }

private:
    std::string name_;
    BoundingBox bound_;
};

/// A file with two layers, a box, a summary and, if wanted, a scale of its own.
class NamedFile : public File {
public:
    explicit NamedFile(std::string name, double minX = -60) : name_(std::move(name)) {
        layers_.push_back(std::make_unique<NamedLayer>(name_ + "1"));
        layers_.push_back(std::make_unique<NamedLayer>(name_ + "2"));
        bound.addPoint(minX, -33);
        bound.addPoint(minX + 0.01, -32.99);
        summary.addProperty("Nombre:", name_, "");
        summary.addProperty("Área:", "12.5", "Has");
    }

    std::string icon;
    BoundingBox bound;
    FileProperties summary;
    std::unique_ptr<ColorScale> scale;

    [[nodiscard]] std::string File_name() const override { return name_; }
    [[nodiscard]] std::string File_path() const override { return "/campo/" + name_; }
    [[nodiscard]] std::string File_diskPath() const override { return File_path(); }
    [[nodiscard]] bool File_visible() const override { return true; }
    [[nodiscard]] std::string File_icon() const override { return icon; }
    [[nodiscard]] ColorScale* File_escalaColores() override { return scale.get(); }
    [[nodiscard]] FileProperties& File_resumen() override { return summary; }
    [[nodiscard]] const BoundingBox& File_bound() const override { return bound; }
    [[nodiscard]] std::vector<Gph*> File_gphList() const override {
        return {layers_[0].get(), layers_[1].get()};
    }
    [[nodiscard]] std::string File_id() const override { return {}; }
    [[nodiscard]] std::int32_t File_priority() const override { return 0; }

private:
    std::string name_;
    std::vector<std::unique_ptr<NamedLayer>> layers_;
};

}  // namespace campora
