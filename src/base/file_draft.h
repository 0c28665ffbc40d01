// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/failure.h"

namespace campora {

/// What is promised of everything that this program writes:
///
/// - A target is the old file or the whole new one at every moment, whatever stops the program: a
///   failure of the disk, a signal, a power cut. What `finish` has called done outlasts all of
///   them. Of a set the same holds for all its files together from the next time that this program
///   reads one of them or writes into their folder: until then a journal beside them
///   (`set_journal.h`) tells what a program that was killed has left half done, and it is taken
///   back. Files that links lead into other folders make a set with those of their folder only.
/// - No name that another file has is ever taken but the target's. Programs that write into one
///   folder do not disturb each other; of two that write the same set, one whole set stands, or the
///   later is refused because the folder is in use for more than ten seconds.
/// - A failure names the target and leaves nothing behind. A program that is killed leaves nothing
///   either where the system knows files without names; else its drafts (`.campora-*.tmp`) are
///   deleted by the next that writes into the folder.
/// - A link stays a link, and the file that it names is made where there is none. Owner, group and
///   permissions stay as far as the user may set them. A file that is protected against writing is
///   refused.
///
/// A disk without locks, or in the network, keeps the promises of one program at a time.

/// A file that grows beside its target and takes its place when it is complete. Memory does not
/// grow with what is written. Without `finish` it leaves no trace.
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
    friend std::optional<Failure> finishTogether(std::span<FileDraft> drafts,
                                                 std::span<const std::string> outdated);

    std::unique_ptr<Content> content_;
};

/// Files that belong together: either all take their targets' places, or none does and the first
/// failure is answered. `outdated`: files beside the first that go when the new ones come.
[[nodiscard]] std::optional<Failure> finishTogether(std::span<FileDraft> drafts,
                                                    std::span<const std::string> outdated = {});

}  // namespace campora
