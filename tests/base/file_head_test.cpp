// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/file_head.h"

#include <string>

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace campora {
namespace {

TEST(FileHead, HoldsNoMoreThanTheFirstBytesOfAnOrdinaryFile) {
    const TempFolder folder;
    const std::string path = folder.write("ñandú.nbr", std::string("ab\0\r\ncd", 7));
    EXPECT_EQ(readFileHead(path, 4), std::string("ab\0\r", 4));
    EXPECT_EQ(readFileHead(path, 100), std::string("ab\0\r\ncd", 7));
    EXPECT_EQ(readFileHead(folder.path(), 4), std::nullopt);
    EXPECT_EQ(readFileHead(folder.file("falta"), 4), std::nullopt);
    EXPECT_EQ(readFileHead(path + std::string("\0b", 2), 4), std::nullopt);
    EXPECT_EQ(readFileHead("", 4), std::nullopt);
}

}  // namespace
}  // namespace campora
