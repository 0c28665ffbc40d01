// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

#include <QString>

namespace campora {

/// Texts are UTF-8 inside the program and UTF-16 in widgets.
[[nodiscard]] inline QString toQt(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

[[nodiscard]] inline std::string toUtf8(const QString& text) {
    return text.toStdString();
}

/// The text as a tooltip that is shown as it stands, whatever signs it holds.
[[nodiscard]] inline QString plainToolTip(const QString& text) {
    return text.isEmpty() ? text : "<span>" + text.toHtmlEscaped() + "</span>";
}

}  // namespace campora
