// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string_view>

#include "base/failure.h"

namespace campora {

/// A file that grows beside its target and takes its place when it is complete, so that the target
/// is the old file or the whole new one, never a half. Memory does not grow with what is written.
/// Without `finish` it leaves no trace. A link stays a link and permissions stay as they were; a
/// file that is protected against writing is refused.
class FileDraft {
public:
    /// What goes wrong from here on is remembered: nothing after it has an effect.
    explicit FileDraft(std::string_view target);
    FileDraft(FileDraft&& other) noexcept;
    FileDraft& operator=(FileDraft&& other) noexcept;
    ~FileDraft();

    /// Appends.
    void write(std::string_view bytes);
    /// Writes over bytes that have been written; what follows them stays.
    void overwrite(std::uint64_t offset, std::string_view bytes);
    /// Bytes so far.
    [[nodiscard]] std::uint64_t size() const;

    /// The first thing that went wrong, with the target's path and the reason.
    [[nodiscard]] std::optional<Failure> failure() const;
    /// Puts the file in the target's place.
    [[nodiscard]] std::optional<Failure> finish();

private:
    class Content;
    friend std::optional<Failure> finishTogether(std::span<FileDraft> drafts);

    std::unique_ptr<Content> content_;
};

/// Files that belong together: either all take their targets' places, or none does and the first
/// failure is answered.
[[nodiscard]] std::optional<Failure> finishTogether(std::span<FileDraft> drafts);

}  // namespace campora
