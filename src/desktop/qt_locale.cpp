// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/qt_locale.h"

#include "desktop/qt_text.h"

namespace campora {

char QtLocale::decimalSymbol() const {
    return locale_.decimalPoint() == "," ? ',' : '.';
}

std::string QtLocale::shortDateForm() const {
    const QString form = locale_.dateFormat(QLocale::ShortFormat);
    const bool digitsAlone = !form.contains("MMM") && !form.contains("ddd") && !form.contains('\'');
    return digitsAlone ? toUtf8(form.toLower()) : "dd/mm/yyyy";
}

Language QtLocale::language() const {
    switch (locale_.language()) {
    case QLocale::Spanish:
        return Language::Spanish;
    case QLocale::Portuguese:
        return Language::Portuguese;
    default:
        return Language::English;
    }
}

}  // namespace campora
