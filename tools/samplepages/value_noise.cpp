// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/samplepages/value_noise.h"

#include <algorithm>
#include <cstddef>

namespace gdi::samplepages {
namespace {

constexpr std::int64_t kOne = 1 << 12;  // of a share

// 0 to 65535, without a pattern over neighbouring points.
std::uint32_t latticeValue(std::uint32_t seed, int column, int row) {
  std::uint32_t hash = seed * 0x9E3779B9U + static_cast<std::uint32_t>(column) * 0x85EBCA6BU +
                       static_cast<std::uint32_t>(row) * 0xC2B2AE35U;
  hash ^= hash >> 15;
  hash *= 0x2C1B3C6DU;
  hash ^= hash >> 12;
  hash *= 0x297A2D39U;
  hash ^= hash >> 15;
  return hash >> 16;
}

// How far a value has gone from one lattice point to the next, 0 to kOne, with level ends.
std::int64_t eased(int position, int distance) {
  const std::int64_t share = position * kOne / distance;
  return share * share * (3 * kOne - 2 * share) / (kOne * kOne);
}

std::int64_t mixed(std::int64_t from, std::int64_t to, std::int64_t share) {
  return from + (to - from) * share / kOne;
}

}  // namespace

void addNoise(const Noise& noise, int y, std::span<int> values) {
  const int row = y / noise.rows;
  const std::int64_t share = eased(y % noise.rows, noise.rows);
  const auto valueAt = [&](int column) {
    const std::int64_t value = mixed(latticeValue(noise.seed, column, row),
                                     latticeValue(noise.seed, column, row + 1), share);
    return value * noise.amplitude / 65535;
  };
  std::int64_t right = valueAt(0);
  int column = 0;
  for (std::size_t start = 0; start < values.size();
       start += static_cast<std::size_t>(noise.columns)) {
    const std::int64_t left = right;
    right = valueAt(++column);
    const std::size_t end =
        std::min(start + static_cast<std::size_t>(noise.columns), values.size());
    for (std::size_t x = start; x < end; ++x) {
      values[x] +=
          static_cast<int>(mixed(left, right, eased(static_cast<int>(x - start), noise.columns)));
    }
  }
}

void addOctaves(Noise noise, int octaves, int y, std::span<int> values) {
  for (int octave = 0; octave < octaves; ++octave) {
    addNoise(noise, y, values);
    noise = {noise.seed + 1, std::max(noise.columns / 2, 1), std::max(noise.rows / 2, 1),
             noise.amplitude / 2};
  }
}

}  // namespace gdi::samplepages
