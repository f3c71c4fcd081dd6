// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "halftone/screens/HalftoneScreen.h"

#include <cinttypes>
#include <cstddef>
#include <cstdio>

#include "halftone/screens/file_contents.h"

namespace gdi {

std::unique_ptr<HalftoneScreen> HalftoneScreen::initWithFile(const std::filesystem::path& path) {
  const auto data = contentsOfFile(path);
  return data ? loadFromData(*data) : nullptr;
}

std::unique_ptr<HalftoneScreen> HalftoneScreen::loadFromData(std::span<const std::uint8_t> data) {
  const auto headerLength = screenHeaderLength(data);
  if (!headerLength) {
    return nullptr;
  }
  const auto header = parseScreenHeader(data.first(*headerLength));
  if (!header) {
    return nullptr;
  }
  const auto table = data.subspan(*headerLength + 1);
  const std::int64_t expected = header->tableBytes();
  const auto actual = static_cast<std::int64_t>(table.size());
  if (actual != expected) {
    (void)std::fprintf(stderr, "ERROR: expected a size of %" PRId64 ", got %" PRId64 "\n", expected,
                       actual);
    return nullptr;
  }
  return std::unique_ptr<HalftoneScreen>(new HalftoneScreen(*header, table));
}

// `table` is of the size that the header asks for, so it bounds what is allocated here.
HalftoneScreen::HalftoneScreen(const ScreenHeader& header, std::span<const std::uint8_t> table)
    : header_(header), unpackedData_(header.entries()) {
  const auto depth = static_cast<unsigned>(header.outputDepth);
  const unsigned mask = (1U << depth) - 1;
  std::size_t byte = 0;
  unsigned shift = 8;
  for (std::uint8_t& entry : unpackedData_) {
    if (shift == 0) {
      ++byte;
      shift = 8;
    }
    shift -= depth;
    entry = static_cast<std::uint8_t>((unsigned{table[byte]} >> shift) & mask);
  }
}

bool HalftoneScreen::processScanline(const std::uint8_t* input, int width, int inputStride, int row,
                                     std::uint8_t* outputBuffer, int outputDepth) const {
  if (width < 1) {
    return true;
  }
  const int remainder = row % header_.height;
  const auto tileRow =
      static_cast<std::size_t>(remainder < 0 ? remainder + header_.height : remainder);
  const std::uint8_t* entries =
      &unpackedData_[tileRow * (unpackedData_.size() / static_cast<std::size_t>(header_.height))];
  switch (outputDepth) {
    case 1:
      screenRow<1>(input, width, inputStride, entries, outputBuffer);
      return true;
    case 2:
      screenRow<2>(input, width, inputStride, entries, outputBuffer);
      return true;
    case 4:
      screenRow<4>(input, width, inputStride, entries, outputBuffer);
      return true;
    case 8:
      screenRow<8>(input, width, inputStride, entries, outputBuffer);
      return true;
    default:
      (void)std::fprintf(stderr, "ERROR: outputDepth out of range - %d\n", outputDepth);
      return false;
  }
}

template <int depth>
void HalftoneScreen::screenRow(const std::uint8_t* input, int width, int inputStride,
                               const std::uint8_t* tileRow, std::uint8_t* output) const {
  constexpr int pixelsPerByte = 8 / depth;
  const auto levels = static_cast<std::size_t>(header_.levels());
  const std::size_t rowSpan = static_cast<std::size_t>(header_.width) * levels;
  const int inputShift = 8 - header_.inputDepth;
  const int outputShift = header_.outputDepth > depth ? header_.outputDepth - depth : 0;
  std::size_t cellOffset = 0;
  std::ptrdiff_t sample = 0;
  const auto screenPixels = [&](int count) {
    unsigned packed = 0;
    for (int i = 0; i < count; ++i) {
      const unsigned level = unsigned{input[sample]} >> inputShift;
      packed = (packed << depth) | (unsigned{tileRow[cellOffset + level]} >> outputShift);
      cellOffset += levels;
      if (cellOffset == rowSpan) {
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

}  // namespace gdi
