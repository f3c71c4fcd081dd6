// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A test with planes in a fresh folder, the debug log switched on.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <memory>
#include <vector>

#include "bands/RasterBandBuffer.h"
#include "tests/bands/logged_test.h"

namespace gdi {

inline constexpr int kRowBytes = 16;

class BandBuffer : public LoggedTest {
 protected:
  [[nodiscard]] std::unique_ptr<RasterBandBuffer> make(int pixelHeight, int rowBytes,
                                                       int bandHeight) const {
    return RasterBandBuffer::initWithPixelHeight(pixelHeight, rowBytes, bandHeight,
                                                 scratch_.c_str());
  }
  // 100 rows of 16 bytes in bands of 32 rows, none approved.
  [[nodiscard]] std::unique_ptr<RasterBandBuffer> makePage(bool flipped) const {
    auto buffer = make(100, kRowBytes, 32);
    if (buffer != nullptr) {
      buffer->setFlipped(flipped);
    }
    return buffer;
  }
  // Writes the line's number to every byte of lines `first` to `last` and approves them.
  static void writeLines(RasterBandBuffer& buffer, int first, int last) {
    for (int line = first; line <= last; ++line) {
      std::fill_n(buffer.rasterLine(line), kRowBytes, static_cast<std::uint8_t>(line));
      buffer.approveRasterLine(line);
    }
  }
  // The first byte of every row of the scratch file.
  [[nodiscard]] std::vector<int> rowsInFile() const {
    std::ifstream file(scratch_, std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
    std::vector<int> rows;
    for (std::size_t i = 0; i < bytes.size(); i += kRowBytes) {
      rows.push_back(static_cast<std::uint8_t>(bytes[i]));
    }
    return rows;
  }
};

}  // namespace gdi
