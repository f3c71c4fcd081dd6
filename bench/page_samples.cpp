// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/page_samples.h"

#include <array>

namespace gdi::bench {

namespace {

std::uint8_t noise(unsigned seed) {
  seed = (seed ^ seed >> 15) * 0x2C1B3C6DU;
  seed = (seed ^ seed >> 12) * 0x297A2D39U;
  return static_cast<std::uint8_t>(seed >> 16);
}

std::uint8_t sample(Content content, unsigned x, unsigned row, unsigned channel) {
  switch (content) {
    case Content::kBlank:
      return 0;
    case Content::kText:  // black strokes of about four pixels with white between
      return channel == 3 && (noise(x / 4 + 1300 * (row / 6)) < 40) ? 255 : 0;
    case Content::kTint:
      return static_cast<std::uint8_t>(40 + 30 * channel);
    case Content::kPhoto:  // a slow ramp with a little grain
      return static_cast<std::uint8_t>((x / 24 + row / 16 + 60 * channel) % 240 +
                                       noise(x + 4960 * row) % 16);
    case Content::kNoise:
      break;
  }
  return noise(x + kPixels * row + 77777 * channel);
}

}  // namespace

const char* nameOf(Content content) {
  constexpr std::array kNames{"blank", "text", "tint", "photo", "noise"};
  return kNames.at(static_cast<std::size_t>(content));
}

std::vector<std::uint8_t> chunkyLine(Content content, int channels, int row) {
  std::vector<std::uint8_t> line;
  for (int x = 0; x < kPixels; ++x) {
    for (int channel = 0; channel < channels; ++channel) {
      line.push_back(sample(content, static_cast<unsigned>(x), static_cast<unsigned>(row),
                            static_cast<unsigned>(channels == 1 ? 3 : channel)));
    }
  }
  return line;
}

}  // namespace gdi::bench
