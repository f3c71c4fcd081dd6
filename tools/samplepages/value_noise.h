// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Smooth random hills without a random number: values hashed at lattice points, eased in between.
#pragma once

#include <cstdint>
#include <span>

namespace gdi::samplepages {

struct Noise {
  std::uint32_t seed = 0;
  int columns = 1;    // from one lattice point to the next, pixels, at least 1
  int rows = 1;       // the same downwards
  int amplitude = 0;  // values lie between 0 and this, at most 32767
};

// Adds row `y` (at least 0) of the noise to `values`, of which the first is column 0.
void addNoise(const Noise& noise, int y, std::span<int> values);

// The same for `octaves` noises, each of half the distances and half the amplitude of the one
// before it; distances stop at 1 pixel.
void addOctaves(Noise noise, int octaves, int y, std::span<int> values);

}  // namespace gdi::samplepages
