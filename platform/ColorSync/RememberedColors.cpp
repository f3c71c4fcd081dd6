// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/ColorSync/RememberedColors.h"

#include <cstring>
#include <utility>

namespace gdi {

namespace {

constexpr unsigned kPlaceBits =
    14;  // 16,384 colours, 128 KiB: the colours of some rows of a picture

constexpr std::uint32_t kPaper = 0;  // never remembered, so that it marks an empty place

// Fibonacci hashing: neighbouring colours are spread over all places.
std::size_t placeOf(std::uint32_t pixel) {
  return pixel * 0x9E3779B1U >> (32 - kPlaceBits);
}

std::uint32_t loadPixel(const std::uint8_t* bytes) {
  std::uint32_t pixel = 0;
  std::memcpy(&pixel, bytes, sizeof pixel);
  return pixel;
}

void fill(std::uint8_t* begin, const std::uint8_t* end, std::uint32_t pixel) {
  for (; begin != end; begin += sizeof pixel) {
    std::memcpy(begin, &pixel, sizeof pixel);
  }
}

}  // namespace

RememberedColors::RememberedColors(MatchPixels matchPixels)
    : matchPixels_(std::move(matchPixels)), colors_(std::size_t{1} << kPlaceBits) {
}

void RememberedColors::matchRow(std::span<std::uint8_t> row) {
  const std::size_t count = row.size() / sizeof(std::uint32_t);
  std::uint8_t* const pixels = row.data();
  const auto at = [pixels](std::size_t index) { return pixels + index * sizeof(std::uint32_t); };
  unknownRuns_.clear();
  unknown_.clear();
  for (std::size_t begin = 0, end = 0; begin < count; begin = end) {
    const std::uint32_t pixel = loadPixel(at(begin));
    end = begin + 1;
    while (end < count && loadPixel(at(end)) == pixel) {
      ++end;
    }
    if (pixel == kPaper) {
      continue;
    }
    if (const Color& known = colors_[placeOf(pixel)]; known.pixel == pixel) {
      fill(at(begin), at(end), known.matched);
    } else {
      unknownRuns_.push_back({begin, end});
      unknown_.push_back(pixel);
    }
  }
  if (unknown_.empty()) {
    return;
  }
  matchPixels_(reinterpret_cast<std::uint8_t*>(unknown_.data()), unknown_.size());
  for (std::size_t i = 0; i < unknown_.size(); ++i) {
    const auto [begin, end] = unknownRuns_[i];
    const std::uint32_t pixel = loadPixel(at(begin));
    colors_[placeOf(pixel)] = {pixel, unknown_[i]};
    fill(at(begin), at(end), unknown_[i]);
  }
}

}  // namespace gdi
