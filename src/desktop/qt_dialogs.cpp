// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/qt_dialogs.h"

#include <QFileDialog>
#include <QGridLayout>
#include <QInputDialog>
#include <QMessageBox>

#include "desktop/pointer_override.h"
#include "desktop/qt_text.h"

namespace campora {

namespace {

constexpr QSize kOpenDialogSize{760, 480};

QMessageBox::Icon iconOf(MessageIcon icon) {
    switch (icon) {
    case MessageIcon::Plain:
        return QMessageBox::NoIcon;
    case MessageIcon::Information:
        return QMessageBox::Information;
    case MessageIcon::Exclamation:
        return QMessageBox::Warning;
    case MessageIcon::Error:
        return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

/// Shows a box and answers the button that closed it.
int showBox(QWidget* parent, std::string_view text, MessageIcon icon, std::string_view caption,
            QMessageBox::StandardButtons buttons, QMessageBox::StandardButton safe) {
    const PointerOverride arrow(Qt::ArrowCursor);
    QMessageBox box(iconOf(icon), toQt(caption), toQt(text).remove('\r').trimmed(), buttons,
                    parent);
    // Paths and file contents are shown as they stand, not as markup.
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(safe);
    box.setEscapeButton(safe);
    // A short text must not cut the caption off: an empty row of its width at the bottom.
    if (auto* grid = qobject_cast<QGridLayout*>(box.layout())) {
        constexpr int kTitleButtons = 140;
        const int width = box.fontMetrics().horizontalAdvance(box.windowTitle()) + kTitleButtons;
        grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
    }
    return box.exec();
}

QString filterText(const FileFilter& filter) {
    QStringList patterns;
    for (const std::string& pattern : filter.patterns) {
        patterns += toQt(pattern);
    }
    return toQt(filter.caption) + " (" + patterns.join(' ') + ")";
}

}  // namespace

void QtDialogs::attach(QWidget& window, const Texts& texts) {
    window_ = &window;
    texts_ = &texts;
}

void QtDialogs::message(std::string_view text, MessageIcon icon, std::string_view caption) {
    showBox(window_, text, icon, caption, QMessageBox::Ok, QMessageBox::Ok);
}

bool QtDialogs::askYesNo(std::string_view text, MessageIcon icon, std::string_view caption) {
    return showBox(window_, text, icon, caption, QMessageBox::Yes | QMessageBox::No,
                   QMessageBox::No) == QMessageBox::Yes;
}

std::string QtDialogs::inputBox(TextId prompt, std::string_view caption,
                                std::string_view proposed) {
    const PointerOverride arrow(Qt::ArrowCursor);
    QInputDialog dialog(window_);
    dialog.setWindowTitle(toQt(caption));
    dialog.setLabelText(toQt((*texts_)(prompt)));
    dialog.setTextValue(toQt(proposed));
    return dialog.exec() == QDialog::Accepted ? toUtf8(dialog.textValue()) : std::string();
}

std::string QtDialogs::openFile(const OpenRequest& request) {
    const PointerOverride arrow(Qt::ArrowCursor);
    QFileDialog dialog(window_, toQt(request.caption), toQt(request.folder));
    dialog.setFileMode(QFileDialog::ExistingFile);
    QStringList filters;
    for (const FileFilter& filter : request.filters) {
        filters += filterText(filter);
    }
    dialog.setNameFilters(filters);
    dialog.resize(kOpenDialogSize);
    return dialog.exec() == QDialog::Accepted ? toUtf8(dialog.selectedFiles().value(0))
                                              : std::string();
}

}  // namespace campora
