// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What screening is by definition, to compare faster ways with.
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <utility>

#include "tests/screens/screen_bytes.h"

namespace gdi {

// The screening of one pixel at a time, straight from the packed table.
class PixelByPixel {
 public:
  PixelByPixel(int width, int height, int inputDepth, int outputDepth, Bytes table)
      : width_(width),
        height_(height),
        inputDepth_(inputDepth),
        outputDepth_(outputDepth),
        table_(std::move(table)) {}

  [[nodiscard]] unsigned pixel(int x, int row, std::uint8_t sample, int depth) const {
    const int level = sample / (256 >> inputDepth_);
    const int entry = ((row % height_) * width_ + x % width_) * (1 << inputDepth_) + level;
    unsigned value = 0;
    for (int bit = entry * outputDepth_; bit < (entry + 1) * outputDepth_; ++bit) {
      const unsigned byte = table_.at(static_cast<std::size_t>(bit / 8));
      value = value * 2 + ((byte >> (7 - bit % 8)) & 1U);
    }
    return depth < outputDepth_ ? value >> (outputDepth_ - depth) : value;
  }

  [[nodiscard]] Bytes row(const Bytes& input, int row, int depth) const {
    Bytes output((input.size() * static_cast<std::size_t>(depth) + 7) / 8);
    for (std::size_t x = 0; x < input.size(); ++x) {
      const unsigned value = pixel(static_cast<int>(x), row, input[x], depth);
      const std::size_t bit = x * static_cast<std::size_t>(depth);
      output[bit / 8] |=
          static_cast<std::uint8_t>(value << (8U - static_cast<unsigned>(depth) - bit % 8));
    }
    return output;
  }

 private:
  int width_;
  int height_;
  int inputDepth_;
  int outputDepth_;
  Bytes table_;
};

inline Bytes randomBytes(std::mt19937& random, std::size_t count) {
  Bytes bytes(count);
  for (std::uint8_t& byte : bytes) {
    byte = static_cast<std::uint8_t>(random());
  }
  return bytes;
}

}  // namespace gdi
