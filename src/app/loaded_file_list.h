// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "model/file.h"
#include "platform/desk.h"

namespace campora {

/// The open files. Index 0 is listed first and drawn last, on top.
class LoadedFileList {
public:
    [[nodiscard]] int loadedCount() const { return static_cast<int>(files_.size()); }
    [[nodiscard]] bool empty() const { return files_.empty(); }
    /// Throws `std::out_of_range` for a bad index.
    [[nodiscard]] File& file(int index) const;
    /// In their order.
    [[nodiscard]] std::vector<File*> all() const;
    /// None for a file that is not in the list.
    [[nodiscard]] std::optional<int> indexOf(const File* file) const;

    /// The file that the window shows in its summary; may be null.
    [[nodiscard]] File* currentFile() const { return current_; }
    /// `file` must be in the list or null.
    void setCurrentFile(File* file) { current_ = file; }

    /// Takes the file over. Of two files of the same work the more complete one stays, in its
    /// place, and the user is asked at `desk` whether to delete the other from disk. False
    /// when the new file was not added (it is gone then). The first file of an empty list becomes
    /// the current one; a file that takes another's place takes its being current too.
    bool addFile(std::unique_ptr<File> file, bool atTop, const Desk& desk);
    /// Another file in the place of one of the list.
    void replaceFile(const File* old, std::unique_ptr<File> file);
    void removeFile(const File* file);
    void moveUp(const File* file);
    void moveDown(const File* file);
    void moveToTop(const File* file);
    void moveToBottom(const File* file);
    void clearFiles();

    /// The first file that holds this layer, or null.
    [[nodiscard]] File* ownerOf(const Gph* gph) const;
    /// The listed file that has this path, without regard to case, or is the same file on disk
    /// under the same name; or null.
    [[nodiscard]] File* findFile(std::string_view path) const;
    [[nodiscard]] bool isLoaded(std::string_view path) const { return findFile(path) != nullptr; }

    /// Hands all files out (for a preview) and takes them back.
    struct Saved {
        std::vector<std::unique_ptr<File>> files;
        File* current = nullptr;
    };
    [[nodiscard]] Saved takeAll();
    void putBack(Saved saved);

private:
    void askAboutOlder(File& lessComplete, File& moreComplete, const Desk& desk);
    [[nodiscard]] bool isInUse(std::string_view path, const File& dropped) const;

    std::vector<std::unique_ptr<File>> files_;
    File* current_ = nullptr;
};

}  // namespace campora
