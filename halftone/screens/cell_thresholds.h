// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The levels at which a cell of a packed screen table rises.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>

namespace gdi {

// The 64 bits of a packed table that begin at `byte`, the first bit the most significant; zeros
// beyond its end.
[[nodiscard]] inline std::uint64_t tableWord(std::span<const std::uint8_t> packed,
                                             std::size_t byte) {
  std::uint64_t word = 0;
  if (packed.size() - byte >= sizeof word) {
    std::memcpy(&word, &packed[byte], sizeof word);
  } else {
    std::memcpy(&word, &packed[byte], packed.size() - byte);
  }
  return std::endian::native == std::endian::little ? __builtin_bswap64(word) : word;
}

// Finds where the entries of a cell, `depth` bits each, rise: calls reach(rank, level) for each
// rank with the lowest level whose entry is at least that; for ranks that no entry reaches, never.
//   firstBit  where the cell begins in the table: a multiple of its length in bits
//   levels    entries of the cell, a power of 2
// False, maybe after some calls, when the cell does not rise: an entry is less than the one before
// or the first is not 0.
template <int depth, typename Reach>
[[nodiscard]] bool findRises(std::span<const std::uint8_t> packed, std::size_t firstBit,
                             unsigned levels, Reach reach) {
  constexpr unsigned kMask = (1U << depth) - 1;
  constexpr std::uint64_t kLowestBits = ~std::uint64_t{0} / kMask;  // of each entry in a word
  constexpr unsigned kWordEntries = 64 / depth;
  std::array<std::uint64_t, depth> words{};
  std::array<std::uint64_t, depth> before{};  // each entry's predecessor in its place
  std::uint64_t last = 0;
  for (unsigned level = 0; level < levels; level += 64) {
    // Bit b tells that in word b % depth the entry whose lowest bit is b - b % depth differs.
    std::uint64_t changes = 0;
    for (unsigned i = 0; i < depth && level + i * kWordEntries < levels; ++i) {
      const std::size_t bit = firstBit + std::size_t{level + i * kWordEntries} * depth;
      words[i] = tableWord(packed, bit / 64 * 8) << (bit % 64);
      before[i] = words[i] >> depth | last << (64 - depth);
      last = words[i];
      std::uint64_t differing = words[i] ^ before[i];
      for (int shift = 1; shift < depth; shift *= 2) {
        differing |= differing >> shift;
      }
      changes |= (differing & kLowestBits) << i;
    }
    if (levels < kWordEntries) {
      changes &= ~std::uint64_t{0} << (64 - levels * depth);
    }
    for (; changes != 0; changes &= changes - 1) {
      const auto bit = static_cast<unsigned>(std::countr_zero(changes));
      const unsigned i = bit % depth;
      const unsigned entry = static_cast<unsigned>(words[i] >> (bit - i)) & kMask;
      unsigned rank = static_cast<unsigned>(before[i] >> (bit - i)) & kMask;
      const unsigned at = level + i * kWordEntries + (63 - bit) / depth;
      if (entry < rank || at == 0) {
        return false;
      }
      while (rank < entry) {
        reach(++rank, at);
      }
    }
  }
  return true;
}

}  // namespace gdi
