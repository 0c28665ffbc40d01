// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/set_journal.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

#include "base/disk_calls.h"
#include "base/file_access.h"
#include "base/fresh_name.h"
#include "base/paths.h"

namespace campora {

namespace fs = std::filesystem;

namespace {

// The journal: its name and version, then of each member target, draft, kept, size and sum; a NUL,
// which no name contains, behind each.
constexpr std::string_view kJournal = ".campora-journal";
constexpr std::string_view kVersion = "campora set 1";
constexpr std::size_t kFields = 5;
constexpr std::size_t kMostBytes = std::size_t{1} << 24U;

fs::path named(const fs::path& folder, std::string_view name) {
    return folder / fs::path(std::u8string(name.begin(), name.end()));
}

/// Whether there is anything of that name, be it a link.
bool isTaken(const fs::path& path, std::error_code& error) {
    const fs::file_status status = fs::symlink_status(path, error);
    if (status.type() == fs::file_type::not_found) {
        error.clear();
    }
    return fs::exists(status);
}

std::string encode(std::span<const SetMember> set) {
    std::string text(kVersion);
    text += '\0';
    for (const SetMember& member : set) {
        for (const std::string& field :
             {member.target, member.draft, member.kept, std::to_string(member.mark.size),
              std::to_string(member.mark.sum)}) {
            text += field;
            text += '\0';
        }
    }
    return text;
}

bool takesNumber(std::string_view text, std::uint64_t& number) {
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    return error == std::errc{} && stop == end;
}

/// A journal may come with a card from anywhere: it must not reach out of its folder, nor touch by
/// other names than those that this program gives.
bool isSound(const SetMember& member) {
    const fs::path target(std::u8string(member.target.begin(), member.target.end()));
    return target.has_filename() && target == target.filename() && member.target != "." &&
           member.target != ".." && (member.draft.empty() || isOwnName(member.draft)) &&
           (member.kept.empty() || isOwnName(member.kept));
}

std::optional<std::vector<SetMember>> decode(std::string_view text) {
    std::vector<std::string_view> fields;
    for (std::size_t end = text.find('\0'); end != std::string_view::npos; end = text.find('\0')) {
        fields.push_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    if (!text.empty() || fields.size() % kFields != 1 || fields.front() != kVersion) {
        return std::nullopt;
    }
    std::vector<SetMember> set;
    for (std::size_t i = 1; i < fields.size(); i += kFields) {
        SetMember member{
            std::string(fields[i]), std::string(fields[i + 1]), std::string(fields[i + 2]), {}};
        if (!takesNumber(fields[i + 3], member.mark.size) ||
            !takesNumber(fields[i + 4], member.mark.sum) || !isSound(member)) {
            return std::nullopt;
        }
        set.push_back(std::move(member));
    }
    return set;
}

Failure unfinished(Failure reason) {
    return because(TextId::UnfinishedSave, {}, std::move(reason));
}

/// The set that the folder's journal names, empty without one; or why it cannot be told.
Result<std::vector<SetMember>> unfinishedSet(const fs::path& folder) {
    const fs::path path = folder / kJournal;
    const Descriptor journal = openToLook(path);
    if (!journal) {
        const std::error_code reason = lastError();
        std::error_code error;
        if (isTaken(path, error) || error) {
            return unfinished(reasonOf(reason));
        }
        return std::vector<SetMember>();
    }
    if (tryLock(journal) == LockState::Busy) {
        return Failure{TextId::FolderBusy, {}};
    }
    if (!speaksFor(journal, folder)) {
        return unfinished(
            fileFailure(TextId::FileCannotBeRead, pathText(path), TextId::FileNoPermission));
    }
    std::string text;
    if (const std::error_code error = readAt(journal, 0, kMostBytes, text)) {
        return unfinished(reasonOf(error));
    }
    if (text.empty()) {
        return std::vector<SetMember>();  // written before anything was moved, or it would be whole
    }
    std::optional<std::vector<SetMember>> set = decode(text);
    if (!set) {
        return unfinished(
            fileFailure(TextId::FileCannotBeRead, pathText(path), TextId::WrongFileFormat));
    }
    return std::move(*set);
}

/// The earlier file is in its place again and has no second name.
std::error_code putBack(const fs::path& kept, const fs::path& target) {
    const std::error_code error = moveOver(kept, target);
    if (error && error != std::errc::no_such_file_or_directory) {
        return error;
    }
    return removeName(kept);  // a move to another name of the same file does nothing
}

std::error_code restore(const fs::path& folder, const SetMember& member) {
    const fs::path target = named(folder, member.target);
    const fs::path draft = named(folder, member.draft);
    const fs::path kept = named(folder, member.kept);
    std::error_code error;
    const bool isThere = isTaken(target, error);
    const bool isPlaced = !error && (member.draft.empty() || !isTaken(draft, error));
    const bool isKept = !error && !member.kept.empty() && isTaken(kept, error);
    if (error) {
        return error;
    }
    if (isPlaced && isThere && (isKept || member.kept.empty())) {
        const bool isOurs = markOf(target, error) == member.mark;
        if (error) {
            return error;
        }
        if (isOurs) {
            return isKept ? putBack(kept, target) : removeName(target);
        }
    }
    if (isKept) {
        error = isThere ? removeName(kept) : putBack(kept, target);
    }
    return error || member.draft.empty() ? error : removeName(draft);
}

}  // namespace

std::optional<FileMark> markOf(const fs::path& file, std::error_code& error) {
    constexpr std::size_t kPart = std::size_t{1} << 20U;
    const fs::file_status status = fs::symlink_status(file, error);
    if (error || !fs::is_regular_file(status)) {
        return std::nullopt;
    }
    FileMark mark;
    mark.size = fs::file_size(file, error);
    const Descriptor content = openToLook(file);
    if (!content && !error) {
        error = lastError();
    }
    mark.sum = 14695981039346656037U;  // FNV-1a
    std::string part(kPart, '\0');
    for (std::uint64_t offset = 0; !error && part.size() == kPart; offset += part.size()) {
        error = readAt(content, offset, kPart, part);
        for (const char byte : part) {
            mark.sum = (mark.sum ^ static_cast<unsigned char>(byte)) * 1099511628211U;
        }
    }
    return error ? std::nullopt : std::optional(mark);
}

std::error_code writeJournal(const fs::path& folder, std::span<const SetMember> set,
                             OwnFile& journal) {
    std::error_code error = journal.create(folder);
    if (!error) {
        static_cast<void>(tryLock(journal.descriptor()));
        error = writeAt(journal.descriptor(), 0, encode(set));
    }
    if (!error) {
        error = flush(journal.descriptor());
    }
    return error ? error : journal.becomeNew(folder / kJournal);
}

std::error_code removeJournal(const fs::path& folder) {
    return removeName(folder / kJournal);
}

std::error_code rollBack(const fs::path& folder, std::span<const SetMember> set) {
    std::error_code first;
    for (const SetMember& member : set) {
        if (const std::error_code error = restore(folder, member); error && !first) {
            first = error;
        }
    }
    return first;
}

std::optional<Failure> undoUnfinishedSet(const fs::path& folder) {
    const Result<std::vector<SetMember>> set = unfinishedSet(folder);
    if (!set) {
        return set.failure();
    }
    std::error_code error;
    if (set->empty() && !isTaken(folder / kJournal, error)) {
        return std::nullopt;
    }
    error = rollBack(folder, *set);
    if (!error) {
        error = flush(openFolder(folder));
    }
    if (!error) {
        error = removeJournal(folder);
    }
    return error ? std::optional(unfinished(reasonOf(error))) : std::nullopt;
}

void removeLeftovers(const fs::path& folder) {
    const FolderLock lock(folder, 0);
    if (!lock.isHeld() || undoUnfinishedSet(folder)) {
        return;
    }
    std::error_code error;
    std::vector<fs::path> left;
    fs::directory_iterator entry(folder.empty() ? fs::path(".") : folder, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        if (isOwnName(pathText(entry->path().filename()))) {
            left.push_back(entry->path());
        }
    }
    std::for_each(left.begin(), left.end(), removeUnlocked);
}

std::optional<Failure> settleSetOf(const fs::path& file) {
    const fs::path folder = file.parent_path();
    std::error_code ignored;
    if (!isTaken(folder / kJournal, ignored)) {
        return std::nullopt;
    }
    const FolderLock lock(folder, kFolderPatience);
    if (!lock.isHeld()) {
        return Failure{TextId::FolderBusy, {}};
    }
    std::optional<Failure> failure = undoUnfinishedSet(folder);
    const Result<std::vector<SetMember>> set = unfinishedSet(folder);
    const bool isMember =
        set && std::any_of(set->begin(), set->end(), [&](const SetMember& member) {
            return member.target == pathText(file.filename());
        });
    return isMember ? failure : std::nullopt;
}

}  // namespace campora
