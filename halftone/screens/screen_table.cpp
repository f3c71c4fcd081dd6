// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "halftone/screens/screen_table.h"

#include <cstddef>

namespace gdi {
namespace {

template <int depth>
void screenRow(const ScreenHeader& header, std::span<const std::uint8_t> entries,
               const std::uint8_t* input, int width, int inputStride, std::uint8_t* output) {
  constexpr int pixelsPerByte = 8 / depth;
  const auto levels = static_cast<std::size_t>(header.levels());
  const int inputShift = 8 - header.inputDepth;
  const int outputShift = header.outputDepth > depth ? header.outputDepth - depth : 0;
  std::size_t cellOffset = 0;
  std::ptrdiff_t sample = 0;
  const auto screenPixels = [&](int count) {
    unsigned packed = 0;
    for (int i = 0; i < count; ++i) {
      const unsigned level = unsigned{input[sample]} >> inputShift;
      packed = (packed << depth) | (unsigned{entries[cellOffset + level]} >> outputShift);
      cellOffset += levels;
      if (cellOffset == entries.size()) {
        cellOffset = 0;
      }
      sample += inputStride;
    }
    return packed;
  };
  for (int bytes = width / pixelsPerByte; bytes > 0; --bytes) {
    *output++ = static_cast<std::uint8_t>(screenPixels(pixelsPerByte));
  }
  if (const int pixelsLeft = width % pixelsPerByte; pixelsLeft > 0) {
    *output = static_cast<std::uint8_t>(screenPixels(pixelsLeft) << (8 - pixelsLeft * depth));
  }
}

}  // namespace

std::vector<std::uint8_t> unpackedTable(const ScreenHeader& header,
                                        std::span<const std::uint8_t> packed) {
  std::vector<std::uint8_t> entries(header.entries());
  const auto depth = static_cast<unsigned>(header.outputDepth);
  const unsigned mask = (1U << depth) - 1;
  std::size_t byte = 0;
  unsigned shift = 8;
  for (std::uint8_t& entry : entries) {
    if (shift == 0) {
      ++byte;
      shift = 8;
    }
    shift -= depth;
    entry = static_cast<std::uint8_t>((unsigned{packed[byte]} >> shift) & mask);
  }
  return entries;
}

bool tableLeavesPaperBlank(const ScreenHeader& header, std::span<const std::uint8_t> unpacked) {
  const auto levels = static_cast<std::size_t>(header.levels());
  for (std::size_t cell = 0; cell < unpacked.size(); cell += levels) {
    if (unpacked[cell] != 0) {
      return false;
    }
  }
  return true;
}

void screenByTable(const ScreenHeader& header, std::span<const std::uint8_t> entries,
                   const std::uint8_t* input, int width, int inputStride, int depth,
                   std::uint8_t* output) {
  switch (depth) {
    case 1:
      return screenRow<1>(header, entries, input, width, inputStride, output);
    case 2:
      return screenRow<2>(header, entries, input, width, inputStride, output);
    case 4:
      return screenRow<4>(header, entries, input, width, inputStride, output);
    default:
      return screenRow<8>(header, entries, input, width, inputStride, output);
  }
}

}  // namespace gdi
