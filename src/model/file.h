// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "base/failure.h"
#include "colour/color_scale.h"
#include "model/bounding_box.h"
#include "model/file_properties.h"
#include "model/gph.h"

namespace campora {

/// An entry of the file list: it owns its layers, its summary and its scale.
class File {
public:
    virtual ~File() = default;

    /// Files on the disk that it was made from: they are in use as long as it is open.
    std::vector<std::string> madeFrom;

    /// Takes away what was said with this text and is no longer true.
    void dropRemarks(TextId text) {
        std::erase_if(remarks_, [text](const Remark& remark) { return remark.text == text; });
    }

    [[nodiscard]] virtual std::string File_name() const = 0;
    /// The path for comparing and showing.
    [[nodiscard]] virtual std::string File_path() const = 0;
    /// The path as it was opened, for reading or deleting the file.
    [[nodiscard]] virtual std::string File_diskPath() const = 0;
    [[nodiscard]] virtual bool File_visible() const = 0;
    /// Key of the image in the list ("rptfile", "nbrfile"...); an empty one is shown as "copy".
    [[nodiscard]] virtual std::string File_icon() const = 0;
    /// The file's own scale, or null.
    [[nodiscard]] virtual ColorScale* File_escalaColores() = 0;
    /// The summary.
    [[nodiscard]] virtual FileProperties& File_resumen() = 0;
    [[nodiscard]] virtual const BoundingBox& File_bound() const = 0;
    /// The layers, first drawn first; they live as long as the file.
    [[nodiscard]] virtual std::vector<Gph*> File_gphList() const = 0;
    /// Identity of the work; an empty one is never a duplicate.
    [[nodiscard]] virtual std::string File_id() const = 0;
    /// Of two files with one identity the one with the higher priority stays.
    [[nodiscard]] virtual std::int32_t File_priority() const = 0;

    /// What was found on opening it that did not keep it out: a last record cut off, records that
    /// were skipped. In the order in which it is to be read.
    [[nodiscard]] const std::vector<Remark>& remarks() const { return remarks_; }
    void addRemark(Remark remark) { remarks_.push_back(std::move(remark)); }

private:
    std::vector<Remark> remarks_;
};

}  // namespace campora
