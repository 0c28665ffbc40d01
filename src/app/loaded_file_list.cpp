// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/loaded_file_list.h"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <utility>

#include "base/files.h"
#include "base/paths.h"
#include "base/text.h"

namespace campora {

File& LoadedFileList::file(int index) const {
    return *files_.at(static_cast<std::size_t>(index));
}

std::vector<File*> LoadedFileList::all() const {
    std::vector<File*> files;
    files.reserve(files_.size());
    for (const std::unique_ptr<File>& file : files_) {
        files.push_back(file.get());
    }
    return files;
}

std::optional<int> LoadedFileList::indexOf(const File* file) const {
    const auto found = std::find_if(files_.begin(), files_.end(),
                                    [file](const auto& listed) { return listed.get() == file; });
    return found == files_.end() ? std::nullopt
                                 : std::optional(static_cast<int>(found - files_.begin()));
}

bool LoadedFileList::addFile(std::unique_ptr<File> file, bool atTop, const Desk& desk) {
    const std::string id = file->File_id();
    const auto same = std::find_if(files_.begin(), files_.end(), [&id](const auto& listed) {
        return !id.empty() && listed->File_id() == id;
    });
    if (same != files_.end()) {
        if (isSameFile((*same)->File_diskPath(), file->File_diskPath())) {
            return false;  // one file under two spellings is no second copy
        }
        if ((*same)->File_priority() >= file->File_priority()) {
            askAboutOlder(*file, **same, desk);
            return false;
        }
        File& added = *file;
        same->swap(file);
        if (current_ == file.get()) {
            current_ = &added;
        }
        askAboutOlder(*file, added, desk);
        return true;
    }
    if (files_.empty()) {
        current_ = file.get();
    }
    files_.insert(atTop ? files_.begin() : files_.end(), std::move(file));
    return true;
}

void LoadedFileList::replaceFile(const File* old, std::unique_ptr<File> file) {
    const std::optional<int> index = indexOf(old);
    if (!index) {
        return;
    }
    if (current_ == old) {
        current_ = file.get();
    }
    files_[static_cast<std::size_t>(*index)] = std::move(file);
}

void LoadedFileList::askAboutOlder(File& lessComplete, File& moreComplete, const Desk& desk) {
    const std::string lessPath = lessComplete.File_diskPath();
    const std::string morePath = moreComplete.File_diskPath();
    if (!desk.ask(desk.texts.format(TextId::OlderCopyOfWork, {lessPath, morePath}))) {
        return;
    }
    for (const std::string& path : {lessPath, lessComplete.File_resumen().sourcePath}) {
        if (path.empty() || isInUse(path, lessComplete)) {
            continue;
        }
        if (const std::optional<Failure> failure = deleteFile(path)) {
            desk.tell(*failure, MessageIcon::Error);
            return;
        }
    }
}

/// Whether a file on disk belongs to an open file other than `dropped`, as itself or as its
/// summary.
bool LoadedFileList::isInUse(std::string_view path, const File& dropped) const {
    return std::any_of(files_.begin(), files_.end(), [&](const auto& listed) {
        const std::string& summary = listed->File_resumen().sourcePath;
        return listed.get() != &dropped && (isSameFile(path, listed->File_diskPath()) ||
                                            (!summary.empty() && isSameFile(path, summary)));
    });
}

void LoadedFileList::removeFile(const File* file) {
    const std::optional<int> index = indexOf(file);
    if (!index) {
        return;
    }
    if (current_ == file) {
        current_ = nullptr;
    }
    files_.erase(files_.begin() + *index);
}

void LoadedFileList::moveUp(const File* file) {
    const std::optional<int> index = indexOf(file);
    if (index && *index > 0) {
        const auto place = files_.begin() + *index;
        std::iter_swap(place, place - 1);
    }
}

void LoadedFileList::moveDown(const File* file) {
    const std::optional<int> index = indexOf(file);
    if (index && *index + 1 < loadedCount()) {
        const auto place = files_.begin() + *index;
        std::iter_swap(place, place + 1);
    }
}

void LoadedFileList::moveToTop(const File* file) {
    if (const std::optional<int> index = indexOf(file)) {
        const auto place = files_.begin() + *index;
        std::rotate(files_.begin(), place, place + 1);
    }
}

void LoadedFileList::moveToBottom(const File* file) {
    if (const std::optional<int> index = indexOf(file)) {
        const auto place = files_.begin() + *index;
        std::rotate(place, place + 1, files_.end());
    }
}

void LoadedFileList::clearFiles() {
    current_ = nullptr;
    files_.clear();
}

File* LoadedFileList::ownerOf(const Gph* gph) const {
    const auto holds = [gph](const auto& file) {
        const std::vector<Gph*> layers = file->File_gphList();
        return std::find(layers.begin(), layers.end(), gph) != layers.end();
    };
    const auto owner = std::find_if(files_.begin(), files_.end(), holds);
    return owner == files_.end() ? nullptr : owner->get();
}

File* LoadedFileList::findFile(std::string_view path) const {
    const auto found = std::find_if(files_.begin(), files_.end(), [path](const auto& file) {
        const std::string onDisk = file->File_diskPath();
        return equalIgnoringCase(file->File_path(), path) ||
               (equalIgnoringCase(fileNamePart(onDisk), fileNamePart(path)) &&
                isSameFile(onDisk, path));
    });
    return found == files_.end() ? nullptr : found->get();
}

LoadedFileList::Saved LoadedFileList::takeAll() {
    return {std::exchange(files_, {}), std::exchange(current_, nullptr)};
}

void LoadedFileList::putBack(Saved saved) {
    files_ = std::move(saved.files);
    current_ = saved.current;
}

}  // namespace campora
