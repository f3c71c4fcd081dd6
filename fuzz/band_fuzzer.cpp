// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Any bytes as a compressed band: examined and decoded alike, and as the plain decoder has it. The
// first four bytes are the band's rows less one, the 128-bit units of a row less one in two bytes,
// low byte first, and whether it is a page's last band.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <span>
#include <string>

#include "tests/reader/band_twin.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::size_t header = 4;
  const std::size_t mostUnits = 1792;  // rows of 28,672 bytes
  if (size < header) {
    return 0;
  }
  const std::uint32_t rows = data[0] + 1U;
  const std::size_t rowBytes = 16 * ((data[1] + 256U * data[2]) % mostUnits + 1);
  const bool last = data[3] % 2 != 0;
  const std::string disagreement =
      gdi::reader::disagreementOn(std::span(data + header, size - header), rows, rowBytes, last);
  if (!disagreement.empty()) {
    std::cerr << disagreement << '\n';
    std::abort();
  }
  return 0;
}
