// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A band's length that is too great by just the records that follow the band.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "reader/RecordReader.h"

namespace gdi::reader {

// Where in a band's data the next record begins, when the band's rows end there, with the trailer
// or without it. rowBits: padded bits a row, a multiple of 128.
std::optional<std::size_t> swallowedRecord(const Band& swallowing, std::uint32_t rowBits);

}  // namespace gdi::reader
