// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/byte_reader.h"

#include "base/failure.h"
#include "base/numbers.h"

namespace campora {

void ByteReader::failAt(std::size_t offset) {
    throw FormatError({TextId::FileCutShort, {numberText(offset)}});
}

}  // namespace campora
