// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Bands of many kinds, the same ones in every run.
#pragma once

#include <cstdint>
#include <random>
#include <string>

#include "tests/codec/band.h"

namespace gdi::codectest {

enum class BandKind {
  kNoise,
  kRuns,
  kFewValues,
  kHalftone,
  kEditedRows,
  kAlphabetMix,
  kSparse,
  kPeriodic,
  kWorst,
};
inline constexpr int kBandKinds = 9;

std::string nameOf(BandKind kind);

// `rowBytes` may be any number; the bytes that fill up a row are part of the pattern.
Band randomBand(BandKind kind, std::uint32_t rowBytes, std::uint32_t rows, std::mt19937& random);

// The band that takes the most room: in every row, a one-word literal run and a one-word copy in
// turn, with no word as in the row above. At least 2 words a row.
Band worstBand(std::uint32_t rowBytes, std::uint32_t rows);

}  // namespace gdi::codectest
