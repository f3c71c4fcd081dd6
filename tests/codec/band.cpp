// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/codec/band.h"

#include "codec/pc4sc4.h"

namespace gdi::codectest {

Band bandOf(const std::vector<Words>& rows) {
  Band band;
  band.rowBytes = static_cast<std::uint32_t>(2 * rows.front().size());
  band.rows = static_cast<std::uint32_t>(rows.size());
  for (const Words& row : rows) {
    for (const std::uint16_t word : row) {
      band.bytes.push_back(static_cast<std::uint8_t>(word >> 8));
      band.bytes.push_back(static_cast<std::uint8_t>(word));
    }
  }
  return band;
}

Words repeated(std::uint16_t word, std::size_t count) {
  Words words;
  words.assign(count, word);
  return words;
}

Words distinctWords(std::size_t count) {
  Words words;
  for (std::size_t i = 0; i < count; ++i) {
    words.push_back(static_cast<std::uint16_t>(0x4000 + i));
  }
  return words;
}

Words operator+(Words left, const Words& right) {
  left.insert(left.end(), right.begin(), right.end());
  return left;
}

std::vector<std::uint8_t> streamBytes(const Words& words) {
  std::vector<std::uint8_t> bytes;
  for (const std::uint16_t word : words) {
    bytes.push_back(static_cast<std::uint8_t>(word));
    bytes.push_back(static_cast<std::uint8_t>(word >> 8));
  }
  return bytes;
}

Words streamWords(const std::vector<std::uint8_t>& bytes) {
  Words words;
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    words.push_back(static_cast<std::uint16_t>(bytes[i] | (bytes[i + 1] << 8)));
  }
  return words;
}

std::vector<std::uint8_t> compressed(const Band& band, bool finalBand) {
  std::vector<std::uint8_t> output(2 * band.bytes.size() + 32 * std::size_t{band.rows} + 128);
  std::vector<std::uint8_t> seed(band.stride(), 0xAA);
  const std::uint32_t size = qbx_Compress_PC4SC4(band.bytes.data(), band.byteCount(), output.data(),
                                                 static_cast<std::uint32_t>(output.size()),
                                                 band.rowBytes, seed.data(), finalBand);
  output.resize(size == kCompressionOverflow ? 0 : size);
  return output;
}

Words codesOfLastRow(const std::vector<Words>& rows) {
  const Words stream = streamWords(compressed(bandOf(rows)));
  std::size_t record = 0;
  for (std::size_t r = 1; r < rows.size(); ++r) {
    record += std::size_t{1} + stream.at(record);
  }
  const auto first = stream.begin() + static_cast<std::ptrdiff_t>(record) + 1;
  Words codes(first, first + stream.at(record));
  while (!codes.empty() && codes.back() == 0x00FE) {
    codes.pop_back();
  }
  if (rows.size() == 1) {
    codes.erase(codes.begin(), codes.begin() + 2);
  }
  return codes;
}

}  // namespace gdi::codectest
