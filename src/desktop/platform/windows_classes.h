// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QSettings>

#include "desktop/platform/qt_text.h"
#include "platform/classes_registry.h"

namespace campora {

/// The classes root of the Windows registry.
class WindowsClasses final : public ClassesRegistry {
public:
    void setDefault(std::string_view key, std::string_view value) override {
        // The toolkit calls a key's unnamed value "."; it separates keys by "/".
        root_.setValue(toQt(key).replace('\\', '/') + "/.", toQt(value));
    }
    void finish() override { root_.sync(); }

private:
    QSettings root_{"HKEY_CLASSES_ROOT", QSettings::NativeFormat};
};

}  // namespace campora
