// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <filesystem>

#ifdef __linux__
#include <sys/stat.h>
#endif

#include <gtest/gtest.h>

#include "desktop/platform/qt_locale.h"
#include "desktop/platform/qt_settings_store.h"
#include "desktop/platform/qt_shell.h"
#include "desktop/platform/qt_text.h"
#include "support/temp_folder.h"

namespace campora {
namespace {

TEST(QtLocale, SpeaksTheProgramsForms) {
    struct Row {
        const char* name;
        char decimal;
        const char* date;
        int language;
    };
    const Row rows[] = {
        {"es_AR", ',', "d/m/yy", 0x0A}, {"pt_BR", ',', "dd/mm/yyyy", 0x16},
        {"en_US", '.', "m/d/yy", 0x09}, {"de_DE", ',', "dd.mm.yy", 0},
        {"C", '.', "dd/mm/yyyy", 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const QtLocale locale{QLocale(row.name)};
        EXPECT_EQ(locale.decimalSymbol(), row.decimal);
        EXPECT_EQ(locale.shortDateForm(), row.date);
        EXPECT_EQ(locale.languageNumber() & 0xFF, row.language);
    }
}

TEST(QtSettingsStore, KeepsTextsAsTheyAre) {
    const TempFolder folder;
    const QString file = toQt(folder.file("campora.ini"));
    const std::string texts[] = {"", "16744576", "True", "/tmp/Año 1, lote=2;%20", "@Byte(1)"};
    for (const std::string& text : texts) {
        SCOPED_TRACE(text);
        QtSettingsStore(file).write("OpenPath", text);
        EXPECT_EQ(QtSettingsStore(file).read("OpenPath"), text);
    }
    EXPECT_EQ(QtSettingsStore(file).read("SavePath"), std::nullopt);
}

TEST(QtSettingsStore, LivesWithADamagedFile) {
    const TempFolder folder;
    const std::string file = folder.write("campora.ini", std::string("\0[[Config\n=%\xff\n", 14));
    EXPECT_EQ(QtSettingsStore(toQt(file)).read("OpenPath"), std::nullopt);
}

#ifdef Q_OS_LINUX

TEST(QtSettingsStore, DoesNotWaitForAPipe) {
    const TempFolder folder;
    std::filesystem::create_directory(folder.file("Campora"));
    const std::string pipe = folder.file("Campora/Campora.conf");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const QByteArray home = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(folder.path()));
    QtSettingsStore ofTheUser;
    home.isEmpty() ? qunsetenv("XDG_CONFIG_HOME") : qputenv("XDG_CONFIG_HOME", home);
    QtSettingsStore named(toQt(pipe));
    for (QtSettingsStore* store : {&ofTheUser, &named}) {
        store->write("OpenPath", "/tmp");
        EXPECT_EQ(store->read("OpenPath"), std::nullopt);
    }
}

TEST(QtShell, TellsWhetherTheDesktopOpenedTheFile) {
    const TempFolder folder;
    const QByteArray path = qgetenv("PATH");
    const auto opensWith = [&](const char* script) {
        const std::string program = folder.write("xdg-open", script);
        std::filesystem::permissions(program, std::filesystem::perms::owner_all);
        return QtShell().open(folder.file("a b & 'c'.kml"));
    };
    qputenv("PATH", toQt(folder.path()).toUtf8() + ":" + path);
    EXPECT_TRUE(opensWith("#!/bin/sh\ntest \"${1##*/}\" = \"a b & 'c'.kml\"\n"));
    EXPECT_FALSE(opensWith("#!/bin/sh\nexit 3\n")) << "no program for it";
    std::filesystem::remove(folder.file("xdg-open"));
    qputenv("PATH", toQt(folder.path()).toUtf8());
    EXPECT_FALSE(QtShell().open(folder.file("a.kml"))) << "no such desktop";
    qputenv("PATH", path);
}

#endif

}  // namespace
}  // namespace campora
