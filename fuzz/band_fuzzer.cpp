// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Any bytes as a compressed band: examined and decoded alike. The first three bytes are the band's
// rows, the 128-bit units of a row, and whether it is a page's last band.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>

#include "reader/StoredPlane.h"
#include "reader/band_data.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::size_t header = 3;
  if (size < header) {
    return 0;
  }
  const std::uint32_t rows = data[0] + 1U;
  const std::size_t rowBytes = 16 * (data[1] + std::size_t{1});
  const std::span<const std::uint8_t> band(data + header, size - header);

  const auto report = gdi::reader::examineBandData(band, rows, rowBytes, data[2] % 2 != 0);
  const auto decoded = gdi::reader::decodeBand(band, rows, rowBytes);
  const bool inked = decoded.complete &&
                     std::ranges::any_of(decoded.rows, [](std::uint8_t byte) { return byte != 0; });
  const bool agree =
      report.complete == decoded.complete &&
      (!report.complete || (report.consumed == decoded.consumed && report.inked == inked));
  if (!agree) {
    std::abort();
  }
  return 0;
}
