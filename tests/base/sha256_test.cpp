// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/sha256.h"

#include <string>

#include <gtest/gtest.h>

namespace campora {
namespace {

// The examples of FIPS 180, and the lengths at which the end of a message takes another block.
TEST(Sha256, IsThatOfTheStandard) {
    const std::pair<std::string, const char*> rows[] = {
        {"", "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855"},
        {"abc", "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"},
        {"abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq",
         "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1"},
        {std::string(55, 'a'), "9f4390f8d30c2dd92ec9f095b65e2b9ae9b0a925a5258e241c9f1e910f734318"},
        {std::string(1'000'000, 'a'),
         "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0"},
    };
    for (const auto& [message, sum] : rows) {
        EXPECT_EQ(sha256(std::as_bytes(std::span(message))), sum) << message.size();
    }
}

}  // namespace
}  // namespace campora
