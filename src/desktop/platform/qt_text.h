// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

#include <QString>

#include "base/plain_text.h"
#include "paint/shown_text.h"

namespace campora {

/// Texts are UTF-8 inside the program and UTF-16 in widgets.
[[nodiscard]] inline QString toQt(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

/// A name that is only shown, in one line, as `shownText` shows texts; `toQt` is for those that
/// come back, such as paths in fields.
[[nodiscard]] inline QString shownName(std::string_view utf8) {
    return toQt(plainLine(utf8));
}

[[nodiscard]] inline std::string toUtf8(const QString& text) {
    return text.toStdString();
}

/// The text as a tooltip that is shown as it stands, line by line, whatever signs it holds.
[[nodiscard]] inline QString plainToolTip(const QString& text) {
    return text.isEmpty()
               ? text
               : "<span>" + shownText(toUtf8(text)).toHtmlEscaped().replace("\n", "<br>") +
                     "</span>";
}

}  // namespace campora
