// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The 64 byte values that a pair literal can name with six bits each.
//
// Halftoned pixels come in runs, so the nibbles worth a short code are the empty one, the full one
// and those whose set bits are one run touching an edge.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace gdi::pc4sc4 {

inline constexpr std::array<std::uint8_t, 8> kAlphabetNibbles = {0x0, 0x1, 0x3, 0x7,
                                                                 0x8, 0xC, 0xE, 0xF};
inline constexpr std::uint16_t kNotInAlphabet = 0xFFFF;

constexpr std::array<std::uint8_t, 64> makeMapIdToLiteral() {
  std::array<std::uint8_t, 64> map{};
  for (std::size_t id = 0; id < map.size(); ++id) {
    map.at(id) =
        static_cast<std::uint8_t>((kAlphabetNibbles.at(id / 8) << 4) | kAlphabetNibbles.at(id % 8));
  }
  return map;
}

// Alphabet index to byte value.
inline constexpr std::array<std::uint8_t, 64> MapIdToLiteral = makeMapIdToLiteral();

constexpr std::array<std::uint16_t, 256> makeMapLiteralToId() {
  std::array<std::uint16_t, 256> map{};
  for (std::uint16_t& id : map) {
    id = kNotInAlphabet;
  }
  for (std::size_t id = 0; id < MapIdToLiteral.size(); ++id) {
    map.at(MapIdToLiteral.at(id)) = static_cast<std::uint16_t>(id);
  }
  return map;
}

// Byte value to alphabet index, kNotInAlphabet for the other 192 values.
inline constexpr std::array<std::uint16_t, 256> MapLiteralToId = makeMapLiteralToId();

}  // namespace gdi::pc4sc4
