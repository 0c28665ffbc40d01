// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// Writes the sample jobs of samples/: make_samples OUTDIR.

#include <iostream>
#include <span>
#include <string>

#include "base/files.h"
#include "base/texts.h"
#include "sample_job/sample_files.h"

namespace {

bool write(const std::string& folder, const campora::sample::SampleFile& file) {
    const std::string path = folder + "/" + file.name;
    const auto failure =
        campora::writeFile(path, std::as_bytes(std::span(file.bytes.data(), file.bytes.size())));
    if (failure) {
        std::cerr << campora::Texts(campora::Language::English).sentence(*failure) << '\n';
    }
    return !failure;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: make_samples OUTDIR\n";
        return 2;
    }
    bool good = true;
    for (const campora::sample::SampleFile& file : campora::sample::sampleFiles()) {
        good = write(argv[1], file) && good;
    }
    return good ? 0 : 1;
}
