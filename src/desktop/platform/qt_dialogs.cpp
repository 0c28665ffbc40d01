// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/platform/qt_dialogs.h"

#include <algorithm>

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QGridLayout>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QTimer>

#include "base/plain_text.h"
#include "desktop/platform/pointer_override.h"
#include "desktop/platform/qt_text.h"

namespace campora {

namespace {

constexpr QSize kOpenDialogSize{760, 480};
// In milliseconds.
constexpr int kPreviewDelay = 150;

/// While it lives a box stands: no progress is in front of it, and the pointer is an arrow.
class InFront {
public:
    explicit InFront(ProgressWindows& progress) : hidden_(progress), arrow_(Qt::ArrowCursor) {}

private:
    ProgressWindows::Hidden hidden_;
    PointerOverride arrow_;
};

QMessageBox::Icon iconOf(MessageIcon icon) {
    switch (icon) {
    case MessageIcon::Plain:
        return QMessageBox::NoIcon;
    case MessageIcon::Information:
        return QMessageBox::Information;
    case MessageIcon::Question:
        return QMessageBox::Question;
    case MessageIcon::Exclamation:
        return QMessageBox::Warning;
    case MessageIcon::Error:
        return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

struct BoxButtons {
    QMessageBox::StandardButtons shown = QMessageBox::Ok;
    /// The one for Enter and Esc.
    QMessageBox::StandardButton safe = QMessageBox::Ok;
};

/// Shows a box and answers the button that closed it.
int showBox(QWidget* parent, std::string_view text, MessageIcon icon, std::string_view caption,
            const BoxButtons& buttons = {}) {
    QMessageBox box(iconOf(icon), shownText(caption), shownText(text).remove('\r').trimmed(),
                    buttons.shown, parent);
    // Paths and file contents are shown as they stand, not as markup.
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(buttons.safe);
    box.setEscapeButton(buttons.safe);
    // A short text must not cut the caption off: an empty row of its width at the bottom.
    if (auto* grid = qobject_cast<QGridLayout*>(box.layout())) {
        constexpr int kTitleButtons = 140;
        const int width = box.fontMetrics().horizontalAdvance(box.windowTitle()) + kTitleButtons;
        grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
    }
    return box.exec();
}

void prepare(QFileDialog& dialog) {
    dialog.resize(kOpenDialogSize);
#ifndef Q_OS_WIN
    // A desktop's own dialog speaks the desktop's language, whatever the user has chosen here.
    dialog.setOption(QFileDialog::DontUseNativeDialog);
#endif
}

QString filterText(const FileFilter& filter) {
    QStringList patterns;
    for (const std::string& pattern : filter.patterns) {
        patterns += toQt(pattern);
    }
    return toQt(filter.caption) + " (" + patterns.join(' ') + ")";
}

QStringList filterTexts(const std::vector<FileFilter>& filters) {
    QStringList texts;
    for (const FileFilter& filter : filters) {
        texts += filterText(filter);
    }
    return texts;
}

std::vector<std::string> pathsOf(const QStringList& files) {
    std::vector<std::string> paths;
    for (const QString& file : files) {
        paths.push_back(toUtf8(file));
    }
    return paths;
}

}  // namespace

void QtDialogs::attach(QWidget& window, const Texts& texts) {
    window_ = &window;
    texts_ = &texts;
}

QWidget* QtDialogs::owner() const {
    QWidget* const top = QApplication::activeModalWidget();
    return top != nullptr ? top : window_;
}

void QtDialogs::message(std::string_view text, MessageIcon icon, std::string_view caption) {
    const InFront front(progress_);
    showBox(owner(), text, icon, caption);
}

bool QtDialogs::askYesNo(std::string_view text, MessageIcon icon, std::string_view caption) {
    const InFront front(progress_);
    return showBox(owner(), text, icon, caption,
                   {QMessageBox::Yes | QMessageBox::No, QMessageBox::No}) == QMessageBox::Yes;
}

std::optional<std::string> QtDialogs::inputBox(const InputRequest& request) {
    const InFront front(progress_);
    QInputDialog dialog(owner());
    dialog.setWindowTitle(shownText(request.caption));
    dialog.setLabelText(toQt(namingFile((*texts_)(request.prompt), request.file)));
    for (QLabel* const label : dialog.findChildren<QLabel*>()) {
        label->setTextFormat(Qt::PlainText);
    }
    dialog.setTextValue(toQt(request.proposed));
    return dialog.exec() == QDialog::Accepted ? std::optional(toUtf8(dialog.textValue()))
                                              : std::nullopt;
}

Answer QtDialogs::askYesNoCancel(std::string_view text, MessageIcon icon,
                                 std::string_view caption) {
    const InFront front(progress_);
    switch (
        showBox(owner(), text, icon, caption,
                {QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Cancel})) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    default:
        return Answer::Cancel;
    }
}

std::vector<std::string> QtDialogs::openFiles(const OpenRequest& request) {
    const InFront front(progress_);
    QFileDialog dialog(owner(), toQt(request.caption), toQt(request.folder));
    dialog.setFileMode(request.several ? QFileDialog::ExistingFiles : QFileDialog::ExistingFile);
    dialog.setNameFilters(filterTexts(request.filters));
    prepare(dialog);
    if (request.preview) {
        // After a moment of rest: stepping through a list must not open every file on the way.
        auto* rest = new QTimer(&dialog);
        rest->setSingleShot(true);
        rest->setInterval(kPreviewDelay);
        QObject::connect(&dialog, &QFileDialog::currentChanged, rest, qOverload<>(&QTimer::start));
        QObject::connect(rest, &QTimer::timeout, &dialog,
                         [&] { request.preview(pathsOf(dialog.selectedFiles())); });
    }
    return dialog.exec() == QDialog::Accepted ? pathsOf(dialog.selectedFiles())
                                              : std::vector<std::string>();
}

SaveAnswer QtDialogs::saveFile(const SaveRequest& request) {
    const InFront front(progress_);
    QFileDialog dialog(owner(), toQt(request.caption), toQt(request.folder));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    const QStringList filters = filterTexts(request.filters);
    dialog.setNameFilters(filters);
    dialog.selectFile(toQt(request.name));
    prepare(dialog);
    const auto chosenFilter = [&] {
        return std::max(0, static_cast<int>(filters.indexOf(dialog.selectedNameFilter())));
    };
    const auto useEnding = [&] {
        if (!request.filters.empty()) {
            const auto& patterns =
                request.filters[static_cast<std::size_t>(chosenFilter())].patterns;
            dialog.setDefaultSuffix(toQt(patterns.empty() ? "" : patterns.front()).mid(2));
        }
    };
    useEnding();
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, useEnding);
    if (dialog.exec() != QDialog::Accepted) {
        return {};
    }
    return {toUtf8(dialog.selectedFiles().value(0)), chosenFilter()};
}

std::string QtDialogs::chooseFolder(const FolderRequest& request) {
    const InFront front(progress_);
    QFileDialog dialog(owner(), toQt(request.caption), toQt(request.folder));
    dialog.setFileMode(QFileDialog::Directory);
    if (request.files.patterns.empty()) {
        dialog.setOption(QFileDialog::ShowDirsOnly);
    } else {
        dialog.setNameFilter(filterText(request.files));
    }
    if (!request.entry.empty()) {
        dialog.setLabelText(QFileDialog::FileName, toQt(request.entry));
    }
    prepare(dialog);
    return dialog.exec() == QDialog::Accepted ? toUtf8(dialog.selectedFiles().value(0))
                                              : std::string();
}

std::optional<Color> QtDialogs::chooseColor(Color current) {
    const InFront front(progress_);
    QColorDialog dialog(QColor(current.red(), current.green(), current.blue()), owner());
    dialog.setWindowTitle(toQt((*texts_)(TextId::ChooseColor)));
    // The program's words stand on its own dialog; the desktop's would be in another language.
    dialog.setOption(QColorDialog::DontUseNativeDialog);
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    const QColor chosen = dialog.selectedColor();
    return Color::rgb(chosen.red(), chosen.green(), chosen.blue());
}

std::unique_ptr<Progress> QtDialogs::progress(std::string_view caption) {
    return progress_.start([this] { return owner(); }, shownText(caption),
                           toQt((*texts_)(TextId::ButtonCancel)));
}

}  // namespace campora
