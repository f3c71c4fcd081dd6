// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What a report on a band keeps to, whatever the band's bytes; for the tests and for the fuzzers.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace gdi::reader {

// Examines and decodes a band, and decodes it once more with the codec tests' plain decoder. Says
// what does not agree, or is not as every report is; empty when all is well.
std::string disagreementOn(std::span<const std::uint8_t> data, std::uint32_t rows,
                           std::size_t rowBytes, bool last);

}  // namespace gdi::reader
