// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/platform/freedesktop_classes.h"

#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <gtest/gtest.h>

#include "app/open/file_types.h"
#include "desktop/platform/qt_text.h"
#include "support/temp_folder.h"

namespace campora {
namespace {

struct Desk {
    TempFolder folder;
    FreedesktopClasses classes{toQt(folder.path())};

    [[nodiscard]] QByteArray content(const std::string& path) const {
        QFile file(toQt(folder.file(path)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

TEST(FreedesktopClasses, AFolderThatCannotBeWrittenIsNoMatter) {
    const TempFolder folder;
    FreedesktopClasses classes(toQt(folder.write("file", "x")));
    registerFileTypes("/opt/campora", classes);
    EXPECT_FALSE(classes.keys().empty());
}

/// The validators of freedesktop.org, where they are installed.
TEST(FreedesktopClasses, TheSystemsToolsAgree) {
    const QString validate = QStandardPaths::findExecutable("desktop-file-validate");
    const QString update = QStandardPaths::findExecutable("update-mime-database");
    if (validate.isEmpty() || update.isEmpty()) {
        GTEST_SKIP() << "desktop-file-utils or shared-mime-info is not installed";
    }
    Desk desk;
    registerFileTypes("/opt/mi campo/campora", desk.classes);
    QProcess tool;
    tool.start(validate, {toQt(desk.folder.file("applications/campora.desktop"))});
    ASSERT_TRUE(tool.waitForFinished());
    EXPECT_EQ(tool.exitCode(), 0) << tool.readAll().toStdString();
    // The program has started one too, and two at once get in each other's way.
    constexpr int kMostTries = 5;
    for (int i = 0; i == 0 || (i < kMostTries && tool.exitCode() != 0); ++i) {
        tool.start(update, {toQt(desk.folder.file("mime"))});
        ASSERT_TRUE(tool.waitForFinished());
    }
    EXPECT_EQ(tool.exitCode(), 0) << tool.readAllStandardError().toStdString();
    const QByteArray globs = desk.content("mime/globs2");
    EXPECT_TRUE(globs.contains("60:application/x-campora-report:*.rpt")) << globs.data();
    EXPECT_TRUE(globs.contains("60:application/x-campora-prescription:*.pre")) << globs.data();
}

}  // namespace
}  // namespace campora
