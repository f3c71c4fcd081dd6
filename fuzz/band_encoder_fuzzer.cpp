// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Any bitmap, encoded: the band keeps every rule, decodes to the bitmap by either decoder, stays
// within the bound, and is the same a second time and from the plain encoder. The first two bytes
// are the 128-bit units of a row less one, and whether the band is a page's last together with the
// instructions to encode with. Rows are of up to 2048 bytes, so that a literal run can be long and
// have a long skip.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <vector>

#include "codec/pc4sc4.h"
#include "reader/StoredPlane.h"
#include "reader/band_data.h"
#include "tests/codec/plain_encoder.h"
#include "tests/reader/band_twin.h"
#include "tests/support/instruction_sets.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::size_t header = 2;
  if (size < header) {
    return 0;
  }
  const std::uint32_t rowBytes = 16 * (data[0] % 128 + 1U);
  const bool last = data[1] % 2 != 0;
  static const auto kInstructionSets = gdi::test::instructionSets();
  const gdi::test::WithInstructions only(kInstructionSets[data[1] / 2 % kInstructionSets.size()]);
  const auto rows =
      std::clamp<std::uint32_t>(static_cast<std::uint32_t>((size - header) / rowBytes), 1, 256);
  std::vector<std::uint8_t> bitmap(std::size_t{rows} * rowBytes);
  const std::size_t given = std::min(bitmap.size(), size - header);
  std::copy_n(data + header, given, bitmap.begin());
  for (std::uint32_t row = 1; row <= rows; ++row) {  // the last 32 bits of a row are no pixels
    std::fill_n(bitmap.begin() + std::ptrdiff_t{row} * rowBytes - 4, 4, std::uint8_t{0});
  }

  const auto capacity = static_cast<std::uint32_t>(gdi::worstCaseBandBytes(rows, rowBytes));
  const auto encode = [&] {
    std::vector<std::uint8_t> seed(rowBytes);
    std::vector<std::uint8_t> band(capacity);
    const std::uint32_t length = gdi::qbx_Compress_PC4SC4(
        bitmap.data(), rows * rowBytes, band.data(), capacity, rowBytes, seed.data(), last);
    if (length > capacity) {
      std::abort();
    }
    band.resize(length);
    return band;
  };
  const std::vector<std::uint8_t> band = encode();
  const auto report = gdi::reader::examineBandData(band, rows, rowBytes, last);
  if (!report.complete || !report.flaws.empty() || encode() != band ||
      gdi::reader::decodeBand(band, rows, rowBytes).rows != bitmap ||
      gdi::codectest::plainCompress({rowBytes, rows, bitmap}, last) != band ||
      !gdi::reader::disagreementOn(band, rows, rowBytes, last).empty()) {
    std::abort();
  }
  return 0;
}
