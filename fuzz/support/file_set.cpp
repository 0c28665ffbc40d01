// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "support/file_set.h"

#include <algorithm>
#include <iterator>

namespace campora {

namespace {

/// Every ending, the companions of each, and names that are hard to write.
constexpr std::string_view kNames[] = {
    "a.rpt",                 // a
    "a.txt",                 // b
    "log01.nbr",             // c
    "a.shp",                 // d
    "a.vrt",                 // e
    "a.pre",                 // f
    "a.lot",                 // g
    "a.fsp",                 // h
    "a.dbf",                 // i
    "a.shx",                 // j
    "a.prj",                 // k
    "a.cpg",                 // l
    "Wrk01.txt",             // m
    "matriculas.txt",        // n
    "\xC3\xB1 & \"b\".RPT",  // o
    "LOG02.NBR",             // p
    "b.shp",                 // q
    "b.dbf",                 // r
    "b.lot",                 // s
    "b.fsp",                 // t
    "c.fsp",                 // u
    "a",                     // v
    "a.rpt.campora.json",    // w
    "b.pre",                 // x
    "WRK02.TXT",             // y
    "b.txt",                 // z
};

}  // namespace

std::span<const std::string_view> fileNames() {
    return kNames;
}

FileSet::FileSet(std::string_view input) {
    if (input.size() <= kChoices) {
        return;
    }
    std::copy_n(input.begin(), kChoices, choices.begin());
    input.remove_prefix(kChoices);
    while (!input.empty()) {
        const std::size_t end = input.find(kMark);
        const std::string_view file = input.substr(0, end);
        input.remove_prefix(end == std::string_view::npos ? input.size() : end + kMark.size());
        if (file.empty()) {
            continue;
        }
        const auto letter = static_cast<std::uint8_t>(file.front() - 'a');
        const std::string_view name = kNames[letter % std::size(kNames)];
        if (!has(name)) {
            files.push_back({name, file.substr(1)});
        }
    }
}

bool FileSet::has(std::string_view name) const {
    return std::any_of(files.begin(), files.end(),
                       [name](const Entry& entry) { return entry.name == name; });
}

}  // namespace campora
