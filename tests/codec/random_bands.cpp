// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/codec/random_bands.h"

#include <array>

namespace gdi::codectest {
namespace {

std::uint32_t below(std::mt19937& random, std::uint32_t limit) {
  return static_cast<std::uint32_t>(random()) % limit;
}

std::uint16_t anyWord(std::mt19937& random) {
  return static_cast<std::uint16_t>(random());
}

// Wholly inside or wholly outside the alphabet, or half and half.
std::uint16_t mixedWord(std::mt19937& random) {
  constexpr std::array<std::uint16_t, 12> kBytes = {0x00, 0x01, 0x03, 0x07, 0x80, 0xC0,
                                                    0xF0, 0xFF, 0x0F, 0x55, 0x24, 0xB6};
  return static_cast<std::uint16_t>(kBytes.at(below(random, 12)) * 256 +
                                    kBytes.at(below(random, 12)));
}

Words noise(std::size_t words, std::mt19937& random) {
  Words row(words);
  for (std::uint16_t& word : row) {
    word = anyWord(random);
  }
  return row;
}

Words runs(std::size_t words, std::mt19937& random) {
  Words row;
  while (row.size() < words) {
    row = row + repeated(mixedWord(random), 1 + below(random, 40));
  }
  row.resize(words);
  return row;
}

Words fewValues(std::size_t words, std::mt19937& random) {
  const Words values = noise(2 + below(random, 6), random);
  Words row(words);
  for (std::uint16_t& word : row) {
    word = values[below(random, static_cast<std::uint32_t>(values.size()))];
  }
  return row;
}

// A ramp from white to black through an ordered dither, one bit a pixel.
Words halftone(std::size_t words, std::size_t y, std::uint32_t slope) {
  constexpr std::array<unsigned, 16> kThresholds = {0, 8,  2, 10, 12, 4, 14, 6,
                                                    3, 11, 1, 9,  15, 7, 13, 5};
  Words row(words);
  for (std::size_t x = 0; x < 16 * words; ++x) {
    const std::size_t level = (x * slope / 64 + y) / 16 % 18;
    if (kThresholds.at(4 * (y % 4) + x % 4) < level) {
      row[x / 16] = static_cast<std::uint16_t>(row[x / 16] | (0x8000U >> (x % 16)));
    }
  }
  return row;
}

Words edited(Words row, std::mt19937& random) {
  const std::uint32_t edits = below(random, 6);
  for (std::uint32_t i = 0; i < edits; ++i) {
    const std::size_t at = below(random, static_cast<std::uint32_t>(row.size()));
    const std::size_t length = 1 + below(random, below(random, 4) == 0 ? 300 : 20);
    const bool moved = below(random, 2) == 0;
    const std::size_t from = below(random, static_cast<std::uint32_t>(row.size()));
    for (std::size_t k = 0; k < length && at + k < row.size(); ++k) {
      row[at + k] = moved ? row[(from + k) % row.size()] : anyWord(random);
    }
  }
  return row;
}

Words alphabetMix(std::size_t words, std::mt19937& random) {
  Words row(words);
  for (std::uint16_t& word : row) {
    word = below(random, 4) == 0 ? anyWord(random) : mixedWord(random);
  }
  return row;
}

Words sparse(std::size_t words, std::mt19937& random) {
  Words row(words, 0);
  std::size_t at = below(random, 100);
  while (at < words) {
    row[at] = below(random, 3) == 0 ? anyWord(random) : mixedWord(random);
    at += 1 + below(random, below(random, 2) == 0 ? 5 : 100);
  }
  return row;
}

Words periodic(std::size_t words, std::mt19937& random) {
  const std::size_t period = 1 + below(random, 140);
  Words row = noise(words, random);
  for (std::size_t i = period; i < words; ++i) {
    row[i] = row[i - period];
    if (below(random, 60) == 0) {
      row[i] = anyWord(random);
    }
  }
  return row;
}

// A word comes back at every odd place; the ones between come back after 200 words, too far for a
// copy.
Words worst(std::size_t words, std::size_t y) {
  Words row(words);
  for (std::size_t i = 0; i < words; ++i) {
    const std::size_t mark = i % 2 == 0 && i > 0 ? 1 + i / 2 % 100 : 0;
    row[i] = static_cast<std::uint16_t>(0x2400 + 0x4000 * (y % 2) + mark);
  }
  return row;
}

Words nextRow(BandKind kind, const Words& above, std::size_t y, std::mt19937& random) {
  const std::size_t words = above.size();
  switch (kind) {
    case BandKind::kNoise:
      return noise(words, random);
    case BandKind::kRuns:
      return runs(words, random);
    case BandKind::kFewValues:
      return fewValues(words, random);
    case BandKind::kHalftone:
      return halftone(words, y, 1 + below(random, 2));
    case BandKind::kEditedRows:
      return y == 0 ? runs(words, random) : edited(above, random);
    case BandKind::kAlphabetMix:
      return alphabetMix(words, random);
    case BandKind::kSparse:
      return sparse(words, random);
    case BandKind::kPeriodic:
      return y % 3 == 2 ? edited(above, random) : periodic(words, random);
    default:
      return worst(words, y);
  }
}

}  // namespace

std::string nameOf(BandKind kind) {
  constexpr std::array<const char*, kBandKinds> kNames = {"noise",    "runs",        "few values",
                                                          "halftone", "edited rows", "alphabet mix",
                                                          "sparse",   "periodic",    "worst"};
  return kNames.at(static_cast<std::size_t>(kind));
}

Band randomBand(BandKind kind, std::uint32_t rowBytes, std::uint32_t rows, std::mt19937& random) {
  std::vector<Words> all;
  Words above((std::size_t{rowBytes} + 3) / 4 * 2, 0);
  for (std::uint32_t y = 0; y < rows; ++y) {
    above = nextRow(kind, above, y, random);
    all.push_back(above);
  }
  Band band = bandOf(all);
  band.rowBytes = rowBytes;
  return band;
}

Band worstBand(std::uint32_t rowBytes, std::uint32_t rows) {
  std::mt19937 unused;  // NOLINT(cert-msc51-cpp,cert-msc32-c): the pattern takes no chance
  return randomBand(BandKind::kWorst, rowBytes, rows, unused);
}

}  // namespace gdi::codectest
