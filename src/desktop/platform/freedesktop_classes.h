// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <map>
#include <string>

#include <QString>

#include "platform/classes_registry.h"

namespace campora {

/// File types on desktops that follow freedesktop.org: MIME types ("Shared MIME-info Database"), a
/// desktop entry ("Desktop Entry Specification") and icons in the user's own data folder, written
/// when they differ from what is there.
class FreedesktopClasses final : public ClassesRegistry {
public:
    /// In "$XDG_DATA_HOME".
    FreedesktopClasses();
    explicit FreedesktopClasses(QString dataFolder);

    void setDefault(std::string_view key, std::string_view value) override;
    void finish() override;

    /// What has been set, by key.
    [[nodiscard]] const std::map<std::string, std::string, std::less<>>& keys() const {
        return keys_;
    }

private:
    /// The command of the first type that has one, in the form of a desktop entry.
    [[nodiscard]] QByteArray execLine() const;
    [[nodiscard]] QByteArray desktopEntry() const;
    /// True when the file was written; false when it is so already or cannot be written.
    [[nodiscard]] bool update(const QString& path, const QByteArray& content) const;

    QString dataFolder_;
    std::map<std::string, std::string, std::less<>> keys_;
};

}  // namespace campora
