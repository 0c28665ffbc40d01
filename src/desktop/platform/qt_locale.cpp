// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/platform/qt_locale.h"

#include "desktop/platform/qt_text.h"

namespace campora {

char QtLocale::decimalSymbol() const {
    return locale_.decimalPoint() == "," ? ',' : '.';
}

std::string QtLocale::shortDateForm() const {
    const QString form = locale_.dateFormat(QLocale::ShortFormat);
    const bool digitsAlone = !form.contains("MMM") && !form.contains("ddd") && !form.contains('\'');
    return digitsAlone ? toUtf8(form.toLower()) : "dd/mm/yyyy";
}

int QtLocale::languageNumber() const {
    // The numbers of Windows ("Windows Language Code Identifier Reference"), with the country where
    // the language is most at home; the toolkit gives names only.
    switch (locale_.language()) {
    case QLocale::Spanish:
        return 0x2C0A;
    case QLocale::Portuguese:
        return 0x0416;
    case QLocale::English:
        return 0x0409;
    default:
        return 0;
    }
}

}  // namespace campora
