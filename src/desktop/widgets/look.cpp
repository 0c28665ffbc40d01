// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/widgets/look.h"

#include <QApplication>
#include <QIcon>
#include <QPalette>
#include <QProxyStyle>

namespace campora {

namespace {

class Style final : public QProxyStyle {
public:
    Style() : QProxyStyle("Fusion") {}

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        // The desktop's pictures on buttons would not match the program's own.
        if (hint == SH_DialogButtonBox_ButtonsHaveIcons) {
            return 0;
        }
        // The toolkit's menu on scroll bars speaks another language and tells nobody anything.
        if (hint == SH_ScrollBar_ContextMenu) {
            return 0;
        }
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
};

QPalette lightPalette() {
    struct Row {
        QPalette::ColorRole role;
        const char* active;
        const char* disabled;
    };
    static constexpr Row kRows[] = {
        {QPalette::Window, "#F3F5F2", "#F3F5F2"},
        {QPalette::WindowText, "#232E33", "#98A39E"},
        {QPalette::Base, "#FFFFFF", "#F8F9F7"},
        {QPalette::AlternateBase, "#F3F7F3", "#F3F5F2"},
        {QPalette::Text, "#232E33", "#98A39E"},
        {QPalette::PlaceholderText, "#75817B", "#98A39E"},
        {QPalette::Button, "#F3F5F2", "#F3F5F2"},
        {QPalette::ButtonText, "#232E33", "#98A39E"},
        {QPalette::BrightText, "#FFFFFF", "#FFFFFF"},
        {QPalette::Light, "#FFFFFF", "#FFFFFF"},
        {QPalette::Midlight, "#E7EBE6", "#E7EBE6"},
        {QPalette::Mid, "#C2CAC4", "#C2CAC4"},
        {QPalette::Dark, "#97A19B", "#97A19B"},
        {QPalette::Shadow, "#6A746E", "#6A746E"},
        {QPalette::Highlight, "#2E8B4F", "#B9C4BD"},
        {QPalette::HighlightedText, "#FFFFFF", "#FFFFFF"},
        {QPalette::Link, "#1F6F3C", "#98A39E"},
        {QPalette::ToolTipBase, "#FFFFFF", "#FFFFFF"},
        {QPalette::ToolTipText, "#232E33", "#232E33"},
    };
    QPalette palette;
    for (const Row& row : kRows) {
        palette.setColor(row.role, QColor(row.active));
        palette.setColor(QPalette::Disabled, row.role, QColor(row.disabled));
    }
    return palette;
}

}  // namespace

void applyLook() {
    QApplication::setStyle(new Style);
    QApplication::setPalette(lightPalette());
    QApplication::setWindowIcon(QIcon(":/icons/campora.svg"));
}

}  // namespace campora
