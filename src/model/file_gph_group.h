// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include "model/file.h"
#include "model/value_ranges.h"
#include "model/work_layer.h"

namespace campora {

/// A file that is nothing but a named list of layers: work logs, lots.
class FileGphGroup final : public File {
public:
    std::string icon;
    /// Full path as opened; `File_path` answers it in lower case.
    std::string path;
    std::string name;
    std::string id;
    std::int32_t priority = 0;
    /// Of its own records.
    ValueRanges ranges;

    /// Takes the layer over and grows the box.
    void addGph(std::unique_ptr<Gph> gph);
    /// Collects the box again after a layer has changed.
    void recalcBound();
    /// Keeps the summary entry "Hectareas Error" in step with the error map: the hectares above the
    /// limit while the map is on (in the locale's number form), empty while it is off. Work without
    /// a specified dose has no error and no entry.
    void calcErrorArea(const MapStyle& style, const UserLocale& locale);
    /// Sets every alarm word of its work layers to 0.
    void clearAlarmas();

    [[nodiscard]] std::string File_name() const override { return name; }
    [[nodiscard]] std::string File_path() const override;
    [[nodiscard]] std::string File_diskPath() const override { return path; }
    [[nodiscard]] bool File_visible() const override { return true; }
    [[nodiscard]] std::string File_icon() const override { return icon; }
    [[nodiscard]] ColorScale* File_escalaColores() override { return nullptr; }
    [[nodiscard]] FileProperties& File_resumen() override { return summary_; }
    [[nodiscard]] const BoundingBox& File_bound() const override { return bound_; }
    [[nodiscard]] std::vector<Gph*> File_gphList() const override;
    [[nodiscard]] std::string File_id() const override { return id; }
    [[nodiscard]] std::int32_t File_priority() const override { return priority; }

private:
    std::vector<std::unique_ptr<Gph>> layers_;
    BoundingBox bound_;
    FileProperties summary_;
};

}  // namespace campora
