// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "base/encoding.h"

namespace campora {

/// Ends the fuzzer with a finding.
[[noreturn]] inline void stop(std::string_view what, std::string_view where = {}) {
    const std::string line = std::string(what).append(": ").append(where);
    std::fprintf(stderr, "FINDING: %s\n", line.c_str());
    std::abort();
}

/// A text that a person reads.
inline void checkText(std::string_view text, std::string_view where) {
    if (!isUtf8(text)) {
        stop(std::string("not UTF-8 in ").append(where), text);
    }
}

}  // namespace campora
