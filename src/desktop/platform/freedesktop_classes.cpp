// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/platform/freedesktop_classes.h"

#include <utility>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSaveFile>
#include <QStandardPaths>

#include "desktop/platform/qt_text.h"

namespace campora {

namespace {

constexpr std::string_view kCommand = "\\shell\\open\\command";

struct IconRow {
    const char* resource;
    const char* place;
};

constexpr IconRow kIcons[] = {
    {":/icons/campora.svg", "icons/hicolor/scalable/apps/campora.svg"},
    {":/icons/rptfile.svg", "icons/hicolor/scalable/mimetypes/application-x-campora-report.svg"},
    {":/icons/prefile.svg",
     "icons/hicolor/scalable/mimetypes/application-x-campora-prescription.svg"},
};

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// An argument of an Exec line: in double quotes, with a backslash before characters that are
/// special there, and "%" doubled.
QByteArray quoted(QString argument) {
    for (const char* special : {"\\", "\"", "`", "$"}) {
        argument.replace(special, QString("\\") + special);
    }
    argument.replace("%", "%%");
    // The value of a key is unescaped once before the argument is.
    return ("\"" + argument.replace("\\", "\\\\") + "\"").toUtf8();
}

}  // namespace

FreedesktopClasses::FreedesktopClasses()
    : FreedesktopClasses(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)) {}

FreedesktopClasses::FreedesktopClasses(QString dataFolder) : dataFolder_(std::move(dataFolder)) {}

void FreedesktopClasses::setDefault(std::string_view key, std::string_view value) {
    keys_.insert_or_assign(std::string(key), std::string(value));
}

QByteArray FreedesktopClasses::execLine() const {
    for (const auto& [key, value] : keys_) {
        if (key.ends_with(kCommand)) {
            return "Exec=" + quoted(toQt(value).remove(" \"%1\"")) + " %F\n";
        }
    }
    return {};
}

QByteArray FreedesktopClasses::desktopEntry() const {
    QByteArray entry = contentOf(":/linux/campora.desktop");
    return entry.replace("Exec=campora %F\n", execLine());
}

bool FreedesktopClasses::update(const QString& path, const QByteArray& content) const {
    const QString target = dataFolder_ + "/" + path;
    if (content.isEmpty() || contentOf(target) == content ||
        !QDir().mkpath(QFileInfo(target).path())) {
        return false;
    }
    QSaveFile file(target);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() &&
           file.commit();
}

void FreedesktopClasses::finish() {
    const bool newTypes = update("mime/packages/campora.xml", contentOf(":/linux/campora.xml"));
    const bool newEntry = update("applications/campora.desktop", desktopEntry());
    for (const auto& [resource, place] : kIcons) {
        static_cast<void>(update(place, contentOf(resource)));
    }
    if (newTypes) {
        QProcess::startDetached("update-mime-database", {dataFolder_ + "/mime"});
    }
    if (newEntry) {
        QProcess::startDetached("update-desktop-database", {dataFolder_ + "/applications"});
    }
}

}  // namespace campora
