// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A pixel of ink, and the grey that a page in black only prints for it.
#pragma once

#include <cstdint>

namespace gdi::samplepages {

// 0 blank to 255 full.
struct Ink {
  std::uint8_t cyan = 0;
  std::uint8_t magenta = 0;
  std::uint8_t yellow = 0;
  std::uint8_t black = 0;
  bool operator==(const Ink&) const = default;
};

// Between `from` (share 0) and `to` (share `whole`), rounded; 0 <= share <= whole, whole at least 1
// and at most 32767.
constexpr std::uint8_t between(int from, int to, int share, int whole) {
  return static_cast<std::uint8_t>((from * (whole - share) + to * share + whole / 2) / whole);
}

constexpr Ink between(const Ink& from, const Ink& to, int share, int whole) {
  return {
      between(from.cyan, to.cyan, share, whole), between(from.magenta, to.magenta, share, whole),
      between(from.yellow, to.yellow, share, whole), between(from.black, to.black, share, whole)};
}

// As dark as the ink looks: the eye's weights of the primaries that the inks take away.
constexpr std::uint8_t greyOf(const Ink& ink) {
  const int grey = ink.black + (30 * ink.cyan + 59 * ink.magenta + 11 * ink.yellow + 50) / 100;
  return static_cast<std::uint8_t>(grey < 255 ? grey : 255);
}

}  // namespace gdi::samplepages
