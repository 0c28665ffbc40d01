// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "support/outside_names.h"

#include <set>
#include <string>

#include <gtest/gtest.h>

#include "desktop/window_fixture.h"

namespace campora {
namespace {

TEST_F(WindowTest, ObjectsKeepTheNamesByWhichTheyAreFound) {
    std::set<std::string> names;
    for (const QObject* object : window->findChildren<QObject*>()) {
        const QString name = object->objectName();
        // The toolkit has its own.
        if (!name.isEmpty() && !name.startsWith("qt_") && name != "_layout") {
            names.insert(toUtf8(name));
        }
    }
    EXPECT_EQ(names, outsideNames("objects"));
}

}  // namespace
}  // namespace campora
