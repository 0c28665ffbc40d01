// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/file_head.h"

#include <fstream>
#include <system_error>

#include "base/paths.h"
#include "base/time_limit.h"

namespace campora {

namespace {

std::optional<std::string> readHeadWaiting(const std::string& path, std::size_t bytes) {
    const std::filesystem::path file = nativePath(path);
    std::error_code error;
    if (!std::filesystem::is_regular_file(file, error)) {
        return std::nullopt;  // a pipe would keep the program waiting
    }
    std::ifstream in;
    in.rdbuf()->pubsetbuf(nullptr, 0);  // otherwise a whole buffer is read
    in.open(file, std::ios::binary);
    std::string head(bytes, '\0');
    in.read(head.data(), static_cast<std::streamsize>(bytes));
    if (!in.is_open() || in.bad()) {
        return std::nullopt;
    }
    head.resize(static_cast<std::size_t>(in.gcount()));
    return head;
}

}  // namespace

std::optional<std::string> readFileHead(std::string_view path, std::size_t bytes) {
    if (path.find('\0') != std::string_view::npos) {
        return std::nullopt;
    }
    return withinLimit([path = std::string(path), bytes] { return readHeadWaiting(path, bytes); })
        .value_or(std::nullopt);
}

}  // namespace campora
