// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What the colour engine's own calculator makes of pixels: the second route to matched colours.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace gdi::test {

struct TransiccJob {
  std::string source{};       // path of a profile
  std::string destination{};  // the same
  std::string options{};      // for example "-t1" for the relative intent
  std::size_t channels = 4;   // of a pixel: 4 for CMYK, 1 for grey, whose values are ink here, too
};

// The matched pixels; fewer than given when the calculator fails.
std::vector<std::uint8_t> transicc(const TransiccJob& job, const std::vector<std::uint8_t>& pixels);

}  // namespace gdi::test
