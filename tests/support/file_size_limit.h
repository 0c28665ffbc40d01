// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#ifndef _WIN32

#include <csignal>

#include <sys/resource.h>

namespace campora {

/// While it lives, no file of this process grows beyond `most` bytes.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t most) : signal_(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{most, before_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    ~FileSizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, signal_);
    }

private:
    rlimit before_{};
    void (*signal_)(int);
};

}  // namespace campora

#endif
