// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "halftone/screens/screen_header.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>

#include "halftone/screens/depth.h"

namespace gdi {
namespace {

constexpr std::size_t kLongestHeader = 1024;

// Reads five integers as scanf's "%d %d %d %d %d" does: those not reached stay 0. Numbers outside
// the range of int become its nearest end.
std::array<int, 5> scanNumbers(const std::string& text) {
  std::array<int, 5> numbers{};
  const char* position = text.c_str();
  for (int& number : numbers) {
    char* end = nullptr;
    const long value = std::strtol(position, &end, 10);
    if (end == position) {
      break;
    }
    number = static_cast<int>(
        std::clamp<long>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
    position = end;
  }
  return numbers;
}

}  // namespace

std::int64_t ScreenHeader::levels() const {
  return integerPower(2, inputDepth);
}

std::size_t ScreenHeader::entries() const {
  return static_cast<std::size_t>(width) * static_cast<std::size_t>(height) *
         static_cast<std::size_t>(levels());
}

std::int64_t ScreenHeader::tableBytes() const {
  constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
  const std::int64_t cells = std::int64_t{width} * height;
  const std::int64_t bitsPerCell = outputDepth * levels();
  return cells > (most - 7) / bitsPerCell ? most : (cells * bitsPerCell + 7) / 8;
}

std::optional<std::size_t> screenHeaderLength(std::span<const std::uint8_t> data) {
  const auto searched = data.first(std::min(data.size(), kLongestHeader + 1));
  const auto end = std::find(searched.begin(), searched.end(), 0);
  if (end == searched.end()) {
    (void)std::fprintf(stderr, "ERROR: could not locate screen file header\n");
    return std::nullopt;
  }
  return static_cast<std::size_t>(end - searched.begin());
}

std::optional<ScreenHeader> parseScreenHeader(std::span<const std::uint8_t> text) {
  const auto numbers = scanNumbers(std::string(text.begin(), text.end()));
  const ScreenHeader header{numbers[0], numbers[1], numbers[2], numbers[3], numbers[4]};
  if (header.version != 1) {
    (void)std::fprintf(stderr, "ERROR: screen version mismatch\n");
  } else if (header.width < 1) {
    (void)std::fprintf(stderr, "ERROR: screen width is too small\n");
  } else if (header.height < 1) {
    (void)std::fprintf(stderr, "ERROR: screen height is too small\n");
  } else if (!isValidDepth(header.inputDepth)) {
    (void)std::fprintf(stderr, "ERROR: inputDepth out of range - %d\n", header.inputDepth);
  } else if (!isValidDepth(header.outputDepth)) {
    (void)std::fprintf(stderr, "ERROR: outputDepth out of range - %d\n", header.outputDepth);
  } else {
    return header;
  }
  return std::nullopt;
}

}  // namespace gdi
